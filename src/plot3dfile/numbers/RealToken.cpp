#include "plot3dfile/numbers/RealToken.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include <locale.h>

namespace quorvia::quorutildataio {

namespace {

bool hasSign(std::string_view token) {
    return !token.empty() && (token.front() == '+' || token.front() == '-');
}

bool hasPointOrExponent(std::string_view token) {
    return std::any_of(token.begin(), token.end(), [](char c) { return c == '.' || c == 'E'; });
}

// Numbers whose decimal point is a point wherever the host runs.
class PlainLocale {
public:
    PlainLocale() : locale_(newlocale(LC_ALL_MASK, "C", nullptr)) {}
    ~PlainLocale() { freelocale(locale_); }
    PlainLocale(const PlainLocale&) = delete;
    PlainLocale& operator=(const PlainLocale&) = delete;

    double convert(const char* text) const { return strtod_l(text, nullptr, locale_); }

private:
    locale_t locale_;
};

// Infinite, zero or a denormal: std::from_chars only says that it can't give the value.
double convertOutOfRange(const std::string& token) {
    static const PlainLocale plainLocale;
    return plainLocale.convert(token.c_str());
}

// Takes the longest beginning that is a number, and 0 if there is none.
double convertDecimal(std::string_view token) {
    if (token.front() == '+') {
        token.remove_prefix(1);
        if (hasSign(token))
            return 0.0;
    }
    double value = 0.0;
    const auto result = std::from_chars(token.data(), token.data() + token.size(), value);
    return result.ec == std::errc::result_out_of_range ? convertOutOfRange(std::string(token))
                                                       : value;
}

bool convertInteger(std::string_view token, double& value) {
    const bool isNegative = token.front() == '-';
    if (hasSign(token))
        token.remove_prefix(1);
    if (token.empty() || !std::all_of(token.begin(), token.end(), isDigit))
        return false;
    std::uint32_t magnitude = 0;
    for (const char digit : token)
        magnitude = magnitude * 10U + static_cast<std::uint32_t>(digit - '0');
    value = static_cast<std::int32_t>(isNegative ? 0U - magnitude : magnitude);
    return true;
}

} // namespace

bool convertRealToken(std::string_view token, double& value) {
    value = 0.0;
    if (!hasPointOrExponent(token))
        return convertInteger(token, value);
    value = convertDecimal(token);
    return true;
}

std::int32_t furtherRepeats(std::int32_t count) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(count) - 1U);
}

std::int32_t furtherRepeats(double count) {
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::trunc(count + 0.01) - 1.0, least, most));
}

} // namespace quorvia::quorutildataio
