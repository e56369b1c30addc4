#include "session/AddOnPath.h"

#include <filesystem>

#include <dlfcn.h>

namespace quorvia::host {

namespace {

namespace fs = std::filesystem;

/// Where the library of the host lies.
fs::path ownFolder() {
    Dl_info info = {};
    const bool isKnown = dladdr(reinterpret_cast<const void*>(&addOnPath), &info) != 0;
    return isKnown ? fs::absolute(info.dli_fname).parent_path() : fs::path();
}

} // namespace

std::string addOnPath(const std::string& asGiven) {
    constexpr const char* fileName = "plot3dloader.so";
    if (!asGiven.empty())
        return fs::absolute(asGiven).string();
    std::error_code error; // one that can't be asked about is not there
    const fs::path installed = ownFolder() / "plot3d" / fileName;
    return (fs::exists(installed, error) ? installed : ownFolder() / fileName).string();
}

} // namespace quorvia::host
