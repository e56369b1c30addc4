#include <set>

#include "program/InfoFixture.h"
#include "support/Json.h"

namespace plot3d::program {
namespace {

using quorvia::testsupport::Json;

std::set<std::string> keysOf(const Json& object) {
    return {object.names().begin(), object.names().end()};
}

class InfoJson : public InfoFixture {
protected:
    Json first(const std::vector<std::string>& arguments) {
        return Json::parse(told(arguments))["files"][0];
    }
};

TEST_F(InfoJson, EveryKeyIsThereForEveryFile) {
    const std::set<std::string> keys = {
        "file",   "ok",    "kind",      "encoding", "markerBytes", "byteOrder", "precision",
        "layout", "style", "multiGrid", "iBlank",   "grids",       "variables", "scalars",
        "bytes",  "why",   "problem",   "warnings", "alsoFits",    "names"};
    const Json all = Json::parse(told({"--json", "comb.q", "multi.x", "my blunt.q"}));
    EXPECT_EQ(keysOf(all), (std::set<std::string>{"schema", "files"}));
    EXPECT_EQ(all["schema"], "plot3d.info/1");
    ASSERT_EQ(all["files"].size(), 3U);
    for (const Json& file : all["files"])
        EXPECT_EQ(keysOf(file), keys);
    EXPECT_EQ(code, 1);
}

TEST_F(InfoJson, OfASolution) {
    const Json file = first({"--json", "comb.q"});
    EXPECT_EQ(file["kind"], "solution");
    EXPECT_EQ(file["encoding"], "binary");
    EXPECT_EQ(file["byteOrder"], "big");
    EXPECT_EQ(file["layout"], "3DWhole");
    EXPECT_EQ(file["style"], "Classic");
    EXPECT_EQ(file["grids"], Json::parse(R"([{"i": 57, "j": 33, "k": 25}])"));
    EXPECT_EQ(file["bytes"],
              Json::parse(R"({"size": 940528, "used": 940528, "missing": 0, "surplus": 0})"));
    EXPECT_EQ(file["scalars"][0]["mach"], 0.5);
}

TEST_F(InfoJson, NullStandsWhereAThingHasNoMeaning) {
    const Json solution = first({"--json", "comb.q"});
    for (const char* key : {"markerBytes", "iBlank", "problem"})
        EXPECT_TRUE(solution[key].isNull()) << key;
    const Json bad = first({"--json", "my blunt.q"});
    for (const char* key : {"kind", "layout", "style", "multiGrid", "iBlank", "variables"})
        EXPECT_TRUE(bad[key].isNull()) << key;
}

TEST_F(InfoJson, EndsBehindTheLastWholeFileWhereItIsStopped) {
    stoppedBehind = "multi.x";
    const Json all = Json::parse(told({"--json", "comb.q", "multi.x", "my blunt.q"}));
    EXPECT_EQ(code, 130);
    ASSERT_EQ(all["files"].size(), 2U);
    EXPECT_EQ(all["files"][1]["file"], "multi.x");
}

TEST_F(InfoJson, OfAProblem) {
    EXPECT_EQ(first({"--json", "my blunt.q"})["problem"], Json::parse(R"({
        "what": "484 bytes too many", "byte": 819228, "line": null, "column": null,
        "expected": "the file's end", "found": "484 bytes",
        "try": ["plot3d", "info", "--why", "my blunt.q"]})"));
}

TEST_F(InfoJson, WhyHasCandidatesAndMisfits) {
    const Json why = first({"--json", "my blunt.q"})["why"];
    EXPECT_EQ(why[0]["candidate"], Json::parse(R"({"kind": "solution", "layout": "3DWhole",
        "style": "Classic", "multiGrid": false, "iBlank": false, "precision": 32, "byteOrder": "big", "relaxed": false})"));
    EXPECT_EQ(why[0]["misfit"], Json::parse(R"({"what": "484 bytes too many",
        "byte": 819228, "expected": "the file's end", "found": "484 bytes"})"));
    EXPECT_TRUE(why[2]["misfit"].isNull());
}

} // namespace
} // namespace plot3d::program
