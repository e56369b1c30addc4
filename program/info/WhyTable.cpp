#include "info/WhyTable.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "console/TextGrid.h"
#include "console/Words.h"
#include "info/InfoWords.h"

namespace plot3d::program {
namespace {

using Grid = console::TextGrid;

/// Trials that follow one another and fail alike, whatever I-blank and precision.
struct Row_s {
    std::size_t first = 0; // indices from 0
    std::size_t last = 0;
    bool hasBothBlanks = false;
    bool hasBothPrecisions = false;
};

bool isSame(const Misfit& one, const Misfit& other) {
    return one.what == other.what && one.byte == other.byte && one.line == other.line &&
           one.column == other.column && one.expected == other.expected && one.found == other.found;
}

bool failAlike(const Trial& one, const Trial& other) {
    const Candidate& a = one.candidate;
    const Candidate& b = other.candidate;
    return one.misfit && other.misfit && a.kind == b.kind && a.layout == b.layout &&
           a.style == b.style && a.multiGrid == b.multiGrid && a.byteOrder == b.byteOrder &&
           isSame(*one.misfit, *other.misfit);
}

/// Nothing of the file was looked at: a combination that there is not.
bool isImpossible(const Trial& trial) {
    return trial.misfit && !trial.misfit->byte && !trial.misfit->line &&
           trial.misfit->expected.empty() && trial.misfit->found.empty();
}

void join(Row_s& row, const std::vector<Trial>& trials, std::size_t index) {
    const Candidate& first = trials[row.first].candidate;
    const Candidate& candidate = trials[index].candidate;
    row.last = index;
    row.hasBothBlanks = row.hasBothBlanks || first.iBlank != candidate.iBlank;
    row.hasBothPrecisions = row.hasBothPrecisions || first.precision != candidate.precision;
}

std::vector<Row_s> shortRowsOf(const std::vector<Trial>& trials) {
    std::vector<Row_s> rows;
    for (std::size_t index = 0; index < trials.size(); ++index) {
        if (isImpossible(trials[index]))
            continue;
        if (!rows.empty() && failAlike(trials[rows.back().first], trials[index]))
            join(rows.back(), trials, index);
        else
            rows.push_back({index, index});
    }
    return rows;
}

std::vector<Row_s> allRowsOf(const std::vector<Trial>& trials) {
    std::vector<Row_s> rows;
    for (std::size_t index = 0; index < trials.size(); ++index)
        rows.push_back({index, index});
    return rows;
}

std::string numberText(const Row_s& row) {
    return row.first == row.last ? std::to_string(row.first + 1)
                                 : fmt::format("{}-{}", row.first + 1, row.last + 1);
}

/// "solution Classic, 3-D whole, single, 32-bit big".
std::string readingText(const Row_s& row, const Candidate& candidate, const FileInfo& info) {
    std::string text = wordOf(candidate.kind);
    if (candidate.style && candidate.kind == FileKind::Solution)
        text += fmt::format(" {}", wordOf(*candidate.style));
    text += fmt::format(", {}, {}", captionOf(candidate.layout),
                        candidate.multiGrid ? "multi-grid" : "single grid");
    if (row.hasBothBlanks)
        text += ", any I-blank";
    else if (candidate.iBlank)
        text += ", I-blank";
    if (info.encoding != Encoding::Text)
        text +=
            row.hasBothPrecisions ? ", any reals" : fmt::format(", {}-bit", candidate.precision);
    if (candidate.byteOrder && info.encoding == Encoding::Binary) // of records it is known ahead
        text += fmt::format(", {}-endian", wordOf(*candidate.byteOrder));
    return text;
}

} // namespace

void printWhy(const FileInfo& info, Lists_e lists, const Surroundings_s& surroundings) {
    if (info.trials.empty())
        return;
    const std::vector<Row_s> rows =
        lists == Lists_e::Whole ? allRowsOf(info.trials) : shortRowsOf(info.trials);
    Grid table({{"tried", Grid::Align_e::Right},
                {"reading", Grid::Align_e::Left, Grid::Fit_e::Wrap},
                {"first misfit", Grid::Align_e::Left, Grid::Fit_e::Wrap}});
    bool isTaken = false;
    for (const Row_s& row : rows) {
        const Trial& trial = info.trials[row.first];
        const char* const fits = isTaken ? "none: fits, too" : "none: fits";
        table.addRow({numberText(row), readingText(row, trial.candidate, info),
                      trial.misfit ? misfitText(*trial.misfit) : fits});
        isTaken = isTaken || !trial.misfit;
    }
    surroundings.out << '\n';
    table.print(surroundings.out, surroundings.outColumns, {surroundings.colour});
    const auto leftOut = std::count_if(info.trials.begin(), info.trials.end(), isImpossible);
    if (lists == Lists_e::Shortened && leftOut > 0)
        surroundings.out << fmt::format("  left out: {} that no file can have; --all shows each "
                                        "reading by itself\n",
                                        console::counted(leftOut, "reading", "readings"));
}

} // namespace plot3d::program
