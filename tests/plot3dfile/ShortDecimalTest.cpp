#include "plot3dfile/numbers/ShortDecimal.h"

#include <bit>
#include <charconv>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace quorvia::quorutildataio {
namespace {

struct Converted_s {
    double value = 0;
    std::int64_t length = -1; // of the token; -1: left to the library
};

Converted_s converted(const std::string& token) {
    const std::string text = token + "\n" + std::string(roomOfShortDecimal, '7');
    Converted_s result;
    const char* const end = convertShortDecimal(text.data(), result.value);
    result.length = end != nullptr ? end - text.data() : -1;
    return result;
}

std::uint64_t bitsByLibrary(const std::string& token) {
    double value = 0;
    std::from_chars(token.data(), token.data() + token.size(), value);
    return std::bit_cast<std::uint64_t>(value);
}

void expectAsByLibrary(const std::string& token) {
    const Converted_s found = converted(token);
    EXPECT_EQ(found.length, static_cast<std::int64_t>(token.size())) << token;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(found.value), bitsByLibrary(token)) << token;
}

TEST(ShortDecimal, IsConvertedAsByTheLibrary) {
    for (const char* const token :
         {"1.0", "-1.25000000E+01", "0.0", "-0.0", ".5", "-.5", "5.", "-5.E3", "0.00000001",
          "12345678.", "1234567.12345678", "9007199254740992.", "900719925474.0992E+22", "1.e22",
          "1.e-22", "1.5e007", "3.14159265358979", "-2.5e-10", "0.1e+22"})
        expectAsByLibrary(token);
}

TEST(ShortDecimal, LeavesTheRestToTheLibrary) {
    for (const char* const token : {"",
                                    "-",
                                    ".",
                                    "-.",
                                    "5",
                                    "-5",
                                    "1e5",
                                    "+1.5",
                                    "1.5D+03",
                                    "1.5d3",
                                    "1.5e",
                                    "1.5e+",
                                    "1.5-104",
                                    "1.5*",
                                    "1.5e+0000",
                                    "1.5e1000",
                                    "9007199254740993.",
                                    "1.e23",
                                    "1.0e-22",
                                    "1.5.5",
                                    "123456789.123456789",
                                    "0.1234567890123456",
                                    "1..5",
                                    "0.12345678901234567890",
                                    "12345678901234567890.",
                                    "nan",
                                    "1.5x"})
        EXPECT_EQ(converted(token).length, -1) << token;
}

TEST(ShortDecimal, EndsAtEachSeparator) {
    double value = 0;
    for (const char separator : {' ', '\t', '\r', '\n', ','}) {
        const std::string text = "2.5" + std::string(1, separator) + std::string(64, '9');
        EXPECT_EQ(convertShortDecimal(text.data(), value), text.data() + 3);
    }
}

/// Up to 21 digits with a point among them, often with an exponent.
std::string tokenWithPoint(std::mt19937_64& random) {
    std::string token(1 + random() % 20, '0');
    for (char& digit : token)
        digit = static_cast<char>('0' + random() % 10);
    token.insert(random() % (token.size() + 1), ".");
    if (random() % 2 == 0)
        token.insert(0, "-");
    if (random() % 4 != 0)
        token +=
            (random() % 2 == 0 ? "E" : "e") + std::to_string(static_cast<int>(random() % 50) - 25);
    return token;
}

TEST(ShortDecimal, NeverDiffersFromTheLibrary) {
    std::mt19937_64 random(1);
    int count = 0;
    for (int n = 0; n < 300000; ++n) {
        const std::string token = tokenWithPoint(random);
        const Converted_s found = converted(token);
        if (found.length < 0)
            continue;
        ++count;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(found.value), bitsByLibrary(token)) << token;
        ASSERT_EQ(found.length, static_cast<std::int64_t>(token.size())) << token;
    }
    EXPECT_GT(count, 100000);
}

} // namespace
} // namespace quorvia::quorutildataio
