// The reals that solvers print, such as -1.25000000E+01, in less than a library's time: their
// digits and exponents are so few that one multiplication or division of two exact numbers gives
// the nearest real (Clinger 1990). All others are left to the library.
#pragma once

#include <array>
#include <bit>
#include <cfloat>
#include <cstdint>
#include <cstring>

#include "plot3dfile/numbers/RealToken.h"

namespace quorvia::quorutildataio {

/// Bytes that must be readable from the token's first one on.
inline constexpr std::int64_t roomOfShortDecimal = 64;

namespace shortdecimal {

inline constexpr std::int32_t mostDigits = 19; // which 64 bits can hold
// Powers of ten up to here are exact, and so are whole numbers up to 2^53.
inline constexpr std::int32_t largestExactPower = 22;
inline constexpr std::array<double, largestExactPower + 1> powersOfTen = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
inline constexpr std::uint64_t largestExactNumber = std::uint64_t{1} << 53;
// Where registers hold more than 64 bits, a result would be rounded twice.
inline constexpr bool isRoundedOnce = FLT_EVAL_METHOD == 0;

inline std::uint64_t eightAt(const char* text) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text, sizeof eight);
    return eight;
}

inline bool areEightDigits(std::uint64_t text) {
    const std::uint64_t aboveNine = text + 0x4646464646464646U;
    const std::uint64_t belowZero = text - 0x3030303030303030U;
    return ((aboveNine | belowZero) & 0x8080808080808080U) == 0;
}

/// The number of eight digits, the first of them in the lowest byte: neighbours are put together to
/// pairs, the pairs to fours, and these to one.
inline std::uint64_t numberOfEight(std::uint64_t digits) {
    digits -= 0x3030303030303030U;
    digits = digits * 10 + (digits >> 8);
    digits &= 0x00FF00FF00FF00FFU;
    digits = digits * 100 + (digits >> 16);
    digits &= 0x0000FFFF0000FFFFU;
    return (digits * 10000 + (digits >> 32)) & 0xFFFFFFFFU;
}

/// Adds the digits from `text` on to `number`, as many as `mostDigits` or a few more. Gives their
/// end.
inline const char* addDigits(const char* text, std::uint64_t& number) {
    const char* const limit = text + mostDigits + 1;
    const std::uint64_t eight = eightAt(text);
    if (std::endian::native == std::endian::little && areEightDigits(eight)) {
        number = number * 100000000U + numberOfEight(eight);
        text += sizeof eight;
    }
    for (; isDigit(*text) && text < limit; ++text)
        number = number * 10U + static_cast<std::uint64_t>(*text - '0');
    return text;
}

/// Adds the exponent behind the letter at `text`, if it has three digits at most. Gives its end.
inline const char* addExponent(const char* text, std::int32_t& exponent) {
    const bool isNegative = text[1] == '-';
    const char* const first = text + (isNegative || text[1] == '+' ? 2 : 1);
    std::int32_t magnitude = 0;
    const char* end = first;
    for (; isDigit(*end) && end < first + 3; ++end)
        magnitude = magnitude * 10 + (*end - '0');
    exponent += isNegative ? -magnitude : magnitude;
    return end == first ? text : end;
}

} // namespace shortdecimal

/// Converts a token that has a point, and a separator behind it. Gives its end, or null for all
/// that is no short decimal; `value` is what std::from_chars gives.
inline const char* convertShortDecimal(const char* token, double& value) {
    using namespace shortdecimal;
    const bool isNegative = *token == '-';
    const char* const first = token + (isNegative ? 1 : 0);
    std::uint64_t number = 0;
    const char* const point = addDigits(first, number);
    if (*point != '.' || point - first > mostDigits)
        return nullptr;
    if (areEightDigits(eightAt(point + 1)) && areEightDigits(eightAt(point + 9)))
        return nullptr; // more digits than are exact
    const char* end = addDigits(point + 1, number);
    const auto places = static_cast<std::int32_t>(end - point - 1);
    const std::int64_t digitCount = end - first - 1;
    if (digitCount == 0 || digitCount > mostDigits || number > largestExactNumber)
        return nullptr;
    std::int32_t exponent = -places;
    if (*end == 'E' || *end == 'e')
        end = addExponent(end, exponent);
    if (!isSeparator(*end) || exponent < -largestExactPower || exponent > largestExactPower ||
        !isRoundedOnce)
        return nullptr;
    const auto real = static_cast<double>(number);
    const double power = powersOfTen[static_cast<std::size_t>(exponent < 0 ? -exponent : exponent)];
    const double magnitude = exponent < 0 ? real / power : real * power;
    value = isNegative ? -magnitude : magnitude;
    return end;
}

} // namespace quorvia::quorutildataio
