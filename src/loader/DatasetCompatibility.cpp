#include "loader/DatasetCompatibility.h"

#include "dataset/CurrentTask.h"

namespace quorvia::quorutildataio {

bool checkDatasetCompatibility(Plot3DLoadContext_s& context) {
    const Plot3DLoadOptions_s& options = context.options;
    context.existingZoneCount = 0;
    context.firstNewZone = 1;
    if (!options.append && options.hasGridFiles)
        return true; // a new data set has nothing to agree with

    currentTask->setMessage("Checking dataset compatibility");
    QuorUtilDialogErrMsg("This version of the PLOT3D loader always starts a new data set. Load the "
                         "grid files too, and do not append.");
    return false;
}

} // namespace quorvia::quorutildataio
