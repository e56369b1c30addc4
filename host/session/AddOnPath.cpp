#include "session/AddOnPath.h"

#include <filesystem>

namespace quorvia::host {

std::string addOnPath(const std::string& asGiven) {
    if (!asGiven.empty())
        return std::filesystem::absolute(asGiven).string();
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path().parent_path() / "lib" / "plot3dloader.so").string();
}

} // namespace quorvia::host
