#include "filenames/SimplePatternMatcher.h"

#include <gtest/gtest.h>

namespace quorvia::quorutildataio {
namespace {

TEST(SimplePatternMatcher, StarsSayWhereThePatternStands) {
    EXPECT_TRUE(SimplePatternMatcher({"g.*"}).matches("g.dat"));
    EXPECT_FALSE(SimplePatternMatcher({"g.*"}).matches("wing.dat"));
    EXPECT_TRUE(SimplePatternMatcher({"*.g"}).matches("wing.g"));
    EXPECT_FALSE(SimplePatternMatcher({"*.g"}).matches("wing.gz"));
    EXPECT_TRUE(SimplePatternMatcher({"*.in.*"}).matches("wing.in.1"));
    EXPECT_FALSE(SimplePatternMatcher({"*.in.*"}).matches("wing.in"));
}

TEST(SimplePatternMatcher, IgnoresPatternsWithoutAStarAtAnEnd) {
    EXPECT_FALSE(SimplePatternMatcher({"wing.g"}).matches("wing.g"));
    EXPECT_FALSE(SimplePatternMatcher({"w*g"}).matches("wing"));
}

TEST(SimplePatternMatcher, TakesAStarInsideForItself) {
    EXPECT_TRUE(SimplePatternMatcher({"a*b*"}).matches("a*bc"));
    EXPECT_FALSE(SimplePatternMatcher({"a*b*"}).matches("axbc"));
}

TEST(SimplePatternMatcher, LowersTheTextButNotThePattern) {
    EXPECT_TRUE(SimplePatternMatcher({"*.g"}).matches("WING.G"));
    EXPECT_FALSE(SimplePatternMatcher({"*.G"}).matches("WING.G"));
}

TEST(SimplePatternMatcher, AsksAllPatterns) {
    const SimplePatternMatcher matcher({"*.x", "q.*", "plain", "*.f"});
    EXPECT_TRUE(matcher.matches("q.1"));
    EXPECT_TRUE(matcher.matches("a.f"));
    EXPECT_FALSE(matcher.matches("plain"));
}

TEST(SimplePatternMatcher, WithoutPatternsMatchesNothing) {
    EXPECT_FALSE(SimplePatternMatcher({}).matches("a"));
    EXPECT_FALSE(SimplePatternMatcher({}).matches(""));
}

TEST(Comparisons, OfAnEmptyText) {
    EXPECT_FALSE(StartsWith()("", "a"));
    EXPECT_FALSE(EndsWith()("", "a"));
    EXPECT_FALSE(Contains()("", "a"));
    EXPECT_TRUE(StartsWith()("", "") && EndsWith()("", "") && Contains()("", ""));
}

TEST(Comparisons, WithAnEmptyPattern) {
    EXPECT_TRUE(StartsWith()("a", "") && EndsWith()("a", "") && Contains()("a", ""));
    EXPECT_TRUE(SimplePatternMatcher({"*"}).matches("anything"));
    EXPECT_TRUE(SimplePatternMatcher({"**"}).matches(""));
}

} // namespace
} // namespace quorvia::quorutildataio
