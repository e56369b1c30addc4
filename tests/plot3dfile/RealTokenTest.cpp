// The conversion of text to reals against the C library's, which the format's rules are taken from.
#include "plot3dfile/numbers/RealToken.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace quorvia::quorutildataio {
namespace {

double convertedByLibrary(const std::string& token) {
    double value = 0.0;
    EXPECT_NE(std::sscanf(token.c_str(), "%le", &value), EOF);
    return value;
}

bool hasSameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof(a)) == 0;
}

// The seed is random; PLOT3D_TEST_SEED repeats a run.
std::uint64_t seedOfThisRun() {
    const char* given = std::getenv("PLOT3D_TEST_SEED");
    return given != nullptr ? std::strtoull(given, nullptr, 10) : std::random_device{}();
}

std::string randomToken(std::mt19937_64& random) {
    static const std::string characters = "0123456789.+-E01234567890123456789.";
    const std::size_t length = 1 + random() % (random() % 2 == 0 ? 8 : longestRealToken);
    std::string token;
    for (std::size_t index = 0; index < length; ++index)
        token += characters[random() % characters.size()];
    return token;
}

TEST(RealToken, AgreesWithTheLibraryOnRandomTokens) {
    const std::uint64_t seed = seedOfThisRun();
    SCOPED_TRACE("PLOT3D_TEST_SEED=" + std::to_string(seed));
    std::mt19937_64 random(seed);
    for (int count = 0; count < 200000; ++count) {
        const std::string token = randomToken(random) + '.';
        double value = -1.0;
        ASSERT_TRUE(convertRealToken(token, value));
        ASSERT_TRUE(hasSameBits(value, convertedByLibrary(token))) << token;
    }
}

TEST(RealToken, AgreesWithTheLibraryAtTheEdgesOfTheRange) {
    for (const char* token : {"1.7976931348623157E308", "1.7976931348623159E308", "4.9E-324",
                              "2.4703282292062327E-324", "2.4703282292062328E-324", "-1E-400",
                              "1E400", "-1E400", "2.2250738585072011E-308", "0E9999999999"}) {
        double value = -1.0;
        EXPECT_TRUE(convertRealToken(token, value));
        EXPECT_TRUE(hasSameBits(value, convertedByLibrary(token))) << token;
    }
}

// Without point and exponent the library is not asked.
TEST(RealToken, IntegerIsRefusedIfAnythingIsLeftOver) {
    double value = -1.0;
    EXPECT_FALSE(convertRealToken("1-2", value));
    EXPECT_EQ(value, 0.0);
    EXPECT_TRUE(convertRealToken("-12", value));
    EXPECT_EQ(value, -12.0);
}

// Needs a locale with a decimal comma; which ones a machine has, nobody knows.
TEST(RealToken, DoesNotFollowTheProcesssLocale) {
    const char* comma = nullptr;
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8", "fr_FR.utf8"})
        comma = comma != nullptr ? comma : std::setlocale(LC_NUMERIC, name);
    double inRange = 0.0, outOfRange = 0.0;
    EXPECT_TRUE(convertRealToken("1.5E2", inRange));
    EXPECT_TRUE(convertRealToken("12345.5E-330", outOfRange));
    std::setlocale(LC_NUMERIC, "C");
    if (comma == nullptr)
        GTEST_SKIP() << "no locale with a decimal comma here";
    EXPECT_EQ(inRange, 150.0);
    EXPECT_TRUE(hasSameBits(outOfRange, convertedByLibrary("12345.5E-330")));
}

TEST(RepeatCount, IsOneLessThanTheCount) {
    EXPECT_EQ(furtherRepeats(3), 2);
    EXPECT_EQ(furtherRepeats(0), -1);
    EXPECT_EQ(furtherRepeats(2.999), 2);
    EXPECT_EQ(furtherRepeats(2.98), 1);
}

TEST(RepeatCount, OfTheLeastIntegerWraps) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(furtherRepeats(least), std::numeric_limits<std::int32_t>::max());
}

} // namespace
} // namespace quorvia::quorutildataio
