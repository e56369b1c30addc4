#include "open/BoundaryUse.h"

#include <filesystem>
#include <system_error>

namespace plot3dlib {

namespace {

/// As the add-on looks for it; empty for none.
std::string boundaryFileBeside(const std::vector<std::string>& gridFiles) {
    if (gridFiles.empty())
        return "";
    for (const char* extension : {".fvbnd", ".FVBND"}) {
        const std::string name = gridFiles.front() + extension;
        std::error_code none; // then it is not there
        if (std::filesystem::is_regular_file(name, none))
            return name;
    }
    return "";
}

bool isSameFile(const std::string& left, const std::string& right) {
    std::error_code none; // one that can't be looked at is not the other
    return left == right || std::filesystem::equivalent(left, right, none);
}

std::string whyUnused(const plot3d::FileLists& files, bool isWanted) {
    if (!isWanted)
        return "not loaded, since boundaries are not wanted";
    if (files.grid.empty())
        return "not loaded, since there is no grid file";
    return "not loaded: the boundary file of " + files.grid.front() + " is " + files.grid.front() +
           ".fvbnd";
}

} // namespace

BoundaryUse_s boundaryUse(const plot3d::FileLists& files, const std::vector<std::string>& named,
                          bool isWanted) {
    const std::string beside = boundaryFileBeside(files.grid);
    BoundaryUse_s use;
    use.isLoaded = isWanted && !beside.empty();
    for (const std::string& file : named)
        if (!use.isLoaded || !isSameFile(file, beside))
            use.notes.push_back(file + ": " + whyUnused(files, isWanted));
    return use;
}

} // namespace plot3dlib
