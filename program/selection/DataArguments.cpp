#include "selection/DataArguments.h"

#include <algorithm>
#include <utility>

#include <fmt/core.h>

#include <plot3d/Error.h>
#include <plot3d/FileInfo.h>
#include <plot3d/FileNames.h>

#include "console/options/OptionTable.h"
#include "manners/FileList.h"
#include "manners/ProgressWatch.h"
#include "manners/Talk.h"

namespace plot3d::program {
namespace {

constexpr const char* dataSetGroup = "Data set";

std::string settingProblem(const std::string& text) {
    const std::size_t equals = text.find('=');
    return equals == std::string::npos || equals == 0
               ? fmt::format("\"{}\" is not of the form KEY=VALUE", text)
               : std::string();
}

std::pair<std::string, std::string> settingOf(const std::string& text) {
    const std::size_t equals = text.find('=');
    return {text.substr(0, equals), text.substr(equals + 1)};
}

bool isEmpty(const FileLists& lists) {
    return lists.grid.empty() && lists.solution.empty() && lists.function.empty();
}

/// The list for a file by its name, or else by its bytes. Throws Error if it is of no kind.
std::vector<std::string>& listFor(const std::string& file, FileLists& lists,
                                  std::vector<std::string>& nameFiles, const Watch& watch) {
    InspectOptions options;
    options.trials = false;
    const FileInfo info = inspect(file, options, watch);
    switch (info.kind.value_or(FileKind::Boundary)) {
    case FileKind::Grid:
        return lists.grid;
    case FileKind::Solution:
        return lists.solution;
    case FileKind::Function:
        return lists.function;
    case FileKind::Name:
        return nameFiles;
    case FileKind::Boundary:
        break;
    }
    const Misfit misfit = info.problem ? info.problem->misfit : Misfit();
    throw Error(ErrorKind::NotPlot3D,
                misfit.what.empty() ? "no grid, solution or function file" : misfit.what,
                {.file = file,
                 .byte = misfit.byte,
                 .expected = misfit.expected,
                 .found = misfit.found,
                 .next = {}});
}

/// Opens with progress, and tells the notes of the load.
template <typename Files>
DataSet opened(const Files& files, const OpenOptions& options, const Surroundings_s& surroundings) {
    ProgressWatch progress(surroundings);
    DataSet data = DataSet::open(files, options, progress.watch());
    progress.clear();
    for (const std::string& note : data.notes())
        tellWarning(surroundings, note);
    return data;
}

} // namespace

void DataArguments::declare(console::OptionTable& table) {
    table.files(files_,
                "Files of one data set in any order; - reads a list of them from standard input");
    const console::OptionTable options = table.under(dataSetGroup);
    options
        .list("--grid", lists_.grid, "FILE",
              "Grid files, where neither names nor bytes tell the kinds")
        .takesSeveral();
    options.list("--solution", lists_.solution, "FILE", "Solution files, likewise").takesSeveral();
    options.list("--function", lists_.function, "FILE", "Function files, likewise").takesSeveral();
    declareOptions(table);
}

void DataArguments::declareOptions(console::OptionTable& table) {
    const console::OptionTable options = table.under(dataSetGroup);
    options.text("--name", nameFile_, "FILE", "File with the names of the variables");
    options
        .list("--set", settings_, "KEY=VALUE",
              "A load instruction, such as AUTODETECT=No; may come several times")
        .check(settingProblem);
    options.flag("--share-structure", sharesStructure_,
                 "Take all files of a kind to be built like the first, without looking");
    options.flag("--no-boundaries", leavesOutBoundaries_, "Leave out the zones of boundary files");
    options.text("--addon", addOn_, "PATH",
                 "Load by the add-on in this dynamic library, not by the one inside plot3d");
}

OpenOptions DataArguments::options() const {
    OpenOptions options;
    options.shareStructure = sharesStructure_;
    options.boundaries = !leavesOutBoundaries_;
    options.nameFile = nameFile_;
    options.addOn = addOn_;
    for (const std::string& setting : settings_)
        options.instructions.push_back(settingOf(setting));
    return options;
}

FileLists DataArguments::listsWithFiles(const Surroundings_s& surroundings) const {
    FileLists lists;
    lists.grid = filesNamed(lists_.grid, surroundings.in);
    lists.solution = filesNamed(lists_.solution, surroundings.in);
    lists.function = filesNamed(lists_.function, surroundings.in);
    std::vector<std::string> others = filesNamed(files_, surroundings.in);
    std::sort(others.begin(), others.end(), naturalLess);
    std::vector<std::string> nameFiles;
    ProgressWatch progress(surroundings);
    for (const std::string& file : others)
        listFor(file, lists, nameFiles, progress.watch()).push_back(file);
    if (nameFiles.size() > 1 || (!nameFiles.empty() && !nameFile_.empty()))
        throw Error(ErrorKind::Usage, "there is more than one file of names");
    lists.name = nameFiles.empty() ? nameFile_ : nameFiles.front();
    return lists;
}

DataSet DataArguments::open(const Surroundings_s& surroundings) const {
    if (isEmpty(lists_))
        return open(files(surroundings), surroundings);
    return opened(listsWithFiles(surroundings), options(), surroundings);
}

DataSet DataArguments::open(const std::vector<std::string>& files,
                            const Surroundings_s& surroundings) const {
    if (files.empty())
        throw Error(ErrorKind::Usage, "no file is named: give the files of a data set, or --help");
    return opened(files, options(), surroundings);
}

std::vector<std::string> DataArguments::files(const Surroundings_s& surroundings) const {
    std::vector<std::string> names = files_;
    for (const auto* list : {&lists_.grid, &lists_.solution, &lists_.function})
        names.insert(names.end(), list->begin(), list->end());
    return filesNamed(names, surroundings.in);
}

} // namespace plot3d::program
