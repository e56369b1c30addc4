#include "dataset/variables/VariableFit.h"

#include <string>

namespace quorvia::quorutildataio {

bool checkVariablesFor(const Plot3DFile_s& file, std::int64_t firstVar, std::int64_t varCount) {
    const bool hasIBlank = file.hasIBlank && !file.isSolutionOrFunction;
    const std::int64_t last = firstVar - 1 + file.numVars + (hasIBlank ? 1 : 0);
    if (last <= varCount)
        return true;
    reportFileError(file, "The values of the file need a data set of " + std::to_string(last) +
                              " variables, but it has " + std::to_string(varCount) + ".");
    return false;
}

bool checkVariablesFor(const Plot3DFileHandler& handler, const Plot3DLoadShape_s& shape,
                       std::int64_t varCount) {
    std::int64_t next = std::int64_t{shape.gridVarCount()} + 1;
    if (handler.hasGridFile() && !checkVariablesFor(*handler.gridFile, 1, varCount))
        return false;
    if (handler.hasSolutionFile()) {
        if (!checkVariablesFor(*handler.solutionFile, next, varCount))
            return false;
        next += shape.numSolutionVars;
    }
    for (const Plot3DFile_s* file : handler.functionFiles) {
        if (!checkVariablesFor(*file, next, varCount))
            return false;
        next += file->numVars;
    }
    return true;
}

} // namespace quorvia::quorutildataio
