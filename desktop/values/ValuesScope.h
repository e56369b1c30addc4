// Which values are counted: those of one zone, of one time, or all.
#pragma once

#include <cstddef>
#include <vector>

#include <QString>

#include <plot3d/DataSet.h>
#include <plot3d/Watch.h>

#include "analysis/statistics/Statistics.h"

namespace quorvia::host {

struct ValuesScope_s {
    enum class Over_e : unsigned char { Zone, Time, AllTimes };
    Over_e over = Over_e::Zone;
    std::size_t zone = 0; // index from 0
    std::size_t step = 0; // likewise

    bool operator==(const ValuesScope_s&) const = default;
};

/// Indices from 0. Boundary zones are among those of a time.
std::vector<std::size_t> zonesOf(const plot3d::DataSet& data, const ValuesScope_s& scope);

/// "zone 2  wing.q:2", "time 0.25", "all times", or "all zones" where there is one time.
QString textOf(const plot3d::DataSet& data, const ValuesScope_s& scope);

/// As `plot3d stats` counts them: points whose I-blank is 0 are left out, also those of a zone
/// whose values are shared. On all cores. `bins`: of the histogram; 0 for none. Throws Error.
plot3d::analysis::VariableStatistics_s statisticsOf(const plot3d::DataSet& data,
                                                    std::size_t variable,
                                                    const ValuesScope_s& scope, std::size_t bins,
                                                    const plot3d::Watch& watch);

} // namespace quorvia::host
