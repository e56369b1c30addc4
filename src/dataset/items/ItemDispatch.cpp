#include "dataset/items/ItemDispatch.h"

#include "dataset/items/Connectivity.h"
#include "dataset/items/Scalars.h"
#include "dataset/items/VariableItem.h"
#include "dataset/ondemand/LongReads.h"

namespace quorvia::quorutildataio {

bool dispatchItem(Plot3DFile_s& file, Plot3DItemKind_e kind, std::int32_t grid, std::int32_t zone,
                  bool include, std::int32_t varIndex, std::int32_t plane, bool report,
                  void* clientData) {
    const auto& context = *static_cast<const Plot3DItemContext_s*>(clientData);
    switch (kind) {
    case Plot3DItem_Variable:
        return setUpVariableItem(file, grid, zone, include, varIndex, plane, false, report,
                                 context);
    case Plot3DItem_IBlank:
        return setUpVariableItem(file, grid, zone, include, varIndex, plane, true, report, context);
    case Plot3DItem_Scalars:
        return setUpScalarsItem(file, zone, include, report, context);
    case Plot3DItem_Connectivity:
        return setUpConnectivityItem(file, grid, zone, include, report, context);
    }
    return true;
}

bool scanFile(Plot3DFile_s& file, QuorSetHandle gridSet, Plot3DItemContext_s& context) {
    if (file.isSolutionOrFunction && file.hasIBlank)
        return false;
    constexpr bool report = true;
    LoadWatch watch;
    const WatchedReading watched(*file.stream, watch);
    const Plot3DItemReceiver_s receiver = {dispatchItem, setFunctionZoneSolutionTime, &context};
    return parseLayout(file, report, gridSet, &receiver);
}

} // namespace quorvia::quorutildataio
