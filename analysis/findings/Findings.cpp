#include "analysis/findings/Findings.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <fmt/core.h>

#include "analysis/findings/InfoWords.h"
#include "console/Words.h"

namespace plot3d::analysis {
namespace {

using console::counted;

/// Grows by a line at a time.
class Sheet {
public:
    void line(const std::string& label, const std::string& text) {
        findings_.push_back({Finding_s::Kind_e::Fact, label, text, {}});
    }
    void problem(Finding_s::Kind_e kind, const std::string& label, const FileProblem& problem) {
        findings_.push_back({kind, label, misfitText(problem.misfit), problem.next});
    }
    std::vector<Finding_s> take() { return std::move(findings_); }

private:
    std::vector<Finding_s> findings_;
};

std::string kindText(const FileInfo& info) {
    if (!info.kind)
        return "no PLOT3D file that can be read";
    std::string text = fmt::format("{} file", wordOf(*info.kind));
    const bool isData = info.kind != FileKind::Name && info.kind != FileKind::Boundary;
    if (isData && !info.layout)
        return fmt::format("no {} that can be read", text);
    if (info.style && *info.kind == FileKind::Solution)
        text += fmt::format(", style {}", wordOf(*info.style));
    if (info.layout)
        text += fmt::format(", {}, {}", captionOf(*info.layout),
                            info.multiGrid ? "multi-grid" : "single grid");
    if (info.iBlank)
        text += ", with I-blank";
    return text;
}

std::string encodingText(const FileInfo& info) {
    std::string text;
    switch (*info.encoding) {
    case Encoding::Text:
        return "text";
    case Encoding::Binary:
        text = "plain binary";
        break;
    case Encoding::Fortran:
        text = "Fortran records";
        break;
    }
    if (info.markerBytes)
        text += fmt::format(", {}-byte markers", *info.markerBytes);
    if (info.byteOrder)
        text += fmt::format(", {}-endian", wordOf(*info.byteOrder));
    if (info.precision)
        text += fmt::format(", {}-bit reals", *info.precision);
    return text;
}

/// Entries that are alike and follow one another, told once.
struct Run_s {
    std::size_t first = 0; // index from 0
    std::size_t count = 0;
    std::string text;
};

std::vector<Run_s> runsOf(std::size_t count,
                          const std::function<std::string(std::size_t)>& textOf) {
    std::vector<Run_s> runs;
    for (std::size_t index = 0; index < count; ++index) {
        std::string text = textOf(index);
        if (runs.empty() || runs.back().text != text)
            runs.push_back({index, 0, std::move(text)});
        ++runs.back().count;
    }
    return runs;
}

std::string placeText(const Run_s& run, std::size_t width) {
    std::string text = std::to_string(run.first + 1);
    if (run.count > 1)
        text += "-" + std::to_string(run.first + run.count);
    return fmt::format("{:<{}}", text, width);
}

/// Numbered from 1, as users count grids.
void addRuns(Sheet& sheet, const std::string& label, const std::vector<Run_s>& runs,
             Lists_e lists) {
    constexpr std::size_t mostShown = 8;
    constexpr std::size_t shownOfMore = 5;
    const bool isCut = lists == Lists_e::Shortened && runs.size() > mostShown;
    const std::size_t shown = isCut ? shownOfMore : runs.size();
    std::size_t width = 0;
    for (std::size_t number = 0; number < shown; ++number)
        width = std::max(width, placeText(runs[number], 0).size());
    for (std::size_t number = 0; number < shown; ++number)
        sheet.line(number == 0 ? label : "",
                   placeText(runs[number], width) + "  " + runs[number].text);
    if (isCut)
        sheet.line("", fmt::format("... up to {}; --all shows them",
                                   console::grouped(static_cast<std::int64_t>(runs.back().first +
                                                                              runs.back().count))));
}

void addGrids(Sheet& sheet, const FileInfo& info, Lists_e lists) {
    if (info.grids.empty() || !info.layout)
        return;
    const Layout layout = *info.layout;
    const char* const many = layout == Layout::Unstructured ? "nodes" : "points";
    std::int64_t points = 0;
    for (const GridSize& size : info.grids)
        points += pointCount(size, layout);
    if (info.grids.size() == 1) {
        const std::string size = sizeText(info.grids.front(), layout);
        const bool tellsCount = layout == Layout::Unstructured || layout == Layout::OneD;
        sheet.line("grid", tellsCount
                               ? size + (layout == Layout::OneD ? " points" : "")
                               : fmt::format("{}, {}", size, counted(points, "point", many)));
        return;
    }
    const std::vector<Run_s> runs = runsOf(
        info.grids.size(), [&](std::size_t index) { return sizeText(info.grids[index], layout); });
    const std::string alike = runs.size() == 1 ? " of " + runs.front().text : "";
    sheet.line("grids", fmt::format("{}{}, {} in all", console::grouped(info.grids.size()), alike,
                                    counted(points, "point", many)));
    if (runs.size() > 1)
        addRuns(sheet, "", runs, lists);
}

void addScalars(Sheet& sheet, const FileInfo& info, Lists_e lists) {
    std::vector<Run_s> runs = runsOf(info.scalars.size(), [&info](std::size_t index) {
        return scalarsText(info.scalars[index]);
    });
    if (runs.size() == 1 && !runs.front().text.empty())
        sheet.line("scalars",
                   runs.front().text + (info.scalars.size() > 1 ? ", of all grids" : ""));
    else if (runs.size() > 1)
        addRuns(sheet, "scalars", runs, lists);
}

void addNames(Sheet& sheet, const FileInfo& info, Lists_e lists) {
    constexpr std::size_t mostShown = 12;
    if (info.names.empty())
        return;
    const bool isCut = lists == Lists_e::Shortened && info.names.size() > mostShown;
    std::string text = console::grouped(info.names.size()) + ":";
    for (std::size_t number = 0; number < (isCut ? mostShown : info.names.size()); ++number)
        text += (number == 0 ? " " : ", ") + info.names[number];
    sheet.line(info.kind == FileKind::Boundary ? "boundaries" : "names",
               text + (isCut ? ", ...; --all shows them" : ""));
}

void addOtherKinds(Sheet& sheet, const FileInfo& info) {
    std::string text;
    for (const FileKind kind : info.alsoFits)
        text += fmt::format("{}a {} file (--as {})", text.empty() ? "" : ", or ", wordOf(kind),
                            wordOf(kind));
    if (!text.empty())
        sheet.line("also fits", text);
}

} // namespace

std::vector<Finding_s> findingsOf(const FileInfo& info, Lists_e lists) {
    Sheet sheet;
    sheet.line("kind", kindText(info));
    if (info.encoding)
        sheet.line("encoding", encodingText(info));
    addGrids(sheet, info, lists);
    if (info.kind == FileKind::Solution || info.kind == FileKind::Function)
        sheet.line("variables", console::grouped(info.variables));
    addScalars(sheet, info, lists);
    addNames(sheet, info, lists);
    if (info.encoding)
        sheet.line("bytes", accountText(info.bytes));
    addOtherKinds(sheet, info);
    for (const FileProblem& warning : info.warnings)
        sheet.problem(Finding_s::Kind_e::Warning, "warning", warning);
    if (info.problem)
        sheet.problem(Finding_s::Kind_e::Problem, "problem", *info.problem);
    return sheet.take();
}

} // namespace plot3d::analysis
