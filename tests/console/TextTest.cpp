#include "console/Text.h"

#include <gtest/gtest.h>

#include "console/NearestName.h"
#include "console/Terminal.h"

namespace console {
namespace {

using Lines = std::vector<std::string>;

TEST(Text, OnOneLineHasNoControlCharacters) {
    EXPECT_EQ(onOneLine("a\tb\nc\x1b[1m"), "a b?c?[1m");
}

TEST(Text, WidthCountsLettersNotBytes) {
    EXPECT_EQ(widthOf("Flügel"), 6U);
    EXPECT_EQ(cutToWidth("Flügel", 3), "Flü");
}

TEST(Text, ShortenedKeepsBothEnds) {
    EXPECT_EQ(shortened("vortex_t0.25.q", 14), "vortex_t0.25.q");
    EXPECT_EQ(shortened("vortex_t0.25.q", 9), "vort…25.q");
    EXPECT_EQ(shortened("Flügelgitter", 5), "Fl…er");
}

TEST(Text, IsWrappedAtBlanks) {
    EXPECT_EQ(wrapped("two grids of one size", 10), (Lines{"two grids", "of one", "size"}));
    EXPECT_EQ(wrapped("a verylongwordindeed b", 6), (Lines{"a", "verylongwordindeed", "b"}));
    EXPECT_EQ(wrapped("any width", 0), Lines{"any width"});
    EXPECT_EQ(wrapped("", 10), Lines{""});
}

TEST(Text, IsWrappedBehindAnIndent) {
    EXPECT_EQ(wrappedBehind(3, "one two", 7), "   one\n   two");
}

TEST(Paint, LeavesTextsAloneUnlessItIsOn) {
    EXPECT_EQ(Paint_s{}(Colour_e::Red, "error"), "error");
    EXPECT_EQ(Paint_s{true}(Colour_e::Red, "error"), "\x1b[31merror\x1b[0m");
}

TEST(NearestName, TakesTheFewestChanges) {
    const std::vector<std::string_view> known = {"info", "stats", "index"};
    EXPECT_EQ(nearestName("inof", known), "info");
    EXPECT_EQ(nearestName("STAT", known), "stats");
}

} // namespace
} // namespace console
