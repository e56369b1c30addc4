#include "instructions/TurnedRange.h"

#include <string>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

namespace {

bool checkRange(const Plot3DIndexRange_s& range, const char* rangeName) {
    if (!isTurnedRound(range))
        return true;
    tellRangeIsTurnedRound(rangeName);
    return false;
}

} // namespace

bool isTurnedRound(const Plot3DIndexRange_s& range) {
    return range.end >= 1 && range.end < range.start;
}

void tellRangeIsTurnedRound(const char* rangeName) {
    const std::string text =
        std::string(rangeName) + " Error: end must be greater than or equal to start.";
    QuorUtilDialogErrMsg(text.c_str());
}

bool checkIndexRanges(const Plot3DLoadOptions_s& options) {
    return checkRange(options.iRange, "I-Range") && checkRange(options.jRange, "J-Range") &&
           checkRange(options.kRange, "K-Range");
}

} // namespace quorvia::quorutildataio
