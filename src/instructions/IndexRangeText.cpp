#include "instructions/IndexRangeText.h"

#include "instructions/TurnedRange.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

namespace {

/// Above this one more digit could pass 32 bits.
constexpr std::int32_t maxBeforeNextDigit = 99999999;

bool isIndexDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isEndOfField(char c) {
    return c == '\0' || c == ' ' || c == ',' || c == '\n';
}

const char* findRangeFault(const Plot3DIndexRange_s& range) {
    if (range.start < 1)
        return "Index range start must be greater than or equal to 1.\n"
               "This error also may indicate that the start value is too large.";
    if (range.skip < 1)
        return "Index range skip must be greater than or equal to 1.\n"
               "This error also may indicate that the skip value is too large.";
    if (range.end < 0)
        return "Index range end must be greater than or equal to zero.\n"
               "This error also may indicate that the end value is too large.";
    if (isTurnedRound(range))
        return "Index range end must be greater than or equal to index range start.";
    return nullptr;
}

} // namespace

bool parseIndexRangeField(const char*& cursor, std::int32_t& field, const std::string& label) {
    std::int32_t value = isIndexDigit(*cursor) ? 0 : field;
    for (; isIndexDigit(*cursor); ++cursor) {
        if (value > maxBeforeNextDigit) {
            QuorUtilDialogErrMsg("Input too large.");
            return false;
        }
        value = value * 10 + (*cursor - '0');
    }
    if (!isEndOfField(*cursor)) {
        QuorUtilDialogErrMsg(("Invalid definition for " + label + " Start,End,Skip").c_str());
        return false;
    }
    field = value;
    if (*cursor != '\0')
        ++cursor;
    return true;
}

bool parseIndexRange(const char* text, Plot3DIndexRange_s& range, const std::string& label) {
    const char* cursor = text;
    for (std::int32_t* field : {&range.start, &range.end, &range.skip})
        if (!parseIndexRangeField(cursor, *field, label))
            return false;
    if (const char* fault = findRangeFault(range)) {
        QuorUtilDialogErrMsg(fault);
        return false;
    }
    return true;
}

} // namespace quorvia::quorutildataio
