#include "open/GridDemand.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include <plot3d/Error.h>
#include <plot3d/FileNames.h>

#include "inspect/KindOfName.h"
#include "open/Facts.h"

namespace plot3dlib {

namespace {

namespace fs = std::filesystem;

std::size_t lengthInCommon(const std::string& one, const std::string& other) {
    const std::size_t shorter = std::min(one.size(), other.size());
    const auto end = one.begin() + static_cast<std::ptrdiff_t>(shorter);
    return static_cast<std::size_t>(std::mismatch(one.begin(), end, other.begin()).first -
                                    one.begin());
}

} // namespace

std::string gridFileBeside(const std::string& file) {
    const fs::path path(file);
    const std::string name = path.filename();
    std::string best;
    std::error_code ignored; // without a look there is no name to tell
    for (fs::directory_iterator entry(path.has_parent_path() ? path.parent_path() : ".", ignored);
         entry != fs::directory_iterator(); entry.increment(ignored)) {
        const std::string other = entry->path().filename();
        if (kindOfName(other) != plot3d::FileKind::Grid || !entry->is_regular_file(ignored))
            continue;
        const std::size_t length = lengthInCommon(name, other);
        const std::size_t longest = lengthInCommon(name, best);
        if (best.empty() || length > longest ||
            (length == longest && plot3d::naturalLess(other, best)))
            best = other;
    }
    return best.empty() ? best : (path.parent_path() / best).string();
}

void demandGrid(const plot3d::FileLists& files) {
    if (!files.grid.empty() || (files.solution.empty() && files.function.empty()))
        return;
    const std::string& first =
        files.solution.empty() ? files.function.front() : files.solution.front();
    const std::string grid = gridFileBeside(first);
    throw plot3d::Error(plot3d::ErrorKind::Refused,
                        "The file needs the grid file on which its values stand.",
                        ofFile(first, "the same with its grid file" +
                                          (grid.empty() ? "" : ", " + commandOf({grid}))));
}

} // namespace plot3dlib
