#include "open/FileSorting.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <plot3d/Error.h>

#include "filenames/FilePatternTables.h"
#include "filenames/SimplePatternMatcher.h"
#include "open/Facts.h"
#include "open/KindTrial.h"
#include "open/NaturalOrder.h"

namespace plot3dlib {

namespace {

using plot3d::Error;
using plot3d::ErrorKind;
using plot3d::FileKind;

void demandFile(const std::string& file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        throw Error(ErrorKind::NotFound,
                    std::string("The file can't be opened: ") + std::strerror(errno) + ".",
                    ofFile(file));
    struct stat status = {};
    const bool isRegular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    ::close(descriptor);
    if (!isRegular)
        throw Error(ErrorKind::NotFound, "This is no regular file.", ofFile(file));
}

/// The kinds that names tell, in the order in which the add-on asks.
class NameRules {
public:
    std::optional<FileKind> kindOf(const std::string& file) const {
        const std::string name = std::filesystem::path(file).filename().string();
        if (boundary_.matches(name))
            return FileKind::Boundary;
        if (grid_.matches(name))
            return FileKind::Grid;
        if (solution_.matches(name))
            return FileKind::Solution;
        if (function_.matches(name))
            return FileKind::Function;
        if (name_.matches(name))
            return FileKind::Name;
        return std::nullopt;
    }

private:
    using Matcher = quorvia::quorutildataio::SimplePatternMatcher;
    Matcher boundary_{{"*.fvbnd"}};
    Matcher grid_{quorvia::quorutildataio::gGridPatterns};
    Matcher solution_{quorvia::quorutildataio::gSolutionPatterns};
    Matcher function_{quorvia::quorutildataio::gFunctionPatterns};
    Matcher name_{quorvia::quorutildataio::gNamePatterns};
};

FileKind kindByTrial(const std::string& file, const plot3d::Watch& watch) {
    const std::vector<FileKind> kinds = kindsThatFit(file, watch);
    if (kinds.empty())
        throw Error(ErrorKind::NotPlot3D,
                    "The name does not tell what the file is, and it reads neither as a grid, nor "
                    "as a solution, nor as a function file.",
                    ofFile(file, "plot3d info --why " + file));
    return kinds.front();
}

void addTo(SortedFiles_s& sorted, FileKind kind, const std::string& file) {
    switch (kind) {
    case FileKind::Grid:
        sorted.lists.grid.push_back(file);
        break;
    case FileKind::Solution:
        sorted.lists.solution.push_back(file);
        break;
    case FileKind::Function:
        sorted.lists.function.push_back(file);
        break;
    case FileKind::Boundary:
        sorted.boundaryFiles.push_back(file);
        break;
    case FileKind::Name:
        if (!sorted.lists.name.empty())
            throw Error(ErrorKind::Refused, "A load takes one name file, and this is the second.",
                        ofFile(file));
        sorted.lists.name = file;
        break;
    }
}

} // namespace

SortedFiles_s sortByKind(std::vector<std::string> files, const plot3d::Watch& watch) {
    std::sort(files.begin(), files.end(), isNaturallyBefore);
    const NameRules names;
    SortedFiles_s sorted;
    for (const std::string& file : files) {
        demandFile(file);
        const std::optional<FileKind> kind = names.kindOf(file);
        addTo(sorted, kind ? *kind : kindByTrial(file, watch), file);
    }
    return sorted;
}

void demandFiles(const plot3d::FileLists& lists) {
    for (const auto* list : {&lists.grid, &lists.solution, &lists.function})
        std::for_each(list->begin(), list->end(), demandFile);
    if (!lists.name.empty())
        demandFile(lists.name);
}

} // namespace plot3dlib
