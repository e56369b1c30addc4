#include <gtest/gtest.h>
#include <limits>

#include "console/JsonText.h"

namespace console {
namespace {

using Texts = std::vector<std::string>;

TEST(Utf8, HasShortestLettersUpToTheLastCodePoint) {
    for (const char* text : {"", "plain \"\\\n\x7F", "\xC2\x80", "\xE0\xA0\x80", "\xED\x9F\xBF",
                             "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(text)) << text;
}

TEST(Utf8, HasNoLongerLettersSurrogatesOrHalves) {
    for (const char* text :
         {"\x80", "a\xFF", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80",
          "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC2", "\xE2\x82",
          "\xE2\x28\xA1", "b\xF0\x9F\x98"})
        EXPECT_FALSE(isUtf8(text)) << text;
}

TEST(JsonText, StandsInQuotes) {
    EXPECT_EQ(jsonText(""), R"("")");
    EXPECT_EQ(jsonText("a \"b\" \\ c/\n\x01\x7F"), "\"a \\\"b\\\" \\\\ c/\\n\\u0001\x7F\"");
    EXPECT_EQ(jsonText("\xC3\xA4"), "\"\xC3\xA4\"");
    EXPECT_EQ(jsonText("a\xFFz"), "\"a\xEF\xBF\xBDz\"");
}

TEST(JsonNumber, IsShortAndExact) {
    EXPECT_EQ(jsonNumber(0.0), "0.0");
    EXPECT_EQ(jsonNumber(1e-7), "1e-07");
    EXPECT_EQ(jsonNumber(0.1), "0.1");
}

TEST(JsonNumber, IsAWordWhereJsonHasNoSuchNumber) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(jsonNumber(infinity), "\"Infinity\"");
    EXPECT_EQ(jsonNumber(-infinity), "\"-Infinity\"");
    EXPECT_EQ(jsonNumber(std::numeric_limits<double>::quiet_NaN()), "\"NaN\"");
}

TEST(JsonTexts, AreOneOrAListBehindTheKeys) {
    EXPECT_EQ(jsonTexts(R"({"a": {"b": "one"}})", {"a", "b"}), (Texts{"one"}));
    EXPECT_EQ(jsonTexts(R"({"a": ["one", "t\u0077o"]})", {"a"}), (Texts{"one", "two"}));
    EXPECT_EQ(jsonTexts(R"({"a": []})", {"a"}), Texts());
}

TEST(JsonTexts, AreNothingWhereSomethingElseStands) {
    for (const char* json :
         {"", "{", "[]", "{}", "3", R"({"a": 1})", R"({"a": {"a": "x"}})", R"({"a": ["x", 1]})",
          R"({"a": null})", R"({"b": "x"})", "\"a\"", "{\"a\": \"\xFF\"}"})
        EXPECT_EQ(jsonTexts(json, {"a"}), std::nullopt) << json;
}

} // namespace
} // namespace console
