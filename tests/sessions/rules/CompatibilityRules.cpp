// Whether a load may go onto the data set that is there. docs/append-and-replace.md
#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

void require(bool holds, const char* why) {
    if (!holds)
        throw Refusal(why);
}

/// Coordinates that the plot offers.
std::int32_t coordinatesOfPlot(std::int32_t plotType) {
    switch (plotType) {
    case plot3D:
        return 3;
    case plot2D:
    case plotXY:
        return 2;
    default:
        throw Refusal("a plot type that takes no coordinates");
    }
}

/// Whether the variable behind the coordinates is I-blank: integers, in all zones behind the first
/// that has them.
bool findIBlank(const DataSet_s& dataSet, std::int32_t coordinates) {
    bool isFound = false;
    for (const Zone_s& zone : dataSet.zones) {
        if (dataSet.variableCount() <= coordinates)
            return false;
        const bool isInteger =
            zone.fields[static_cast<std::size_t>(coordinates)].type == integerType;
        require(isInteger || !isFound, "zones without I-blank behind one that has it");
        isFound = isInteger;
    }
    return isFound;
}

/// The last zones of the data set are compared, by the sizes of as many of the file's first grids.
void compareSizes(const LoadRun_s& load, const DataSet_s& dataSet) {
    const FileModel_s& file = load.sets.front().leading();
    const Layout_e layout = layoutAsRead(file, load);
    for (std::int32_t selected = 0; selected < load.zonesPerStep; ++selected) {
        const Zone_s& zone =
            dataSet.zones[static_cast<std::size_t>(load.oldZones - load.zonesPerStep + selected)];
        if (layout == Layout_e::Unstructured) {
            require(zone.type == 0 || zone.i == file.grids[static_cast<std::size_t>(selected)].i,
                    "unlike numbers of nodes");
            continue;
        }
        const Selection_s points = selectionOf(file, selected, load);
        require(zone.i == static_cast<std::int64_t>(points.i.size()) &&
                    zone.j == static_cast<std::int64_t>(points.j.size()) &&
                    zone.k == static_cast<std::int64_t>(points.k.size()),
                "zones of unlike sizes");
    }
}

} // namespace

void checkCompatibility(LoadRun_s& load, const ExpectedHost_s& host) {
    const bool hasSolutions = !load.solutions.empty();
    if (!load.options.append && !load.grids.empty())
        return; // a data set of its own
    require(host.dataSet.has_value(), "no data set");
    const DataSet_s& dataSet = *host.dataSet;
    load.oldZones = dataSet.zoneCount();
    load.oldVariables = dataSet.variableCount();
    const std::int32_t offered = coordinatesOfPlot(host.plotType);
    require(load.oldVariables >= offered, "not enough coordinates");
    const bool isIBlankThere = findIBlank(dataSet, offered);
    if (load.grids.empty() && isIBlankThere)
        load.hasIBlank = true;
    const std::int32_t needed = load.coordinates + load.solutionVariables + load.functionVariables +
                                (load.hasIBlank ? 1 : 0);
    if (load.options.append) {
        const bool isExempt = load.layout == Layout_e::OneD && hasSolutions;
        require(offered == load.coordinates || isExempt, "another number of coordinates");
        if (!load.grids.empty()) {
            require(!hasSolutions || needed <= load.oldVariables, "too few variables are there");
            return;
        }
    }
    if (!hasSolutions)
        return;
    require(load.oldZones >= load.zonesPerStep, "fewer zones than grids");
    require(load.oldVariables == needed, "another number of variables");
    compareSizes(load, dataSet);
}

} // namespace quorvia::sessions
