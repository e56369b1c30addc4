#include "open/FileSorting.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <plot3d/Error.h>
#include <plot3d/FileInfo.h>
#include <plot3d/FileNames.h>

#include "inspect/KindOfName.h"
#include "open/Facts.h"

namespace plot3dlib {

namespace {

using plot3d::Error;
using plot3d::ErrorFacts;
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

/// Those that are good for a message: a bad one among them is told another time.
std::vector<std::string> gridsAmong(const std::vector<std::string>& files,
                                    const plot3d::Watch& watch) {
    std::vector<std::string> grids;
    std::copy_if(files.begin(), files.end(), std::back_inserter(grids), [&](const auto& file) {
        const std::optional<FileKind> kind = kindOfName(file);
        return (kind ? kind : plot3d::inspect(file, {}, watch).kind) == FileKind::Grid;
    });
    return grids;
}

Error noKind(const plot3d::FileInfo& info, const std::vector<std::string>& grids) {
    ErrorFacts facts = factsOf(info, grids);
    return Error(ErrorKind::NotPlot3D,
                 "The name does not say what the file is, and it reads neither as a grid, nor as a "
                 "solution, nor as a function file" +
                     (info.problem ? ": " + info.problem->misfit.what : "."),
                 std::move(facts));
}

/// `files`: all that are named together with it.
FileKind kindByLooking(const std::string& file, const std::vector<std::string>& files,
                       const plot3d::Watch& watch) {
    const plot3d::FileInfo info = plot3d::inspect(file, {}, watch);
    if (!info.ok || !info.kind)
        throw noKind(info, gridsAmong(files, watch));
    return *info.kind;
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
    std::sort(files.begin(), files.end(), plot3d::naturalLess);
    SortedFiles_s sorted;
    for (const std::string& file : files) {
        demandFile(file);
        const std::optional<FileKind> kind = kindOfName(file);
        addTo(sorted, kind ? *kind : kindByLooking(file, files, watch), file);
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
