#include "analysis/statistics/FieldPlan.h"

#include <map>
#include <tuple>
#include <utility>

#include "analysis/fields/BlockSplit.h"

namespace plot3d::analysis {
namespace {

auto keyOf(const Range& range) {
    return std::tuple(range.first, range.last, range.step);
}

class FieldPlanner {
public:
    FieldPlanner(const Fields& fields, const StatsSelection_s& selection)
        : fields_(fields), selection_(selection) {}

    FieldPlan_s plan() {
        for (const std::size_t variable : selection_.variables) {
            auto& ofZones = plan_.fieldOf.emplace_back();
            for (const SelectedZone_s& zone : selection_.zones)
                ofZones.push_back(fieldFor(zone, variable));
        }
        addTasks();
        return std::move(plan_);
    }

private:
    using Key = std::tuple<std::size_t, std::size_t, std::optional<std::size_t>,
                           std::tuple<std::int64_t, std::int64_t, std::int64_t>,
                           std::tuple<std::int64_t, std::int64_t, std::int64_t>,
                           std::tuple<std::int64_t, std::int64_t, std::int64_t>>;

    std::optional<std::size_t> iBlankFor(std::size_t zone, std::size_t variable) const {
        const auto iBlank = selection_.leavesOutBy;
        return iBlank && *iBlank != variable && !fields_.isEmpty(zone, *iBlank) ? iBlank
                                                                                : std::nullopt;
    }

    std::optional<std::size_t> fieldFor(const SelectedZone_s& selected, std::size_t variable) {
        const std::size_t zone = selected.zone;
        const Box& box = selected.box;
        if (fields_.isEmpty(zone, variable))
            return std::nullopt;
        const auto iBlank = iBlankFor(zone, variable);
        const Key key = {fields_.holder(zone, variable),
                         variable,
                         iBlank ? std::optional(fields_.holder(zone, *iBlank)) : std::nullopt,
                         keyOf(box.i),
                         keyOf(box.j),
                         keyOf(box.k)};
        const auto [entry, isNew] = known_.try_emplace(key, plan_.fields.size());
        if (isNew)
            plan_.fields.push_back({zone, variable, fields_.type(zone, variable), iBlank, box,
                                    blocksOf(box, pointsOfStretch)});
        return entry->second;
    }

    /// A task for each piece; those of fields of a zone whose I-blank is read stand together.
    void addTasks() {
        std::map<std::pair<std::size_t, std::size_t>, std::size_t> taskOf; // by zone and stretch
        for (std::size_t field = 0; field < plan_.fields.size(); ++field) {
            const PlannedField_s& planned = plan_.fields[field];
            for (std::size_t stretch = 0; stretch < planned.stretches.size(); ++stretch) {
                std::size_t task = plan_.tasks.size();
                if (planned.iBlank)
                    task = taskOf.try_emplace({planned.zone, stretch}, task).first->second;
                if (task == plan_.tasks.size())
                    plan_.tasks.emplace_back();
                plan_.tasks[task].push_back({field, stretch});
            }
        }
    }

    const Fields& fields_;
    const StatsSelection_s& selection_;
    FieldPlan_s plan_;
    std::map<Key, std::size_t> known_;
};

} // namespace

FieldPlan_s planOf(const Fields& fields, const StatsSelection_s& selection) {
    return FieldPlanner(fields, selection).plan();
}

} // namespace plot3d::analysis
