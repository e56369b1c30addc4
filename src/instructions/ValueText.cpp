#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

constexpr int maxIntegerDigits = 10;
constexpr bool showHostErrors = true;
constexpr std::int64_t largestMember = 2147483647; // of a host's set

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

void skipBlanks(const char*& cursor) {
    while (*cursor == ' ' || *cursor == '\t')
        ++cursor;
}

/// Bytes above 127 stay as they are, so that no locale can change what a keyword is.
signed char folded(char c) {
    return static_cast<signed char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
}

bool readUnsignedInteger(const char*& cursor, std::int64_t& value) {
    std::int64_t accumulated = 0;
    int digits = 0;
    for (; digits < maxIntegerDigits && isDigit(*cursor); ++digits, ++cursor)
        accumulated = accumulated * 10 + (*cursor - '0');
    if (digits == 0 || isDigit(*cursor))
        return false;
    value = accumulated;
    return true;
}

bool readPositiveInteger(const char*& cursor, std::int64_t& value) {
    return readSignedInteger(cursor, value) && value >= 1;
}

/// Consumes `wanted` if it stands at the cursor, behind blanks.
bool consume(const char*& cursor, char wanted) {
    skipBlanks(cursor);
    if (*cursor != wanted)
        return false;
    ++cursor;
    return true;
}

struct SetItem_s {
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::int64_t skip = 1;
};

bool readSetItem(const char*& cursor, SetItem_s& item) {
    if (!readPositiveInteger(cursor, item.first))
        return false;
    item.last = item.first;
    if (!consume(cursor, '-'))
        return true;
    if (!readPositiveInteger(cursor, item.last) || item.last < item.first)
        return false;
    return !consume(cursor, ':') || readPositiveInteger(cursor, item.skip);
}

bool addSetItem(QuorSetHandle set, const SetItem_s& item) {
    // The host would refuse the last member, after billions of others.
    if (item.last - (item.last - item.first) % item.skip > largestMember)
        return false;
    for (std::int64_t member = item.first; member <= item.last; member += item.skip)
        if (!QuorUtilSetAddMember(set, member, showHostErrors))
            return false;
    return true;
}

/// A missing closing bracket is no error: the end of the text ends the items as well.
bool isEndOfItems(const char*& cursor, bool withBrackets) {
    if (withBrackets)
        skipBlanks(cursor);
    return *cursor == '\0' || (withBrackets && *cursor == ']');
}

bool readSetItems(const char* cursor, QuorSetHandle set, bool withBrackets) {
    skipBlanks(cursor);
    if (withBrackets && !consume(cursor, '['))
        return false;
    while (!isEndOfItems(cursor, withBrackets)) {
        SetItem_s item;
        if (!readSetItem(cursor, item) || !addSetItem(set, item))
            return false;
        consume(cursor, ',');
        skipBlanks(cursor);
    }
    return true;
}

} // namespace

int compareNoCase(const char* a, const char* b, std::int32_t limit) {
    if (a == nullptr || b == nullptr)
        return (a != nullptr ? 1 : 0) - (b != nullptr ? 1 : 0);
    for (std::int32_t position = 0; position < limit; ++position, ++a, ++b)
        if (const int difference = folded(*a) - folded(*b); difference != 0 || *a == '\0')
            return difference;
    return 0;
}

bool readSignedInteger(const char*& cursor, std::int64_t& value) {
    skipBlanks(cursor);
    const bool isNegative = *cursor == '-';
    if (isNegative)
        ++cursor;
    const bool wasRead = readUnsignedInteger(cursor, value);
    // The sign is applied to what `value` holds even when no number followed it.
    if (isNegative)
        value = -value;
    return wasRead;
}

bool parseSetText(const char* text, HostSet& set, bool withBrackets) {
    set = HostSet(QuorUtilSetAlloc(showHostErrors));
    if (set && !readSetItems(text, set.get(), withBrackets))
        set.reset();
    return static_cast<bool>(set);
}

std::string integerToText(std::int64_t value) {
    return std::to_string(value);
}

void appendToHostString(HostString& target, const std::string& text) {
    target = HostString::copyOf(target.str() + text);
}

void appendSetEdge(std::string& text, bool endsRun, std::int64_t member) {
    text += endsRun ? '-' : ',';
    text += integerToText(member);
}

} // namespace quorvia::quorutildataio
