#include "selection/DataArguments.h"

#include <ostream>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/core.h>

#include <plot3d/Error.h>

#include "selection/FileList.h"

namespace plot3d::program {
namespace {

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

/// Lists of known kinds, with what standard input lists in the place of `-`.
FileLists listedByKind(const FileLists& lists, std::istream& in) {
    FileLists result = lists;
    result.grid = withListedFiles(lists.grid, in);
    result.solution = withListedFiles(lists.solution, in);
    result.function = withListedFiles(lists.function, in);
    return result;
}

void tellNotes(const DataSet& data, const Surroundings_s& surroundings) {
    if (surroundings.quiet)
        return;
    for (const std::string& note : data.notes())
        surroundings.err << "plot3d: warning: " << note << '\n';
}

Watch watchOf(const Surroundings_s& surroundings) {
    return {{}, surroundings.stop};
}

} // namespace

void DataArguments::declare(CLI::App& app) {
    auto* files = app.add_option("FILE", files_,
                                 "Files of one data set in any order; - reads a list of them from "
                                 "standard input");
    const auto kind = [&](const char* name, std::vector<std::string>& list, const char* help) {
        app.add_option(name, list, help)->option_text("FILE...")->excludes(files);
    };
    kind("--grid", lists_.grid, "Grid files, where names don't tell the kinds");
    kind("--solution", lists_.solution, "Solution files, likewise");
    kind("--function", lists_.function, "Function files, likewise");
    declareOptions(app);
}

void DataArguments::declareOptions(CLI::App& app) {
    app.add_option("--name", nameFile_, "File with the names of the variables")
        ->option_text("FILE");
    app.add_option("--set", settings_,
                   "A load instruction, such as AUTODETECT=No; may be given several times")
        ->option_text("KEY=VALUE")
        ->check(settingProblem)
        ->take_all()
        ->allow_extra_args(false);
    app.add_flag("--share-structure", sharesStructure_,
                 "Take all files of a kind to be built like the first, without looking");
    app.add_flag("--no-boundaries", leavesOutBoundaries_, "Leave out the zones of boundary files");
}

OpenOptions DataArguments::options() const {
    OpenOptions options;
    options.shareStructure = sharesStructure_;
    options.boundaries = !leavesOutBoundaries_;
    options.nameFile = nameFile_;
    for (const std::string& setting : settings_)
        options.instructions.push_back(settingOf(setting));
    return options;
}

DataSet DataArguments::open(const Surroundings_s& surroundings) const {
    if (isEmpty(lists_))
        return open(files(surroundings), surroundings);
    DataSet data =
        DataSet::open(listedByKind(lists_, surroundings.in), options(), watchOf(surroundings));
    tellNotes(data, surroundings);
    return data;
}

DataSet DataArguments::open(const std::vector<std::string>& files,
                            const Surroundings_s& surroundings) const {
    if (files.empty())
        throw Error(ErrorKind::Usage, "no file is named");
    DataSet data = DataSet::open(files, options(), watchOf(surroundings));
    tellNotes(data, surroundings);
    return data;
}

std::vector<std::string> DataArguments::files(const Surroundings_s& surroundings) const {
    std::vector<std::string> names = files_;
    for (const auto* list : {&lists_.grid, &lists_.solution, &lists_.function})
        names.insert(names.end(), list->begin(), list->end());
    return program::withListedFiles(names, surroundings.in);
}

} // namespace plot3d::program
