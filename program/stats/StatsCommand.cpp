#include "stats/StatsCommand.h"

#include <algorithm>
#include <cctype>

#include <fmt/core.h>

#include "analysis/fields/DataSetFields.h"
#include "analysis/fields/IBlank.h"
#include "console/options/OptionTable.h"
#include "manners/ProgressWatch.h"
#include "manners/Talk.h"
#include "selection/NumberChecks.h"
#include "selection/NumberList.h"
#include "stats/StatsReport.h"

namespace plot3d::program {
namespace {

bool isCount(const std::string& word) {
    return !word.empty() && std::all_of(word.begin(), word.end(), [](unsigned char letter) {
        return std::isdigit(letter) != 0;
    });
}

std::string binCount(const std::string& text) {
    return wholeNumberBetween(text, 1, 100000);
}

std::vector<double> percentilesIn(const std::string& text) {
    std::vector<double> percentiles;
    if (text.empty())
        return percentiles;
    for (const std::string_view part : partsOf(text, ',')) {
        const auto percentile = realNumber(part);
        if (!percentile || *percentile < 0 || *percentile > 100)
            throw Error(ErrorKind::Usage,
                        fmt::format("\"{}\" is no percentile: they lie between 0 and 100", part));
        percentiles.push_back(*percentile);
    }
    return percentiles;
}

/// Tells what could not be read, each field once. Gives the exit code.
int tellUnread(const StatsReport_s& report, const Surroundings_s& surroundings) {
    int code = ExitCode_Done;
    for (const analysis::VariableStatistics_s& variable : report.variables) {
        for (const analysis::ZoneStatistics_s& zone : variable.zones) {
            if (!zone.error)
                continue;
            const std::string what = fmt::format(
                "{} of zone {} can't be read: ", report.nameOf(variable), zone.zone + 1);
            tellError(surroundings.err,
                      Error(zone.error->kind(), what + zone.error->message(), zone.error->facts()));
            code = ExitCode_Unreadable;
        }
    }
    return code;
}

} // namespace

const char* StatsCommand::purpose() const {
    return "Tell minimum, maximum, mean and more of the values of variables";
}

const char* StatsCommand::examples() const {
    return "  plot3d stats wing.x wing.q\n"
           "      every variable, over all zones\n"
           "  plot3d stats wing.x wing.q --variable 'RHO*' --zone 1,3-5 --k 1 --per-zone\n"
           "      density and momentum at the wall K = 1 of four zones\n"
           "  plot3d stats wing.x step*.q --variable E --point 40,12,1 --json\n"
           "      the energy at one point through time, for a program\n"
           "  plot3d stats wing.x wing.f --percentiles 5,50,95 --histogram 40\n"
           "      how the values of a function file are spread\n";
}

void StatsCommand::declare(console::OptionTable& table) {
    files_.declare(table);
    selection_.declare(table);
    table.text("--percentiles", percentiles_, "LIST", "Percentiles, such as 5,50,95")
        .check(parsedBy(percentilesIn));
    table.number("--histogram", bins_, "[BINS]", "Counts in bins of equal width, 20 unless you say")
        .check(binCount);
    table.flag("--hash", hash_,
               "CRC-32 of the values of each field, as little-endian bytes, I fastest");
    table.flag("--per-zone", perZone_, "Tell each zone in the tables, too");
    table.flag("--json", json_, "Write all as JSON, in the schema plot3d.stats/1");
    table.number("--threads", threads_, "COUNT", "Cores to work on; all of them unless you say")
        .check(threadCount);
}

void StatsCommand::takeApart(std::vector<std::string>& arguments) {
    const auto found = std::find(arguments.begin(), arguments.end(), "--histogram");
    if (found != arguments.end() && (found + 1 == arguments.end() || !isCount(*(found + 1))))
        *found += "=20";
}

analysis::StatsSelection_s StatsCommand::selectionIn(const DataSet& data) const {
    analysis::StatsSelection_s selection = {
        selection_.variables(data), selection_.selectedZones(data), {}};
    if (selection_.skipsBlanked())
        selection.leavesOutBy = analysis::iBlankVariable(data);
    return selection;
}

analysis::StatsWishes_s StatsCommand::wishes() const {
    return {hash_ ? analysis::Checksum_e::Yes : analysis::Checksum_e::No,
            percentilesIn(percentiles_), static_cast<std::size_t>(bins_),
            threads_ > 0 ? threads_ : analysis::coreCount()};
}

int StatsCommand::run(const Surroundings_s& surroundings) {
    const analysis::StatsWishes_s wished = wishes();
    const DataSet data = files_.open(surroundings);
    const analysis::StatsSelection_s selection = selectionIn(data);
    ProgressWatch progress(surroundings);
    const auto variables = analysis::statisticsOf(
        analysis::DataSetFields(data), selection, wished,
        {[&](double fraction) { progress.show(fraction, "Reading values"); }, surroundings.stop});
    progress.clear();
    const StatsReport_s report = {data, selection, wished, variables, perZone_};
    if (json_)
        writeJson(report, surroundings.out);
    else
        printTables(report, surroundings);
    return tellUnread(report, surroundings);
}

} // namespace plot3d::program
