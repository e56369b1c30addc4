#include "dataset/zones/StrandMap.h"

#include <tuple>

namespace quorvia::quorutildataio {

bool Plot3DGridDimsLess::operator()(const Plot3DGridDims_s& a, const Plot3DGridDims_s& b) const {
    return std::tie(a.i, a.j, a.k) < std::tie(b.i, b.j, b.k);
}

Plot3DStrandEntry_s Plot3DStrandMap_s::strandForGrid(const Plot3DGridDims_s& dims,
                                                     const std::string& zoneKey) {
    if (newStrandEachStep)
        return {zoneKey, nextStrand++};
    Plot3DStrandSeries_s& sameDims = series[dims];
    if (sameDims.usedCount == sameDims.entries.size())
        sameDims.entries.push_back({zoneKey, nextStrand++});
    return sameDims.entries[sameDims.usedCount++];
}

void Plot3DStrandMap_s::beginFileSet() {
    for (auto entry = series.begin(); entry != series.end();) {
        Plot3DStrandSeries_s& sameDims = entry->second;
        sameDims.entries.resize(sameDims.usedCount);
        sameDims.usedCount = 0;
        entry = sameDims.entries.empty() ? series.erase(entry) : std::next(entry);
    }
}

} // namespace quorvia::quorutildataio
