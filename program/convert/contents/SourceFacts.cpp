#include "convert/contents/SourceFacts.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "convert/contents/SolutionScalars.h"
#include "convert/contents/StyleForm.h"

namespace plot3d::program {

namespace {

FileInfo inspectAs(FileKind kind, const std::string& file, const Watch& watch) {
    InspectOptions options;
    options.as = kind;
    return inspect(file, options, watch);
}

FileForm_s formOf(const FileInfo& info) {
    FileForm_s form;
    form.encoding = info.encoding.value_or(form.encoding);
    form.markerBytes = info.markerBytes.value_or(form.markerBytes);
    form.order = info.byteOrder.value_or(form.order);
    form.layout = info.layout.value_or(form.layout);
    form.multiGrid = info.multiGrid;
    return form;
}

FileForm_s firstForm(const DataSet& data, const Watch& watch) {
    const FileLists& files = data.files();
    if (!files.grid.empty())
        return formOf(inspectAs(FileKind::Grid, files.grid.front(), watch));
    if (!files.solution.empty())
        return formOf(inspectAs(FileKind::Solution, files.solution.front(), watch));
    if (!files.function.empty())
        return formOf(inspectAs(FileKind::Function, files.function.front(), watch));
    return {};
}

/// The grid of a file that a zone was made of, from 1: zones are called "wing.q:2".
std::optional<std::size_t> gridNumberOf(const Zone& zone) {
    const std::size_t colon = zone.name.rfind(':');
    if (zone.parent || colon == std::string::npos)
        return std::nullopt;
    std::size_t number = 0;
    const char* const end = zone.name.data() + zone.name.size();
    const auto [stop, problem] = std::from_chars(zone.name.data() + colon + 1, end, number);
    if (problem != std::errc() || stop != end || number == 0)
        return std::nullopt;
    return number;
}

/// The zones of one file come one after the other, with rising numbers of grids.
std::vector<std::size_t> zoneFilesOf(const std::vector<Zone>& zones) {
    std::vector<std::size_t> files;
    std::size_t file = 0;
    std::size_t lastNumber = 0;
    for (const Zone& zone : zones) {
        const std::size_t number = gridNumberOf(zone).value_or(lastNumber + 1);
        if (number <= lastNumber)
            ++file;
        lastNumber = number;
        files.push_back(file);
    }
    return files;
}

void addScalars(const DataSet& data, const Watch& watch, SourceFacts_s& facts) {
    SolutionScalars_s scalars;
    std::optional<std::size_t> scalarsFile; // that they were read from
    facts.zoneScalars.resize(data.zones().size());
    for (std::size_t zone = 0; zone < data.zones().size(); ++zone) {
        const std::optional<std::size_t> number = gridNumberOf(data.zones()[zone]);
        const std::size_t file = facts.zoneFiles[zone];
        if (!number || file >= data.files().solution.size())
            continue;
        if (file != scalarsFile) {
            const FileInfo info = inspectAs(FileKind::Solution, data.files().solution[file], watch);
            scalars = info.ok ? readSolutionScalars(info, watch.stop) : SolutionScalars_s();
            scalarsFile = file;
            facts.speciesCount = scalars.speciesCount;
        }
        if (*number <= scalars.ofGrid.size())
            facts.zoneScalars[zone] = scalars.ofGrid[*number - 1];
    }
}

/// Species have names of their own, as many as the header says, whether or not they have values.
int namedVariables(const FileInfo& info, int speciesCount) {
    constexpr int aheadOfSpecies = 6;
    const bool hasSpecies = styleForm(info.style.value_or(Style::Classic)).hasSpecies &&
                            info.variables >= aheadOfSpecies;
    return hasSpecies ? std::max(info.variables, aheadOfSpecies + speciesCount) : info.variables;
}

} // namespace

SourceFacts_s readSourceFacts(const DataSet& data, const Watch& watch) {
    SourceFacts_s facts;
    facts.form = firstForm(data, watch);
    facts.zoneFiles = zoneFilesOf(data.zones());
    const FileLists& files = data.files();
    if (!files.solution.empty()) {
        const FileInfo info = inspectAs(FileKind::Solution, files.solution.front(), watch);
        facts.style = info.style.value_or(Style::Classic);
        addScalars(data, watch, facts);
        facts.solutionVariables = namedVariables(info, facts.speciesCount);
    }
    for (const std::string& file : files.function)
        facts.functionVariables.push_back(inspectAs(FileKind::Function, file, watch).variables);
    return facts;
}

} // namespace plot3d::program
