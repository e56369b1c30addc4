// Where the add-on's library lies.
#pragma once

#include <string>

namespace quorvia::host {

/// `asGiven`, or if that is empty the library that was built with the program and lies beside it in
/// ../lib, wherever both are moved. As an absolute path: a name without a directory would be
/// searched among the system's libraries.
std::string addOnPath(const std::string& asGiven);

} // namespace quorvia::host
