#include "open/ContentOfFrame.h"

#include <limits>

#include <plot3d/Error.h>

#include "open/FieldTaker.h"
#include "open/TimeSteps.h"

namespace plot3dlib {

namespace {

namespace host = quorvia::host;

plot3d::ZoneKind kindOf(const host::Zone_s& zone) {
    constexpr std::int32_t quadrilaterals = 2; // in the numbering of the host's zone types
    constexpr std::int32_t bricks = 4;
    switch (zone.type) {
    case QuorZoneType_Triangles:
        return plot3d::ZoneKind::Triangles;
    case quadrilaterals:
        return plot3d::ZoneKind::Quadrilaterals;
    case QuorZoneType_Tetrahedra:
        return plot3d::ZoneKind::Tetrahedra;
    case bricks:
        return plot3d::ZoneKind::Bricks;
    default:
        return plot3d::ZoneKind::Ordered;
    }
}

plot3d::Zone zoneOf(const host::DataSet& data, const host::Zone_s& source) {
    plot3d::Zone zone;
    zone.name = source.name;
    zone.kind = kindOf(source);
    zone.size = source.isOrdered() ? plot3d::Extent{source.i, source.j, source.k}
                                   : plot3d::Extent{source.i, 1, 1};
    zone.elementCount = source.isOrdered() ? 0 : source.j;
    zone.time = source.solutionTime;
    zone.strand = source.strandId;
    if (const std::int32_t parent = data.zoneNumber(source.parentZoneId); parent > 0)
        zone.parent = static_cast<std::size_t>(parent - 1);
    zone.auxiliaryData = source.auxData;
    return zone;
}

int dimensionsOf(std::int32_t plotType) {
    switch (plotType) {
    case QuorPlotType_XY:
    case QuorPlotType_Polar:
        return 1;
    case QuorPlotType_2D:
        return 2;
    default:
        return 3;
    }
}

void takeNodeMaps(const host::DataSet& data, Content_s& content) {
    for (const auto& zone : data.zones()) {
        if (zone->nodeMap == nullptr)
            continue;
        content.nodeMaps.resize(data.zones().size());
        content.nodeMaps[static_cast<std::size_t>(zone->number - 1)] = zone->nodeMap;
    }
}

} // namespace

Content_s contentOf(const host::Frame& frame, HostFields_e hostFields) {
    const host::DataSet* const data = frame.dataSet();
    if (data == nullptr)
        throw plot3d::Error(plot3d::ErrorKind::Usage, "The frame has no data set.");
    Content_s content;
    content.title = data->title;
    content.auxiliaryData = data->auxData;
    content.dimensions = dimensionsOf(frame.plotType());
    for (const host::Variable_s& variable : data->variables())
        content.variables.push_back({variable.name});
    content.zones.reserve(data->zones().size());
    for (const auto& zone : data->zones())
        content.zones.push_back(zoneOf(*data, *zone));
    content.timeSteps = timeStepsOf(content.zones);
    takeNodeMaps(*data, content);
    FieldTaker(*data, hostFields, content).takeAll();
    return content;
}

} // namespace plot3dlib
