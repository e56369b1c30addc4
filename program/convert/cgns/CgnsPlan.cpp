#include "convert/cgns/CgnsPlan.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <cgnstypes.h>

#include <plot3d/Error.h>

#include "names/CgnsNames.h"

namespace plot3d::program {

namespace {

class CgnsPlanner {
public:
    explicit CgnsPlanner(const Contents& contents) : contents_(contents) {}

    std::vector<CgnsZonePlan_s> plan() {
        for (const ContentZone_s& zone : contents_.zones())
            refuseHuge(zone);
        if (!followStrands())
            takeEachAlone();
        return std::move(plans_);
    }

private:
    const ContentZone_s& facts(std::size_t zone) const { return contents_.zones()[zone]; }

    CgnsZonePlan_s begunWith(std::size_t zone) const {
        return {{zone}, cgnsCellDimension(facts(zone).kind, contents_.dimensions()), false};
    }

    void takeEachAlone() {
        plans_.clear();
        for (std::size_t zone = 0; zone < contents_.zones().size(); ++zone)
            plans_.push_back(begunWith(zone));
    }

    /// False if some grid is not there in one size at all times.
    bool followStrands() {
        std::size_t planned = 0;
        for (const std::size_t zone : contents_.steps().front().zones) {
            plans_.push_back(begunWith(zone));
            if (facts(zone).strand != 0 && !followStrand(plans_.back()))
                return false;
            planned += plans_.back().zones.size();
        }
        return planned == contents_.zones().size();
    }

    bool followStrand(CgnsZonePlan_s& plan) const {
        const std::size_t first = plan.zones.front();
        for (std::size_t step = 1; step < contents_.steps().size(); ++step) {
            const TimeStep& later = contents_.steps()[step];
            const auto zone =
                std::find_if(later.zones.begin(), later.zones.end(), [&](std::size_t other) {
                    return facts(other).strand == facts(first).strand;
                });
            if (zone == later.zones.end() || facts(*zone).size != facts(first).size ||
                facts(*zone).elementCount != facts(first).elementCount)
                return false;
            plan.moves = plan.moves || !sharesCoordinates(first, *zone);
            plan.zones.push_back(*zone);
        }
        return true;
    }

    bool sharesCoordinates(std::size_t a, std::size_t b) const {
        const std::vector<std::size_t> coordinates = variablesOf(contents_, Role_e::Coordinate);
        return std::all_of(coordinates.begin(), coordinates.end(), [&](std::size_t variable) {
            return contents_.holder(a, variable) == contents_.holder(b, variable);
        });
    }

    static void refuseHuge(const ContentZone_s& zone) {
        constexpr std::int64_t most = std::numeric_limits<cgsize_t>::max() / 4;
        if (zone.size.count() <= most)
            return;
        ErrorFacts facts;
        facts.next = "convert to .vtm or .npz";
        throw Error(ErrorKind::Unsupported,
                    "zone " + std::to_string(zone.number) +
                        " has more points than libcgns can count",
                    std::move(facts));
    }

    const Contents& contents_;
    std::vector<CgnsZonePlan_s> plans_;
};

} // namespace

std::vector<CgnsZonePlan_s> planCgnsZones(const Contents& contents) {
    return CgnsPlanner(contents).plan();
}

bool needsZoneLists(const Contents& contents, const std::vector<CgnsZonePlan_s>& plans) {
    return std::any_of(contents.steps().begin(), contents.steps().end(),
                       [&](const TimeStep& step) { return step.zones.size() != plans.size(); });
}

} // namespace plot3d::program
