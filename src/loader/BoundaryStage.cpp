#include "loader/BoundaryStage.h"

#include <string>

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
    const std::string& fileName = context.options.boundaryFile;
    if (!readBoundaryFile(context.options, *first.gridFile, boundaries, names, count))
        return;
    if (!names) // the file was found before the headers were read, and does not open now
        QuorUtilDialogErrMsg(cannotOpenText(fileName).c_str());
    else if (!createBoundaryZones(context.options, context.fileSets, boundaries.get(), names.get(),
                                  context.assignStrandIDs, context.parentZones, zonesAdded))
        QuorUtilDialogErrMsg(
            ("Not all boundary zones could be loaded.\nFile: " + fileName).c_str());
}

} // namespace quorvia::quorutildataio
