#include "dataset/items/AuxDataItem.h"

#include <algorithm>
#include <charconv>

namespace quorvia::quorutildataio {

namespace {

constexpr std::int32_t stringItem = 0;
constexpr std::int32_t retained = 1;
constexpr int printedDigits = 6; // what "%lG" prints without a precision of its own

char upperCase(char letter) {
    const bool isLower = letter >= 'a' && letter <= 'z';
    return isLower ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool terminate(const std::to_chars_result& result, AuxDataText& text) {
    char* const last = text.data() + text.size() - 1;
    if (result.ec != std::errc() || result.ptr > last)
        return false;
    *result.ptr = '\0';
    return true;
}

} // namespace

bool setAuxDataItem(QuorAuxDataHandle auxData, const char* name, const char* text) {
    return auxData != nullptr && QuorUtilAuxDataSetItem(auxData, name, text, stringItem, retained);
}

bool formatReal(double value, AuxDataText& text) {
    const std::to_chars_result result =
        std::to_chars(text.data(), text.data() + text.size() - 1, value, std::chars_format::general,
                      printedDigits);
    std::transform(text.data(), result.ptr, text.data(), upperCase);
    return terminate(result, text);
}

bool formatInteger(std::int32_t value, AuxDataText& text) {
    return terminate(std::to_chars(text.data(), text.data() + text.size() - 1, value), text);
}

} // namespace quorvia::quorutildataio
