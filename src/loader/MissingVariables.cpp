#include "loader/MissingVariables.h"

namespace quorvia::quorutildataio {

bool addMissingVariables(std::int32_t /*wantedVarCount*/, QuorStringListHandle /*names*/,
                         std::int32_t& /*existingVarCount*/, HostSet& /*varsAdded*/) {
    QuorUtilDialogErrMsg("This version of the PLOT3D loader cannot add variables to a data set.");
    return false;
}

} // namespace quorvia::quorutildataio
