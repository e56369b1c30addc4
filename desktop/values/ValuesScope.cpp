#include "desktop/values/ValuesScope.h"

#include <numeric>

#include "analysis/fields/DataSetFields.h"
#include "analysis/fields/IBlank.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {

namespace analysis = plot3d::analysis;
using Over_e = ValuesScope_s::Over_e;

std::vector<std::size_t> zonesOf(const plot3d::DataSet& data, const ValuesScope_s& scope) {
    if (scope.over == Over_e::Zone)
        return {scope.zone};
    if (scope.over == Over_e::Time)
        return data.timeSteps()[scope.step].zones;
    std::vector<std::size_t> zones(data.zones().size());
    std::iota(zones.begin(), zones.end(), std::size_t{0});
    return zones;
}

QString textOf(const plot3d::DataSet& data, const ValuesScope_s& scope) {
    switch (scope.over) {
    case Over_e::Zone:
        return QStringLiteral("zone %1  %2")
            .arg(scope.zone + 1)
            .arg(shown(data.zones()[scope.zone].name));
    case Over_e::Time:
        return QStringLiteral("time %1").arg(shownNumber(data.timeSteps()[scope.step].time));
    case Over_e::AllTimes:
        break;
    }
    return data.timeSteps().size() > 1 ? QStringLiteral("all times") : QStringLiteral("all zones");
}

analysis::VariableStatistics_s statisticsOf(const plot3d::DataSet& data, std::size_t variable,
                                            const ValuesScope_s& scope, std::size_t bins,
                                            const plot3d::Watch& watch) {
    analysis::StatsSelection_s selection = {{variable}, {}, analysis::iBlankVariable(data)};
    for (const std::size_t zone : zonesOf(data, scope))
        selection.zones.push_back({zone, plot3d::Box::whole(data.zones()[zone].size)});
    analysis::StatsWishes_s wishes;
    wishes.bins = bins;
    wishes.threads = analysis::coreCount();
    const auto progress = [&watch](double fraction) {
        if (watch.progress)
            watch.progress({"Counting values", fraction, -1});
    };
    return analysis::statisticsOf(analysis::DataSetFields(data), selection, wishes,
                                  {progress, watch.stop})
        .front();
}

} // namespace quorvia::host
