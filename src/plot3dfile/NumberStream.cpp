#include "plot3dfile/NumberStream.h"

#include <array>
#include <charconv>
#include <cstddef>

#include "plot3dfile/ByteOrder.h"
#include "plot3dfile/FortranRecords.h"
#include "plot3dfile/RealToken.h"

namespace quorvia::quorutildataio {

namespace {

bool isDigit(int character) {
    return character >= '0' && character <= '9';
}

// ---- Binary and Fortran

template <typename Number>
bool readBinaryNumber(Plot3DFile_s& file, Number& value) {
    value = 0;
    if (file.encoding == Plot3DEncoding_FortranUnformatted && file.inSegmentedRecord &&
        !skipSegmentBoundary(file))
        return false;
    Number stored = 0;
    if (!file.stream->readExactly(&stored, sizeof(stored)))
        return false;
    if (file.byteSwap)
        reverseBytes(&stored, sizeof(stored));
    value = stored;
    return true;
}

bool readBinaryReal(Plot3DFile_s& file, double& value) {
    if (file.isDoublePrecision)
        return readBinaryNumber(file, value);
    float narrow = 0.0F;
    const bool isRead = readBinaryNumber(file, narrow);
    value = narrow;
    return isRead;
}

// ---- Text

std::int32_t roundToInteger(double value) {
    if (value > 2147483646.0)
        return 0x7FFFFFFE;
    if (value < -2147483646.0)
        return -0x7FFFFFFE;
    return static_cast<std::int32_t>(value < 0.0 ? value - 0.499 : value + 0.499);
}

int skipSeparators(Plot3DFile_s& file) {
    while (isSeparator(file.lookahead))
        file.lookahead = file.stream->readCharacter();
    return file.lookahead;
}

bool readIntegerToken(Plot3DFile_s& file, std::int32_t& value) {
    int character = skipSeparators(file);
    const bool isNegative = character == '-';
    if (isNegative)
        character = file.stream->readCharacter();
    const bool hasDigits = isDigit(character);
    std::uint32_t magnitude = 0;
    for (; isDigit(character); character = file.stream->readCharacter())
        magnitude = magnitude * 10U + static_cast<std::uint32_t>(character - '0');
    file.lookahead = character;
    value = static_cast<std::int32_t>(isNegative ? 0U - magnitude : magnitude);
    return hasDigits;
}

bool readRealToken(Plot3DFile_s& file, double& value) {
    value = 0.0;
    int character = skipSeparators(file);
    if (!beginsReal(character))
        return false;
    std::array<char, longestRealToken> token;
    std::size_t length = 0;
    for (; belongsToReal(character) && length < token.size(); ++length) {
        const bool isExponentLetter = !beginsReal(character);
        token[length] = isExponentLetter ? 'E' : static_cast<char>(character);
        character = file.stream->readCharacter();
    }
    file.lookahead = character;
    return convertRealToken({token.data(), length}, value);
}

// Reads a token, or a chain such as 2*3*7. Of several counts the first one stands; a chain is no
// recursion, since a file can make it as long as it likes.
template <typename Number>
bool readRepeatable(Plot3DFile_s& file, Number& value, bool (*readToken)(Plot3DFile_s&, Number&)) {
    value = 0;
    Number number = 0;
    if (!readToken(file, number))
        return false;
    if (file.lookahead == '*') {
        const std::int32_t repeats = furtherRepeats(number);
        while (file.lookahead == '*') {
            file.lookahead = file.stream->readCharacter();
            if (!readToken(file, number))
                return false;
        }
        file.repeatCount = repeats;
        file.repeatValue = number;
    }
    value = number;
    return true;
}

// ---- Text in bulk

bool beginsPlainReal(const char* token, const char* end) {
    const char* first = token < end && *token == '-' ? token + 1 : token;
    return first < end && (isDigit(*first) || *first == '.');
}

// Tokens without point and exponent are integers of 32 bits, which know no -0.
bool isRealSpelling(const char* token, const char* end) {
    for (const char* next = token; next < end; ++next)
        if (*next == '.' || *next == 'e' || *next == 'E')
            return true;
    return false;
}

bool isSameAsInteger(double value, const char* token) {
    return value > -2147483648.0 && value < 2147483648.0 && (value != 0.0 || *token != '-');
}

// Converts the token at `token` if the library's rules and ours agree on it. Gives its end, inside
// the window, or null for a token that must go the long way.
const char* convertPlainReal(const char* token, const char* windowEnd, double& value) {
    if (!beginsPlainReal(token, windowEnd))
        return nullptr;
    // One character more than a token can have, so that a longer one is noticed.
    const char* limit =
        windowEnd - token > longestRealToken ? token + longestRealToken + 1 : windowEnd;
    const auto [end, error] = std::from_chars(token, limit, value);
    if (error != std::errc() || end == windowEnd || end - token > longestRealToken ||
        !isSeparator(*end))
        return nullptr;
    return isSameAsInteger(value, token) || isRealSpelling(token, end) ? end : nullptr;
}

} // namespace

bool readInteger(Plot3DFile_s& file, std::int32_t& value) {
    if (file.encoding != Plot3DEncoding_Ascii)
        return readBinaryNumber(file, value);
    if (file.repeatCount < 1)
        return readRepeatable(file, value, readIntegerToken);
    --file.repeatCount;
    value = roundToInteger(file.repeatValue);
    return true;
}

bool readReal(Plot3DFile_s& file, double& value) {
    if (file.encoding != Plot3DEncoding_Ascii)
        return readBinaryReal(file, value);
    if (file.repeatCount < 1)
        return readRepeatable(file, value, readRealToken);
    --file.repeatCount;
    value = file.repeatValue;
    return true;
}

std::int64_t readPlainReals(Plot3DFile_s& file, std::int64_t count, double* values) {
    if (file.repeatCount >= 1 || !isSeparator(file.lookahead))
        return 0;
    const FileStream::Window window = file.stream->window();
    const char* next = window.begin;
    std::int64_t delivered = 0;
    for (const char* token = next; delivered < count; ++delivered) {
        while (token < window.end && isSeparator(*token))
            ++token;
        const char* end = convertPlainReal(token, window.end, values[delivered]);
        if (end == nullptr)
            break;
        token = next = end + 1;
    }
    if (delivered > 0)
        file.lookahead = static_cast<unsigned char>(next[-1]);
    file.stream->consume(next - window.begin);
    return delivered;
}

} // namespace quorvia::quorutildataio
