#include "diff/DataSetDifference.h"

#include <algorithm>
#include <cmath>

#include <fmt/core.h>

#include "console/Words.h"
#include "selection/TimeRange.h"

namespace plot3d::program {
namespace {

std::string withoutBlanksAtEnd(const std::string& name) {
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

std::string sizeText(const Zone& zone) {
    return zone.kind == ZoneKind::Ordered
               ? fmt::format("{} x {} x {}", zone.size.i, zone.size.j, zone.size.k)
               : console::counted(zone.size.i, "node", "nodes");
}

const char* kindText(ZoneKind kind) {
    switch (kind) {
    case ZoneKind::Ordered:
        return "ordered";
    case ZoneKind::Triangles:
        return "triangles";
    case ZoneKind::Quadrilaterals:
        return "quadrilaterals";
    case ZoneKind::Tetrahedra:
        return "tetrahedra";
    case ZoneKind::Bricks:
        break;
    }
    return "bricks";
}

class DiffPlanner {
public:
    DiffPlanner(const DataSet& first, const DataSet& second, const DiffSelection_s& selection,
                const Tolerance_s& tolerance)
        : first_(first), second_(second),
          selection_(selection), times_{std::max(tolerance.relative, timeTolerance.relative),
                                        tolerance.absolute} {}

    DiffPlan_s plan() {
        compareZoneCounts();
        matchVariables();
        for (const analysis::SelectedZone_s& zone : selection_.zones)
            if (zone.zone < second_.zones().size() && areAlike(zone.zone))
                comparable_.push_back(zone);
        for (const SharedVariable_s& variable : plan_.variables)
            for (const analysis::SelectedZone_s& zone : comparable_)
                addPair(variable, zone);
        return std::move(plan_);
    }

private:
    void note(const char* what, std::optional<std::size_t> zone, const std::string& variable,
              const std::string& first, const std::string& second) {
        plan_.unlike.push_back({what, zone, variable, first, second});
    }

    void compareZoneCounts() {
        const auto zones = [](const DataSet& data) {
            return console::counted(static_cast<std::int64_t>(data.zones().size()), "zone",
                                    "zones");
        };
        const bool isMissing =
            std::any_of(selection_.zones.begin(), selection_.zones.end(),
                        [&](const auto& zone) { return zone.zone >= second_.zones().size(); });
        const bool isBeyond = selection_.isWhole && second_.zones().size() > first_.zones().size();
        if (isMissing || isBeyond)
            note("zones", {}, {}, zones(first_), zones(second_));
    }

    /// The n-th variable of a name is held against the n-th of that name.
    void matchVariables() {
        std::vector<bool> isTaken(second_.variables().size());
        for (const std::size_t variable : selection_.variables) {
            const std::string name = withoutBlanksAtEnd(first_.variables()[variable].name);
            std::size_t other = 0;
            while (other < isTaken.size() &&
                   (isTaken[other] || withoutBlanksAtEnd(second_.variables()[other].name) != name))
                ++other;
            if (other == isTaken.size()) {
                note("variable", {}, name, "there", "missing");
                continue;
            }
            isTaken[other] = true;
            plan_.variables.push_back({name, variable, other});
        }
        for (std::size_t other = 0; selection_.isWhole && other < isTaken.size(); ++other)
            if (!isTaken[other])
                note("variable", {}, withoutBlanksAtEnd(second_.variables()[other].name), "missing",
                     "there");
    }

    /// Whether the values of both zones can be compared.
    bool areAlike(std::size_t number) {
        const Zone& first = first_.zones()[number];
        const Zone& second = second_.zones()[number];
        const std::size_t before = plan_.unlike.size();
        if (first.kind != second.kind)
            note("kind", number, {}, kindText(first.kind), kindText(second.kind));
        if (first.size != second.size)
            note("size", number, {}, sizeText(first), sizeText(second));
        if (plan_.unlike.size() != before)
            return false;
        if (!isSameTime(first.time, second.time, times_))
            note("time", number, {}, fmt::format("{}", first.time), fmt::format("{}", second.time));
        if (first.kind != ZoneKind::Ordered && first_.nodeMap(number) != second_.nodeMap(number))
            note("elements", number, {}, elementsText(first), elementsText(second));
        return true;
    }

    static std::string elementsText(const Zone& zone) {
        return console::counted(zone.elementCount, "element", "elements");
    }

    void addPair(const SharedVariable_s& variable, const analysis::SelectedZone_s& zone) {
        const bool isInFirst = first_.kind(zone.zone, variable.first) != FieldKind::Empty;
        const bool isInSecond = second_.kind(zone.zone, variable.second) != FieldKind::Empty;
        if (isInFirst && isInSecond)
            plan_.pairs.push_back({zone.zone, variable.first, variable.second, zone.box});
        else if (isInFirst != isInSecond)
            note("values", zone.zone, variable.name, isInFirst ? "there" : "missing",
                 isInSecond ? "there" : "missing");
    }

    const DataSet& first_;
    const DataSet& second_;
    const DiffSelection_s& selection_;
    const TimeTolerance_s times_; // texts hold times in as many digits as somebody liked
    DiffPlan_s plan_;
    std::vector<analysis::SelectedZone_s> comparable_;
};

} // namespace

DiffPlan_s planOf(const DataSet& first, const DataSet& second, const DiffSelection_s& selection,
                  const Tolerance_s& tolerance) {
    return DiffPlanner(first, second, selection, tolerance).plan();
}

} // namespace plot3d::program
