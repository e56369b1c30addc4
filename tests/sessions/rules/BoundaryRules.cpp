// Zones of the boundary file, behind all others of the load. docs/boundary-files.md
#include <fmt/core.h>

#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

Selection_s pointsOf(const Boundary_s& boundary, const LoadRun_s& load) {
    Selection_s points;
    const auto& ranges = load.options.ranges;
    // The skips of the load count here too, its starts and ends do not.
    points.i = indicesOf({boundary.first.i, boundary.last.i, ranges[0].skip}, boundary.last.i);
    points.j = indicesOf({boundary.first.j, boundary.last.j, ranges[1].skip}, boundary.last.j);
    points.k = indicesOf({boundary.first.k, boundary.last.k, ranges[2].skip}, boundary.last.k);
    return points;
}

std::shared_ptr<const Contents_s> fieldOf(const FileModel_s& file, std::int32_t variable,
                                          const Boundary_s& boundary, const LoadRun_s& load) {
    auto contents = std::make_shared<Contents_s>();
    contents->isDeferred = true;
    const Selection_s points = pointsOf(boundary, load);
    const std::int32_t grid = boundary.gridNumber - 1;
    const bool isIBlank = file.kind == FileKind_e::Grid && variable == file.variableCount();
    for (const std::int32_t k : points.k)
        for (const std::int32_t j : points.j)
            for (const std::int32_t i : points.i)
                contents->values.push_back(isIBlank ? iBlankAt(file, grid, i, j, k)
                                                    : valueAt(file, grid, variable, i, j, k));
    return contents;
}

std::string conditionOf(const std::string& name) {
    if (name == "inlet")
        return "Inflow";
    if (name == "supersonic_outflow")
        return "Extrapolated";
    return "Wall"; // known or not
}

Zone_s makeBoundaryZone(const Boundary_s& boundary, const LoadRun_s& load, ExpectedHost_s& host,
                        const Zone_s* parent) {
    Zone_s zone;
    zone.id = ++host.lastId;
    zone.name = fmt::format("{}: I[{}-{}],J[{}-{}],K[{}-{}]", boundary.name, boundary.first.i,
                            boundary.last.i, boundary.first.j, boundary.last.j, boundary.first.k,
                            boundary.last.k);
    const Selection_s points = pointsOf(boundary, load);
    zone.i = static_cast<std::int64_t>(points.i.size());
    zone.j = static_cast<std::int64_t>(points.j.size());
    zone.k = static_cast<std::int64_t>(points.k.size());
    zone.boundaryCondition = conditionOf(boundary.name);
    zone.parentId = parent != nullptr ? parent->id : 0;
    // Types are those of the parent, or of the zone before.
    for (const Field_s& field : (parent != nullptr ? *parent : host.dataSet->zones.back()).fields)
        zone.fields.push_back({field.type, nullptr});
    return zone;
}

void setFields(Zone_s& zone, const FileModel_s& file, std::int32_t count,
               std::int32_t firstVariable, const Boundary_s& boundary, const LoadRun_s& load) {
    for (std::int32_t variable = 0; variable < count; ++variable)
        zone.fields[static_cast<std::size_t>(firstVariable - 1 + variable)].contents =
            fieldOf(file, variable, boundary, load);
}

bool mayShare(const Zone_s& from, const Zone_s& to, std::int32_t variables) {
    for (std::size_t variable = 0; variable < static_cast<std::size_t>(variables); ++variable)
        if (from.fields[variable].type != to.fields[variable].type ||
            from.pointCount() != to.pointCount())
            return false;
    return true;
}

} // namespace

void addBoundaryZones(LoadRun_s& load, ExpectedHost_s& host,
                      const std::vector<std::int32_t>& parents) {
    DataSet_s& dataSet = *host.dataSet;
    const FileModel_s& gridFile = *load.sets.front().grid;
    const std::int32_t gridVariables = gridFile.variableCount() + (gridFile.hasIBlank ? 1 : 0);
    const std::int32_t baseStrand = load.givesStrands ? dataSet.highestStrand() : 0;
    const std::size_t base = dataSet.zones.size();
    const std::size_t steps = load.givesStrands ? load.sets.size() : 1;
    for (std::size_t step = 0; step < steps; ++step) {
        const FileSet_s& set = load.sets[step];
        std::int32_t strand = load.givesStrands && load.options.addsToStrands
                                  ? dataSet.zones.back().strand
                                  : baseStrand;
        for (std::size_t n = 0; n < gridFile.boundaries.size(); ++n) {
            const Boundary_s& boundary = gridFile.boundaries[n];
            const std::int32_t grid =
                boundary.gridNumber +
                (load.givesStrands ? static_cast<std::int32_t>(step) * gridFile.gridCount() : 0);
            const Zone_s* parent = nullptr;
            for (std::size_t place = parents.size(); place > 0; --place)
                if (parents[place - 1] == grid)
                    parent = &dataSet.zones[place - 1];
            Zone_s zone = makeBoundaryZone(boundary, load, host, parent);
            if (load.givesStrands) {
                zone.strand = ++strand;
                zone.time = timeOf(set, load);
            }
            if (step > 0 && host.isSharingAllowed &&
                mayShare(dataSet.zones[base + n], zone, gridVariables))
                std::copy_n(dataSet.zones[base + n].fields.begin(), gridVariables,
                            zone.fields.begin());
            else
                setFields(zone, gridFile, gridVariables, 1, boundary, load);
            if (set.solution != nullptr)
                setFields(zone, *set.solution, set.solution->variableCount(), gridVariables + 1,
                          boundary, load);
            else
                for (const FileModel_s* file : set.functions) // each over the one before
                    setFields(zone, *file, file->functionCount, gridVariables + 1, boundary, load);
            dataSet.zones.push_back(std::move(zone));
        }
    }
}

} // namespace quorvia::sessions
