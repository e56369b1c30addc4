// Where the add-on's library lies.
#pragma once

#include <string>

namespace quorvia::host {

/// `asGiven` as an absolute path, or if it is empty the library that was built with the program,
/// which lies beside it in ../lib.
std::string desktopAddOnPath(const std::string& asGiven);

} // namespace quorvia::host
