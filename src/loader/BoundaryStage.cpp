#include "loader/BoundaryStage.h"

#include <string>

namespace quorvia::quorutildataio {

namespace {

void reportNoBoundaries(const Plot3DLoadOptions_s& options) {
    const std::string text = "This version of the PLOT3D loader cannot load boundary files. Load "
                             "without boundaries.\nFile: " +
                             options.boundaryFile;
    QuorUtilDialogErrMsg(text.c_str());
}

} // namespace

bool canLoadBoundaryFile(const Plot3DLoadOptions_s& options) {
    reportNoBoundaries(options);
    return false;
}

void addBoundaryZones(Plot3DLoadContext_s& context, QuorSetHandle /*zonesAdded*/) {
    reportNoBoundaries(context.options);
}

} // namespace quorvia::quorutildataio
