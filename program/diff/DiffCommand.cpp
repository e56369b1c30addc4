#include "diff/DiffCommand.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <fmt/core.h>
#include <plot3d/Error.h>
#include <plot3d/FileInfo.h>

#include "analysis/fields/DataSetFields.h"
#include "console/options/OptionTable.h"
#include "manners/FileList.h"
#include "manners/ProgressWatch.h"
#include "manners/ShellWords.h"
#include "manners/Talk.h"
#include "selection/NumberChecks.h"

namespace plot3d::program {
namespace {

// What a file behind `--` becomes for the parser; kept out of the help.
constexpr const char* secondOption = "--second-file";

constexpr std::array<std::string_view, 6> optionsWithoutValue = {
    "--json", "--share-structure", "--no-boundaries", "--quiet", "--help", "-h"};

bool isOption(const std::string& word) {
    return word.size() > 1 && word.front() == '-';
}

bool takesNextWord(const std::string& option) {
    return option.find('=') == std::string::npos &&
           std::find(optionsWithoutValue.begin(), optionsWithoutValue.end(), option) ==
               optionsWithoutValue.end();
}

/// Tells what could not be read, each field once.
void tellUnread(const DiffReport_s& report, const Surroundings_s& surroundings) {
    for (const VariableDifference_s& variable : byVariable(report)) {
        for (const std::size_t pair : variable.pairs) {
            const auto& error = report.found[pair].error;
            if (!error)
                continue;
            const std::string what =
                fmt::format("{} of zone {} can't be read: ", variable.variable.name,
                            report.plan.pairs[pair].zone + 1);
            tellError(surroundings.err,
                      Error(error->kind(), what + error->message(), error->facts()));
        }
    }
}

bool isGrid(const std::string& file) {
    InspectOptions options;
    options.trials = false;
    return inspect(file, options).kind == FileKind::Grid;
}

/// `FILE...`, with a place ahead of them for the grid file that is missing.
std::vector<std::string> withGrid(const std::vector<std::string>& files) {
    std::vector<std::string> words;
    if (std::none_of(files.begin(), files.end(), isGrid))
        words.emplace_back("GRID");
    words.insert(words.end(), files.begin(), files.end());
    return words;
}

} // namespace

const char* DiffCommand::purpose() const {
    return "Tell in what two data sets differ: zones, sizes, variables and values";
}

const char* DiffCommand::examples() const {
    return "  plot3d diff wing.x wing.q -- wing_text.x wing_text.q\n"
           "      whether the text files hold what the binary ones do\n"
           "  plot3d diff wing.x old.q -- wing.x new.q --variable 'RHO*' --relative 1e-6\n"
           "      whether density and momentum agree to six digits\n"
           "  plot3d diff coarse.x fine.x --json\n"
           "      two grid files, for a program\n";
}

const char* DiffCommand::failureMeans() const {
    return "the data sets differ, or one of them was refused";
}

void DiffCommand::declare(console::OptionTable& table) {
    table.files(firstFiles_,
                "Files of the first data set, then -- and those of the second; two files alone are "
                "one of each",
                "FILE... -- FILE...");
    table.list(secondOption, secondFiles_, "FILE", "").hidden();
    data_.declareOptions(table);
    selection_.declareWithoutBlank(table);
    table
        .number("--tolerance", tolerance_.absolute, "NUMBER",
                "Values are the same up to this difference (default: 0)")
        .check(notNegative);
    table
        .number("--relative", tolerance_.relative, "NUMBER",
                "Values are the same up to this difference, divided by the greater of both "
                "(default: 0)")
        .check(notNegative);
    table.flag("--json", json_, "Write all as JSON, in the schema plot3d.diff/1");
    table.number("--threads", threads_, "COUNT", "Cores to work on; all of them unless you say")
        .check(threadCount);
}

void DiffCommand::takeApart(std::vector<std::string>& arguments) {
    const auto found = std::find(arguments.begin(), arguments.end(), "--");
    if (found == arguments.end())
        return;
    if (std::find(found + 1, arguments.end(), "--") != arguments.end())
        throw Error(ErrorKind::Usage, "two data sets are compared, so that -- comes once");
    auto word = arguments.erase(found);
    for (; word != arguments.end(); ++word) {
        if (!isOption(*word))
            *word = std::string(secondOption) + "=" + *word;
        else if (takesNextWord(*word) && word + 1 != arguments.end())
            ++word;
    }
}

void DiffCommand::splitTwoFiles() {
    if (secondFiles_.empty() && firstFiles_.size() == 2) {
        secondFiles_ = {firstFiles_.back()};
        firstFiles_.pop_back();
    }
    if (firstFiles_.empty() || secondFiles_.empty())
        throw Error(ErrorKind::Usage,
                    "two data sets are needed, with -- between their files: plot3d diff FILE... "
                    "-- FILE...");
}

DiffSelection_s DiffCommand::selectionIn(const DataSet& first) const {
    return {selection_.variables(first), selection_.selectedZones(first),
            selection_.isEverything()};
}

/// Both need their grids, which is more than the error of one of them tells.
DataSet DiffCommand::opened(const std::vector<std::string>& files,
                            const Surroundings_s& surroundings) const {
    try {
        return data_.open(files, surroundings);
    } catch (const Error& error) {
        if (error.kind() != ErrorKind::Refused || std::any_of(files.begin(), files.end(), isGrid))
            throw;
        std::vector<std::string> words = {"plot3d", "diff"};
        for (const auto* list : {&firstFiles_, &secondFiles_}) {
            const std::vector<std::string> named = withGrid(*list);
            words.insert(words.end(), named.begin(), named.end());
            if (list == &firstFiles_)
                words.emplace_back("--");
        }
        ErrorFacts facts = error.facts();
        facts.next = shellLine(words);
        throw Error(error.kind(), error.message(), std::move(facts));
    }
}

int DiffCommand::run(const Surroundings_s& surroundings) {
    splitTwoFiles();
    const DataSet first = opened(filesNamed(firstFiles_, surroundings.in), surroundings);
    const DataSet second = opened(filesNamed(secondFiles_, surroundings.in), surroundings);
    const DiffPlan_s plan = planOf(first, second, selectionIn(first), tolerance_);
    ProgressWatch progress(surroundings);
    const auto found = compare(
        analysis::DataSetFields(first), analysis::DataSetFields(second), plan.pairs, tolerance_,
        threads_ > 0 ? threads_ : analysis::coreCount(),
        {[&](double fraction) { progress.show(fraction, "Comparing values"); }, surroundings.stop});
    progress.clear();
    const DiffReport_s report = {plan, found, tolerance_, first.zones().size() > 1};
    if (json_)
        writeJson(report, surroundings.out);
    else
        printTables(report, surroundings);
    tellUnread(report, surroundings);
    if (report.isUnreadable())
        return ExitCode_Unreadable;
    return report.isSame() ? ExitCode_Done : ExitCode_Failed;
}

} // namespace plot3d::program
