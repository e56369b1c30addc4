// Where the add-on's library lies.
#pragma once

#include <string>

namespace quorvia::host {

/// `asGiven`, or if that is empty the add-on that was built with the host's library: in the folder
/// `plot3d` beside it where both are installed, straight beside it in a build tree, wherever the
/// tree is moved. As an absolute path: a name without a directory would be searched among the
/// system's libraries.
std::string addOnPath(const std::string& asGiven);

} // namespace quorvia::host
