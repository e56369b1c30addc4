#include "plot3dfile/numbers/NumberStream.h"

#include <algorithm>
#include <charconv>

#include "plot3dfile/numbers/BinaryRuns.h"
#include "plot3dfile/numbers/RealToken.h"
#include "plot3dfile/numbers/ShortDecimal.h"

namespace quorvia::quorutildataio {

namespace {

// ---- Binary and Fortran

template <typename Number>
bool readBinary(Plot3DFile_s& file, Number& value) {
    if (readBinaryRun(file, 1, &value) == 1)
        return true;
    value = 0;
    return false;
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

// A token ends at the end of the file, but not where the disk failed: half a number is none.
bool isCutOff(const Plot3DFile_s& file) {
    return file.lookahead == -1 && file.stream->hadReadError();
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
    return hasDigits && !isCutOff(file);
}

bool readRealToken(Plot3DFile_s& file, double& value) {
    value = 0.0;
    const int before = file.lookahead;
    int character = skipSeparators(file);
    if (!beginsReal(character)) {
        file.lookahead = before; // so that the next read goes on behind the character
        return false;
    }
    RealTokenText text;
    while (belongsToReal(character) && !text.isFull()) {
        text.append(static_cast<char>(character));
        character = file.stream->readCharacter();
    }
    file.lookahead = character;
    return !isCutOff(file) && convertRealToken(text.view(), value);
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

// Without point and exponent a token is an integer of 32 bits, which wraps and knows no -0. A value
// that is none of those two is the same either way.
bool isSameAsInteger(double value, const char* token) {
    return value > -2147483648.0 && value < 2147483648.0 && (value != 0.0 || *token != '-');
}

bool isRealSpelling(const char* token, const char* end) {
    return std::any_of(token, end, [](char c) { return c == '.' || c == 'e' || c == 'E'; });
}

// Converts the token at `token` if the library's rules and ours agree on it. Gives its end, inside
// the window and a separator, or null.
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

// The same by our rules, for tokens such as 1.5D+03 and +5.
const char* convertUnusualReal(const char* token, const char* windowEnd, double& value) {
    if (token == windowEnd || !beginsReal(*token))
        return nullptr;
    RealTokenText text;
    const char* end = token;
    while (end < windowEnd && belongsToReal(*end) && !text.isFull())
        text.append(*end++);
    if (end == windowEnd || !isSeparator(*end))
        return nullptr;
    return convertRealToken(text.view(), value) ? end : nullptr;
}

// Converts the tokens of a window, most of which look alike: where short decimals are rare none are
// tried for.
class WindowConverter {
public:
    explicit WindowConverter(const char* windowEnd) : windowEnd_(windowEnd) {}

    /// Gives the token's end, inside the window and a separator, or null.
    const char* convert(const char* token, double& value) {
        if (misses_ < mostMisses && windowEnd_ - token >= roomOfShortDecimal) {
            if (const char* const end = convertShortDecimal(token, value))
                return end;
            ++misses_;
        }
        const char* end = convertPlainReal(token, windowEnd_, value);
        return end != nullptr ? end : convertUnusualReal(token, windowEnd_, value);
    }

private:
    static constexpr int mostMisses = 64;
    const char* windowEnd_;
    int misses_ = 0;
};

} // namespace

bool readInteger(Plot3DFile_s& file, std::int32_t& value) {
    if (file.encoding != Plot3DEncoding_Ascii)
        return readBinary(file, value);
    if (file.repeatCount < 1)
        return readRepeatable(file, value, readIntegerToken);
    --file.repeatCount;
    value = roundToInteger(file.repeatValue);
    return true;
}

bool readReal(Plot3DFile_s& file, double& value) {
    if (file.encoding != Plot3DEncoding_Ascii)
        return readBinary(file, value);
    if (file.repeatCount < 1)
        return readRepeatable(file, value, readRealToken);
    --file.repeatCount;
    value = file.repeatValue;
    return true;
}

bool skipReals(Plot3DFile_s& file, std::int32_t count) {
    while (count > 0) {
        if (file.repeatCount >= 1) {
            const std::int32_t repeated = std::min(count, file.repeatCount);
            file.repeatCount -= repeated;
            count -= repeated;
            continue;
        }
        double ignored = 0.0;
        if (!readReal(file, ignored))
            return false;
        --count;
    }
    return true;
}

std::int64_t readPlainReals(Plot3DFile_s& file, std::int64_t count, double* values) {
    if (file.repeatCount >= 1 || !isSeparator(file.lookahead))
        return 0;
    const FileStream::Window_s window = file.stream->window();
    const char* next = window.begin;
    WindowConverter converter(window.end);
    std::int64_t delivered = 0;
    for (const char* token = next; delivered < count; ++delivered) {
        while (token < window.end && isSeparator(*token))
            ++token;
        const char* end = converter.convert(token, values[delivered]);
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
