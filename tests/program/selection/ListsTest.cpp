#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "selection/NamePattern.h"
#include "selection/NumberList.h"
#include "selection/TimeRange.h"

namespace plot3d::program {
namespace {

using Indices = std::vector<std::size_t>;

const std::vector<std::string> names = {"X", "RHO", "RHO-U", "V2   ", "k", "K"};

std::string messageOf(auto&& refused) {
    try {
        refused();
    } catch (const Error& error) {
        EXPECT_EQ(error.kind(), ErrorKind::Usage);
        return error.message();
    }
    return "nothing was refused";
}

TEST(NamePattern, MeetsWholeNamesWithoutRegardToCase) {
    EXPECT_TRUE(meets("RHO-U", "rho-?"));
    EXPECT_TRUE(meets("RHO-U", "*-*"));
    EXPECT_TRUE(meets("abcabd", "*abd"));
    EXPECT_TRUE(meets("V2   ", "V2"));
    EXPECT_TRUE(meets("", "*"));
    EXPECT_FALSE(meets("RHO-U", "RHO"));
    EXPECT_FALSE(meets("RHO", "RHO?"));
    EXPECT_FALSE(meets("abcabd", "*abc"));
}

TEST(NamePattern, SelectsEachVariableOnceInTheirOrder) {
    EXPECT_EQ(namesThatMeet(names, "rho*,X,RHO"), (Indices{0, 1, 2}));
    EXPECT_EQ(namesThatMeet(names, "V?"), (Indices{3}));
}

TEST(NamePattern, ThatIsANameAsItStandsMeansThatOneAlone) {
    EXPECT_EQ(namesThatMeet(names, "K"), (Indices{5}));
    EXPECT_EQ(namesThatMeet(names, "?"), (Indices{0, 4, 5}));
}

TEST(NamePattern, ThatMeetsNothingIsToldWithTheNames) {
    EXPECT_EQ(messageOf([] {
                  namesThatMeet({"X", "Y"}, "X,Z");
              }),
              "no variable is called \"Z\"; there are: X, Y");
}

TEST(NumberList, SelectsEachNumberOnceInTheirOrder) {
    EXPECT_EQ(parseNumberList("4,1,3-5", 7, "zone"), (Indices{0, 2, 3, 4}));
    EXPECT_EQ(parseNumberList("7", 7, "zone"), (Indices{6}));
}

TEST(NumberList, RefusesWhatIsNoNumberOrNotThere) {
    EXPECT_EQ(messageOf([] { parseNumberList("2-9000000000", 3, "zone"); }),
              "there is no zone 9000000000: the zones of the data set are numbered from 1 to 3");
    for (const char* text : {"", "0", "1,", "3-2", "a", "-1", "1-2-3"})
        EXPECT_THROW(parseNumberList(text, 3, "zone"), Error) << text;
}

const std::vector<double> times = {0.0, static_cast<double>(0.1F), 0.5, 2.0};

TEST(TimeRange, TakesATimeARangeTheFirstOrTheLast) {
    EXPECT_EQ(parseTimes("0.5", times), (Indices{2}));
    EXPECT_EQ(parseTimes("0.2:2", times), (Indices{2, 3}));
    EXPECT_EQ(parseTimes(":0.5", times), (Indices{0, 1, 2}));
    EXPECT_EQ(parseTimes("first", times), (Indices{0}));
    EXPECT_EQ(parseTimes("last", times), (Indices{3}));
}

TEST(TimeRange, TakesATimeThatTheFileHoldsIn32Bits) {
    EXPECT_EQ(parseTimes("0.1", times), (Indices{1}));
    EXPECT_EQ(parseTimes("0:0.1", times), (Indices{0, 1}));
}

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

TEST(TimeRange, TakesTimesThatAreNotFiniteInTheirPlace) {
    const std::vector<double> strange = {-noNumber, -infinity, 0.5, infinity, noNumber};
    EXPECT_EQ(parseTimes("0.5", strange), (Indices{2}));
    EXPECT_EQ(parseTimes("inf", strange), (Indices{3}));
    EXPECT_EQ(parseTimes("-inf", strange), (Indices{1}));
    EXPECT_EQ(parseTimes("-inf:0.5", strange), (Indices{1, 2}));
    EXPECT_EQ(parseTimes("0.5:", strange), (Indices{2, 3, 4}));
    EXPECT_EQ(parseTimes(":0.5", strange), (Indices{0, 1, 2}));
    EXPECT_EQ(parseTimes(":", strange), (Indices{0, 1, 2, 3, 4}));
    EXPECT_EQ(parseTimes("nan", {0.5, noNumber}), (Indices{1}));
    EXPECT_EQ(parseTimes("last", {0.5, noNumber}), (Indices{1}));
    EXPECT_EQ(parseTimes("last", {0.5, infinity}), (Indices{1}));
    EXPECT_EQ(parseTimes("first", {-infinity, 0.5}), (Indices{0}));
    EXPECT_EQ(messageOf([] {
                  parseTimes("0.7", {0.5, infinity});
              }),
              "no time is 0.7; there are: 0.5, inf");
}

TEST(SameTime, AgreesToATolerance) {
    EXPECT_TRUE(isSameTime(1.0, 1.0000005, timeTolerance));
    EXPECT_FALSE(isSameTime(1.0, 1.00001, timeTolerance));
    EXPECT_TRUE(isSameTime(0.0, -0.0, {}));
    EXPECT_TRUE(isSameTime(1.0, 1.25, {0.0, 0.25}));
}

TEST(SameTime, IsThatOfItsLikeIfItIsNotFinite) {
    const TimeTolerance_s wide = {0.5, 1e300};
    const std::vector<double> kinds = {0.5, infinity, -infinity, noNumber};
    for (const double& one : kinds)
        for (const double& other : kinds)
            EXPECT_EQ(isSameTime(one, other, wide), &one == &other) << one << " and " << other;
}

TEST(TimeRange, ThatSelectsNothingIsToldWithTheTimes) {
    EXPECT_EQ(messageOf([] { parseTimes("0.7", {0, 0.5}); }), "no time is 0.7; there are: 0, 0.5");
    EXPECT_THROW(parseTimes("soon", times), Error);
    EXPECT_THROW(parseTimes("nan", times), Error);
}

} // namespace
} // namespace plot3d::program
