#include "info/WhyTable.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "analysis/findings/InfoWords.h"
#include "console/TextGrid.h"

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
           a.relaxed == b.relaxed && isSame(*one.misfit, *other.misfit);
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

/// Whether the reading is the one that is told of the file, even if it does not fit.
bool isTold(const Candidate& candidate, const FileInfo& info) {
    return candidate.kind == info.kind && candidate.layout == info.layout &&
           candidate.style == info.style && candidate.multiGrid == info.multiGrid &&
           candidate.iBlank == info.iBlank && candidate.precision == info.precision &&
           candidate.byteOrder == info.byteOrder;
}

/// Where the first misfit is: the further behind, the nearer the reading is to the file.
std::int64_t reachOf(const Trial& trial, const FileInfo& info) {
    if (!trial.misfit || isTold(trial.candidate, info))
        return std::numeric_limits<std::int64_t>::max();
    return trial.misfit->byte.value_or(trial.misfit->line.value_or(0));
}

/// What is shown of the rows of one kind.
struct KindRows_s {
    FileKind kind = FileKind::Grid;
    std::vector<Row_s> rows; // those shown, in the order of the trials
    std::size_t readingsLeftOut = 0;
};

std::size_t readingsOf(const Row_s& row) {
    return row.last - row.first + 1;
}

std::vector<KindRows_s> rowsByKind(const std::vector<Row_s>& rows,
                                   const std::vector<Trial>& trials) {
    std::vector<KindRows_s> kinds;
    for (const Row_s& row : rows) {
        const FileKind kind = trials[row.first].candidate.kind;
        auto of = std::find_if(kinds.begin(), kinds.end(),
                               [kind](const KindRows_s& each) { return each.kind == kind; });
        if (of == kinds.end())
            of = kinds.insert(kinds.end(), {kind, {}, 0});
        of->rows.push_back(row);
    }
    return kinds;
}

/// Leaves the rows of a long list that reach furthest.
void shorten(KindRows_s& kind, const FileInfo& info) {
    const std::vector<Trial>& trials = info.trials;
    constexpr std::size_t mostShown = 8;
    constexpr std::size_t shownOfMore = 5;
    if (kind.rows.size() <= mostShown)
        return;
    const auto isNearer = [&](const Row_s& one, const Row_s& other) {
        return reachOf(trials[one.first], info) > reachOf(trials[other.first], info);
    };
    std::stable_sort(kind.rows.begin(), kind.rows.end(), isNearer);
    while (kind.rows.size() > shownOfMore && trials[kind.rows.back().first].misfit) {
        kind.readingsLeftOut += readingsOf(kind.rows.back());
        kind.rows.pop_back();
    }
    std::sort(kind.rows.begin(), kind.rows.end(),
              [](const Row_s& one, const Row_s& other) { return one.first < other.first; });
}

std::string numberText(const Row_s& row) {
    return row.first == row.last ? std::to_string(row.first + 1)
                                 : fmt::format("{}-{}", row.first + 1, row.last + 1);
}

/// "solution Classic, 3-D whole, single, 32-bit big".
std::string readingText(const Row_s& row, const Candidate& candidate, const FileInfo& info) {
    std::string text = analysis::wordOf(candidate.kind);
    if (candidate.style && candidate.kind == FileKind::Solution)
        text += fmt::format(" {}", analysis::wordOf(*candidate.style));
    text += fmt::format(", {}, {}", analysis::captionOf(candidate.layout),
                        candidate.multiGrid ? "multi-grid" : "single grid");
    if (row.hasBothBlanks)
        text += ", any I-blank";
    else if (candidate.iBlank)
        text += ", I-blank";
    if (info.encoding != Encoding::Text)
        text +=
            row.hasBothPrecisions ? ", any reals" : fmt::format(", {}-bit", candidate.precision);
    if (candidate.byteOrder && info.encoding == Encoding::Binary) // of records it is known ahead
        text += fmt::format(", {}-endian", analysis::wordOf(*candidate.byteOrder));
    if (candidate.relaxed)
        text += ", longer records allowed";
    return text;
}

} // namespace

void printWhy(const FileInfo& info, analysis::Lists_e lists, const Surroundings_s& surroundings) {
    if (info.trials.empty())
        return;
    const bool isWhole = lists == analysis::Lists_e::Whole;
    std::vector<KindRows_s> kinds =
        rowsByKind(isWhole ? allRowsOf(info.trials) : shortRowsOf(info.trials), info.trials);
    Grid table({{"tried", Grid::Align_e::Right},
                {"reading", Grid::Align_e::Left, Grid::Fit_e::Wrap},
                {"first misfit", Grid::Align_e::Left, Grid::Fit_e::Wrap}});
    bool isTaken = false;
    for (KindRows_s& kind : kinds) {
        if (!isWhole)
            shorten(kind, info);
        for (const Row_s& row : kind.rows) {
            const Trial& trial = info.trials[row.first];
            const char* const fits = isTaken ? "none: fits, too" : "none: fits";
            table.addRow({numberText(row), readingText(row, trial.candidate, info),
                          trial.misfit ? analysis::misfitText(*trial.misfit) : fits});
            isTaken = isTaken || !trial.misfit;
        }
        if (kind.readingsLeftOut > 0)
            table.addRow({"...",
                          fmt::format("{} more as a {} file", kind.readingsLeftOut,
                                      analysis::wordOf(kind.kind)),
                          "nearer to the file's beginning; --all shows them"});
    }
    surroundings.out << '\n';
    table.print(surroundings.out, surroundings.outColumns, {surroundings.colour});
}

} // namespace plot3d::program
