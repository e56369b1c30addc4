#include "loader/FunctionAppend.h"

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

bool appendFunctionFiles(std::vector<Plot3DFileHandler>& /*fileSets*/,
                         const Plot3DLoadOptions_s& /*options*/) {
    QuorUtilDialogErrMsg("This version of the PLOT3D loader cannot append function files to a data "
                         "set. Load them together with their grid files.");
    return false;
}

} // namespace quorvia::quorutildataio
