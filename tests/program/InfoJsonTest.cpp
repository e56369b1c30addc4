#include <set>

#include <nlohmann/json.hpp>

#include "program/InfoFixture.h"

namespace plot3d::program {
namespace {

using Json = nlohmann::json;

std::set<std::string> keysOf(const Json& object) {
    std::set<std::string> keys;
    for (const auto& item : object.items())
        keys.insert(item.key());
    return keys;
}

class InfoJson : public InfoFixture {
protected:
    Json first(const std::vector<std::string>& arguments) {
        return Json::parse(told(arguments)).at("files").at(0);
    }
};

TEST_F(InfoJson, EveryKeyIsThereForEveryFile) {
    const std::set<std::string> keys = {
        "file",   "ok",    "kind",      "encoding", "markerBytes", "byteOrder", "precision",
        "layout", "style", "multiGrid", "iBlank",   "grids",       "variables", "scalars",
        "bytes",  "why",   "problem",   "warnings", "alsoFits",    "names"};
    const Json all = Json::parse(told({"--json", "comb.q", "multi.x", "my blunt.q"}));
    EXPECT_EQ(keysOf(all), (std::set<std::string>{"schema", "files"}));
    EXPECT_EQ(all.at("schema"), "plot3d.info/1");
    ASSERT_EQ(all.at("files").size(), 3U);
    for (const Json& file : all.at("files"))
        EXPECT_EQ(keysOf(file), keys);
    EXPECT_EQ(code, 1);
}

TEST_F(InfoJson, OfASolution) {
    const Json file = first({"--json", "comb.q"});
    EXPECT_EQ(file.at("kind"), "solution");
    EXPECT_EQ(file.at("encoding"), "binary");
    EXPECT_EQ(file.at("byteOrder"), "big");
    EXPECT_EQ(file.at("layout"), "3DWhole");
    EXPECT_EQ(file.at("style"), "Classic");
    EXPECT_EQ(file.at("grids"), Json::parse(R"([{"i": 57, "j": 33, "k": 25}])"));
    EXPECT_EQ(file.at("bytes"),
              Json::parse(R"({"size": 940528, "used": 940528, "missing": 0, "surplus": 0})"));
    EXPECT_EQ(file.at("scalars").at(0).at("mach"), 0.5);
}

TEST_F(InfoJson, NullStandsWhereAThingHasNoMeaning) {
    const Json solution = first({"--json", "comb.q"});
    for (const char* key : {"markerBytes", "iBlank", "problem"})
        EXPECT_TRUE(solution.at(key).is_null()) << key;
    const Json bad = first({"--json", "my blunt.q"});
    for (const char* key : {"kind", "layout", "style", "multiGrid", "iBlank", "variables"})
        EXPECT_TRUE(bad.at(key).is_null()) << key;
}

TEST_F(InfoJson, EndsBehindTheLastWholeFileWhereItIsStopped) {
    stoppedBehind = "multi.x";
    const Json all = Json::parse(told({"--json", "comb.q", "multi.x", "my blunt.q"}));
    EXPECT_EQ(code, 130);
    ASSERT_EQ(all.at("files").size(), 2U);
    EXPECT_EQ(all.at("files").at(1).at("file"), "multi.x");
}

TEST_F(InfoJson, OfAProblem) {
    EXPECT_EQ(first({"--json", "my blunt.q"}).at("problem"), Json::parse(R"({
        "what": "484 bytes too many", "byte": 819228, "line": null, "column": null,
        "expected": "the file's end", "found": "484 bytes",
        "try": ["plot3d", "info", "--why", "my blunt.q"]})"));
}

TEST_F(InfoJson, WhyHasCandidatesAndMisfits) {
    const Json why = first({"--json", "my blunt.q"}).at("why");
    EXPECT_EQ(why.at(0).at("candidate"), Json::parse(R"({"kind": "solution", "layout": "3DWhole",
        "style": "Classic", "multiGrid": false, "iBlank": false, "precision": 32, "byteOrder": "big", "relaxed": false})"));
    EXPECT_EQ(why.at(0).at("misfit"), Json::parse(R"({"what": "484 bytes too many",
        "byte": 819228, "expected": "the file's end", "found": "484 bytes"})"));
    EXPECT_TRUE(why.at(2).at("misfit").is_null());
}

} // namespace
} // namespace plot3d::program
