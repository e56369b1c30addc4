#include "loader/BoundaryStage.h"

#include "boundary/BoundaryFile.h"
#include "boundary/BoundaryZones.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

void addBoundaryZones(Plot3DLoadContext_s& context, QuorSetHandle zonesAdded) {
    const Plot3DFileHandler& first = context.fileSets.front();
    if (!first.hasGridFile())
        return;
    Plot3DBoundaryList boundaries;
    HostStringList names;
    std::int64_t count = 0;
    if (readBoundaryFile(context.options, *first.gridFile, boundaries, names, count))
        createBoundaryZones(context.options, context.fileSets, boundaries.get(), names.get(),
                            context.assignStrandIDs, context.parentZones, zonesAdded);
}

} // namespace quorvia::quorutildataio
