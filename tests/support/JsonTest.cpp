#include "support/Json.h"

#include <limits>

#include <gtest/gtest.h>

namespace quorvia::testsupport {
namespace {

std::string refusal(void (*act)()) {
    try {
        act();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "";
}

TEST(JsonValue, IsReadAndWrittenInTheOrderOfTheText) {
    const std::string text = R"({"b":[1,-2,2.5,"x"],"a":{"yes":true,"none":null}})";
    EXPECT_EQ(Json::parse(text).dump(), text);
    EXPECT_EQ(Json::parse(text),
              (Json{{"b", {1, -2, 2.5, "x"}}, {"a", {{"yes", true}, {"none", nullptr}}}}));
}

TEST(JsonValue, DiffersInKindOrderNameAndValue) {
    for (const char* other : {"[]", "null", "{\"a\":1}", "{\"b\":2,\"a\":1}", "{\"a\":1,\"c\":2}",
                              "{\"a\":1,\"b\":true}", "{\"a\":1,\"b\":\"2\"}"})
        EXPECT_NE(Json::parse(other), (Json{{"a", 1}, {"b", 2}})) << other;
    EXPECT_EQ(Json::parse("{\"a\":1.0,\"b\":2}"), (Json{{"a", 1}, {"b", 2}}));
}

TEST(JsonValue, TellsWhatItHasNot) {
    EXPECT_EQ(refusal([] { Json{{"a", 1}}["b"]; }), "{\"a\":1} has no member b");
    EXPECT_EQ(refusal([] { Json{1, 2}[2]; }), "[1,2] has no element 2");
    EXPECT_EQ(refusal([] { Json("a").get<int>(); }), "\"a\" has no whole number");
    EXPECT_EQ(refusal([] { Json().size(); }), "null has no elements");
}

TEST(JsonValue, RefusesWhatIsNoJsonAndNumbersItCannotHold) {
    EXPECT_NE(refusal([] { Json::parse("{\"a\":"); }), "");
    EXPECT_FALSE(Json::isJson("{\"a\":"));
    EXPECT_NE(refusal([] { Json::parse("9223372036854775808"); }), "");
    EXPECT_EQ(Json::parse("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
}

} // namespace
} // namespace quorvia::testsupport
