#include "desktop/tree/ZoneGroups.h"

#include <cmath>
#include <map>
#include <set>
#include <tuple>

namespace quorvia::host {
namespace {

struct BehindNumbers_s {
    bool operator()(double left, double right) const {
        return std::isnan(right) ? !std::isnan(left) : left < right;
    }
};

struct StaticZonesLast_s {
    bool operator()(std::int32_t left, std::int32_t right) const {
        return std::make_tuple(left == 0, left) < std::make_tuple(right == 0, right);
    }
};

using Times = std::map<double, std::vector<std::size_t>, BehindNumbers_s>;

} // namespace

std::vector<StrandGroup_s> groupZones(const DataSetOutcome_s& dataSet) {
    std::map<std::int32_t, Times, StaticZonesLast_s> strands;
    for (std::size_t place = 0; place < dataSet.zones.size(); ++place) {
        const ZoneOutcome_s& zone = dataSet.zones[place];
        strands[zone.strandId][zone.solutionTime].push_back(place);
    }
    std::vector<StrandGroup_s> groups;
    for (auto& [strand, times] : strands) {
        StrandGroup_s& group = groups.emplace_back();
        group.strand = strand;
        for (auto& [time, zones] : times)
            group.times.push_back({time, std::move(zones)});
    }
    return groups;
}

std::size_t countSteps(const DataSetOutcome_s& dataSet) {
    std::set<double, BehindNumbers_s> times;
    for (const ZoneOutcome_s& zone : dataSet.zones)
        if (zone.strandId != 0)
            times.insert(zone.solutionTime);
    return times.size();
}

} // namespace quorvia::host
