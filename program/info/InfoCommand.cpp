#include "info/InfoCommand.h"

#include <algorithm>
#include <ostream>
#include <utility>

#include <fmt/core.h>
#include <plot3d/Error.h>
#include <plot3d/FileNames.h>

#include "console/JsonStream.h"
#include "console/options/OptionTable.h"
#include "info/InfoJson.h"
#include "info/Summary.h"
#include "info/WhyTable.h"
#include "manners/FileList.h"
#include "manners/ProgressWatch.h"
#include "manners/Talk.h"

namespace plot3d::program {

InfoCommand::InfoCommand() : InfoCommand(inspect) {}

InfoCommand::InfoCommand(Inspect inspect) : inspect_(std::move(inspect)) {}

const char* InfoCommand::purpose() const {
    return "Tell what PLOT3D files are, and what is wrong with those that can't be read";
}

const char* InfoCommand::examples() const {
    return "  plot3d info wing.x wing.q\n"
           "      what the two files are, and whether they are whole\n"
           "  plot3d info --why --as grid strange.bin\n"
           "      every reading as a grid that was tried, and what did not fit\n"
           "  find . -name '*.q' | plot3d info --json -\n"
           "      all solutions of a folder, for a program\n";
}

const char* InfoCommand::failureMeans() const {
    return "a file is no whole PLOT3D file";
}

void InfoCommand::declare(console::OptionTable& table) {
    table
        .files(files_,
               "Files of any kind: grid, solution, function, boundary or name file; - reads their "
               "names from standard input, one to a line. They come in the order of their "
               "names, 2 before 10")
        .required();
    table.flag("--why", why_,
               "Show every reading that was tried, in its order, with the first thing that did "
               "not fit, and what else the bytes could mean");
    table.text("--as", as_, "grid|solution|function",
               "Take the files for this kind, whatever their names say");
    table.flag("--all", all_, "Show long lists whole");
    table.flag("--json", json_, "Write all as JSON, in the schema plot3d.info/1");
}

InspectOptions InfoCommand::options() const {
    InspectOptions options;
    options.allReadings = why_;
    options.trials = why_ || json_;
    if (as_ == "grid")
        options.as = FileKind::Grid;
    if (as_ == "solution")
        options.as = FileKind::Solution;
    if (as_ == "function")
        options.as = FileKind::Function;
    return options;
}

/// Gives each file to `show` and counts those that are not ok.
std::size_t InfoCommand::inspectAll(const std::vector<std::string>& files,
                                    const Surroundings_s& surroundings,
                                    const std::function<void(const FileInfo&)>& show) const {
    ProgressWatch progress(surroundings);
    const InspectOptions options = this->options();
    const Watch watch = progress.watch();
    const auto count = static_cast<double>(files.size());
    std::size_t badCount = 0;
    for (std::size_t index = 0; index < files.size(); ++index) {
        throwIfStopped(surroundings.stop);
        const auto number = static_cast<double>(index);
        progress.setPart(number / count, (number + 1) / count);
        const FileInfo info = inspect_(files[index], options, watch);
        progress.clear();
        show(info);
        badCount += info.ok ? 0 : 1;
    }
    return badCount;
}

std::size_t InfoCommand::showText(const std::vector<std::string>& files,
                                  const Surroundings_s& surroundings) const {
    const analysis::Lists_e lists = all_ ? analysis::Lists_e::Whole : analysis::Lists_e::Shortened;
    bool isFirst = true;
    return inspectAll(files, surroundings, [&](const FileInfo& info) {
        surroundings.out << (isFirst ? "" : "\n");
        isFirst = false;
        printSummary(info, lists, surroundings);
        if (why_)
            printWhy(info, lists, surroundings);
    });
}

std::size_t InfoCommand::showJson(const std::vector<std::string>& files,
                                  const Surroundings_s& surroundings) const {
    console::JsonStream json(surroundings.out);
    json.beginObject();
    json.key("schema");
    json.value("plot3d.info/1");
    json.key("files");
    json.beginList();
    const auto end = [&json] {
        json.endList();
        json.endObject();
        json.finish();
    };
    try {
        const std::size_t badCount = inspectAll(
            files, surroundings, [&json](const FileInfo& info) { writeFile(json, info); });
        end();
        return badCount;
    } catch (const Error&) { // what is known so far is as good as the whole would be
        end();
        throw;
    }
}

int InfoCommand::run(const Surroundings_s& surroundings) {
    std::vector<std::string> files = filesNamed(files_, surroundings.in);
    std::stable_sort(files.begin(), files.end(), naturalLess);
    const std::size_t badCount =
        json_ ? showJson(files, surroundings) : showText(files, surroundings);
    surroundings.out.flush(); // what follows belongs below it
    if (badCount > 0 && files.size() > 1)
        tellNote(surroundings,
                 fmt::format("{} of {} files can't be read as they are", badCount, files.size()));
    return badCount == 0 ? ExitCode_Done : ExitCode_Failed;
}

} // namespace plot3d::program
