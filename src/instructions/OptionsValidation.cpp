#include "instructions/OptionsValidation.h"

namespace quorvia::quorutildataio {

bool validateLoadOptions(const Plot3DLoadOptions_s& options) {
    if (options.append && !QuorUtilDataSetIsAvailable()) {
        QuorUtilDialogErrMsg("Cannot append without an existing data set.");
        return false;
    }
    if (options.gridFiles.empty() && options.solutionFiles.empty() &&
        options.functionFiles.empty()) {
        QuorUtilDialogErrMsg("Must have at least one grid, solution or function file.");
        return false;
    }
    return true;
}

} // namespace quorvia::quorutildataio
