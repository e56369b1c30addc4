// `quorhost macro` in this process, with the fake add-on (FakeAddOn.cpp) in place of the real one:
// what each command of a macro does.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "app/Program.h"
#include "support/BytesOfFile.h"
#include "support/Json.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::host {
namespace {

using quorvia::testsupport::Json;
using Strings = std::vector<std::string>;

class MacroRun : public testing::Test {
protected:
    /// Gives the exit code; the streams hold what was written by this run alone.
    int play(const std::string& commands, const Strings& options = {}) {
        const std::string file = directory.file("macro.json");
        std::ofstream(file) << R"({"commands": [)" << commands << "]}";
        return playFile(file, options);
    }

    int playFile(const std::string& file, const Strings& options = {}) {
        out.str("");
        err.str("");
        Strings arguments = {"macro", "--addon", addOn, file};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return run(arguments, {out, err, 0});
    }

    Json outcomesOf(const std::string& commands, Strings options = {}) {
        options.insert(options.end(), {"--json", "-"});
        play(commands, options);
        return Json::parse(out.str());
    }

    Json finalOf(const std::string& commands) { return outcomesOf(commands)["final"]; }

    /// The texts of all messages of an outcome.
    static Strings textsOf(const Json& outcome) {
        Strings texts;
        for (const Json& message : outcome["messages"])
            texts.push_back(message["text"].get<std::string>());
        return texts;
    }

    std::string addOn = FAKE_ADDON;
    std::ostringstream out;
    std::ostringstream err;
    testsupport::TemporaryDirectory directory;
};

TEST_F(MacroRun, AccountHasALineForEachCommandAndATableOfTheEnd) {
    EXPECT_EQ(0, play(R"({"select": {"files": ["well.g", "well.q"]}}, {"describe": "loaded"},
                         {"fetch": {"zone": 2, "variable": 2}}, {"deleteZones": [1]})"));
    EXPECT_EQ("Commands\n"
              "  #  command                   outcome\n"
              "  1  select well.g and 1 more  loaded\n"
              "  2  describe \"loaded\"         2 zones, 2 variables\n"
              "  3  fetch zone 2, variable 2  30 values\n"
              "  4  deleteZones 1             done\n"
              "\n"
              "Data set \"Fake\": 1 zone, 2 variables, plot type 3D\n"
              "\n"
              "Variables\n"
              "  #  name      type     minimum  maximum\n"
              "  1  X         float32    10101    50302\n"
              "  2  Density   float32   -50302   -10101\n"
              "\n"
              "Zones\n"
              "  #  name    type     size       strand  time  parent  fields\n"
              "  1  Second  ordered  2 x 3 x 5       -     0       -  2 deferred\n",
              out.str());
    EXPECT_EQ("", err.str());
}

TEST_F(MacroRun, MacroWithoutLoadEndsWell) {
    EXPECT_EQ(0, play(""));
    EXPECT_EQ("Commands\n  #  command  outcome\n\nNo data set\n", out.str());
    EXPECT_EQ(true, finalOf("")["ok"]);
}

TEST_F(MacroRun, JsonHoldsEachDescriptionAndTheEnd) {
    const Json outcomes = outcomesOf(R"({"describe": "empty"}, {"select": {"files": ["well.g"]}},
                                        {"describe": "loaded"}, {"resetFrame": true})");
    EXPECT_EQ("quorhost.session/1", outcomes["schema"]);
    EXPECT_TRUE(outcomes["descriptions"]["empty"]["dataSet"].isNull());
    EXPECT_EQ(2U, outcomes["descriptions"]["loaded"]["dataSet"]["zones"].size());
    EXPECT_TRUE(outcomes["final"]["dataSet"].isNull());
    EXPECT_EQ("quorhost.outcome/1", outcomes["final"]["schema"]);
}

TEST_F(MacroRun, JsonGoesToAFileBesideTheAccount) {
    EXPECT_EQ(0, play(R"({"describe": "a"})", {"--json", directory.file("o.json")}));
    EXPECT_TRUE(
        Json::parse(testsupport::bytesOfFile(directory.file("o.json")))["descriptions"].contains(
            "a"));
    EXPECT_EQ(0U, out.str().find("Commands\n"));
}

TEST_F(MacroRun, EachOutcomeTellsWhatCameSinceTheOneBefore) {
    const Json outcomes = outcomesOf(
        R"({"select": {"files": ["events.g"]}}, {"describe": "first"}, {"describe": "nothing"},
           {"select": {"files": ["events.g"]}}, {"stateChange": 15})");
    const Json& first = outcomes["descriptions"]["first"];
    EXPECT_EQ(Json({"Loading the fake"}), first["progress"]);
    EXPECT_EQ(Json::parse(R"([{"code": 3, "members": [1, 2]}])"), first["stateChanges"]);
    EXPECT_EQ(Json::parse(R"([{"event": "begin", "success": null},
                              {"event": "end", "success": true}])"),
              first["undo"]);
    EXPECT_EQ(1, first["redraws"]);
    for (const char* slice : {"messages", "progress", "stateChanges", "undo"})
        EXPECT_EQ(Json::array(), outcomes["descriptions"]["nothing"][slice]) << slice;
    EXPECT_EQ(0, outcomes["descriptions"]["nothing"]["redraws"]);
    EXPECT_EQ(first["undo"], outcomes["final"]["undo"]);
    EXPECT_EQ(1, outcomes["final"]["redraws"]);
    EXPECT_EQ((Strings{"State change 3", "State change 15"}), textsOf(outcomes["final"]));
}

TEST_F(MacroRun, OutcomeIsOkIfTheLastLoadWas) {
    const std::string good = R"({"select": {"files": ["well.g"]}})";
    const std::string bad = R"({"select": {"files": ["fail.g"]}})";
    EXPECT_EQ(1, play(good + "," + bad));
    EXPECT_EQ(0, play(bad + "," + good));
    const Json outcomes = outcomesOf(bad + R"(, {"describe": "bad"}, )" + good);
    EXPECT_EQ(false, outcomes["descriptions"]["bad"]["ok"]);
    EXPECT_EQ(true, outcomes["final"]["ok"]);
}

TEST_F(MacroRun, FailedLoadDoesNotEndTheMacro) {
    EXPECT_EQ(1, play(R"({"select": {"files": ["well.g"]}}, {"select": {"files": ["fail.g"]}},
                         {"deleteZones": [2]})"));
    EXPECT_NE(std::string::npos, out.str().find("  2  select fail.g  failed\n"));
    EXPECT_NE(std::string::npos, out.str().find("  3  deleteZones 2  done\n"));
    EXPECT_EQ("quorhost: error: It can't be read.\n    File: fail.g\n", err.str());
}

TEST_F(MacroRun, SelectionIsHandedOverWithItsSwitches) {
    play(R"({"select": {"files": ["well.g"], "append": true}})");
    EXPECT_EQ("quorhost: error: The loader \"Fake Loader\" can't append.\n", err.str());
    play(R"({"select": {"files": ["well.g"], "advanced": true}})");
    EXPECT_EQ("quorhost: error: The loader \"Fake Loader\" has no advanced options.\n", err.str());
}

TEST_F(MacroRun, InstructionsAreHandedOverAsTheyStand) {
    const Json outcome = finalOf(R"({"instructions": ["A", "1", "B", "2", "well.g"]})");
    EXPECT_EQ(true, outcome["ok"]);
    EXPECT_EQ(Json({"A", "1", "B", "2", "well.g"}), outcome["instructions"]);
}

TEST_F(MacroRun, ReplayHandsOverWhatTheLastLoadLeft) {
    const Json outcome =
        finalOf(R"({"instructions": ["A", "1", "B", "2", "well.g"]}, {"resetFrame": true},
                   {"replay": true})");
    EXPECT_EQ(true, outcome["ok"]);
    EXPECT_EQ(2U, outcome["dataSet"]["zones"].size());
}

TEST_F(MacroRun, ReplayWithoutInstructionsEndsTheMacro) {
    EXPECT_EQ(1, play(R"({"select": {"files": ["fail.g"]}}, {"replay": true}, {"describe": "x"})"));
    EXPECT_NE(std::string::npos,
              err.str().find("macro.json: command 2: no load has left instructions to replay\n"));
    EXPECT_EQ(std::string::npos, out.str().find("describe"));
}

TEST_F(MacroRun, AnswersAreUsedUpInOrderAndThenSayNo) {
    const std::string ask = R"({"select": {"files": ["ask.g"]}})";
    const Json outcome = finalOf(R"({"answers": [true, false]}, )" + ask + "," + ask + "," + ask);
    EXPECT_EQ(true, outcome["messages"][0]["answer"]);
    EXPECT_EQ(false, outcome["messages"][1]["answer"]);
    EXPECT_EQ(false, outcome["messages"][2]["answer"]);
}

TEST_F(MacroRun, YesAnswersWhatTheAnswersLeave) {
    const std::string ask = R"({"select": {"files": ["ask.g"]}})";
    EXPECT_EQ(0, play(ask, {"--yes"}));
    EXPECT_EQ(1, play(R"({"answers": [false]}, )" + ask, {"--yes"}));
    EXPECT_EQ(0, play(R"({"answers": [false]}, )" + ask + "," + ask, {"--yes"}));
}

TEST_F(MacroRun, HostIsAsTheMacroSetsIt) {
    const std::string tell = R"({"select": {"files": ["tell-host.g"]}})";
    EXPECT_EQ(Strings{"sharing 1, plot type 0, version 1000377"}, textsOf(finalOf(tell)));
    const std::string set =
        R"({"host": {"sharingAllowed": false, "plotType": "sketch", "version": 1000400}}, )";
    EXPECT_EQ(Strings{"sharing 0, plot type 4, version 1000400"}, textsOf(finalOf(set + tell)));
}

TEST_F(MacroRun, HostRefusesInstructionsWhileItIsToldTo) {
    const std::string load = R"({"select": {"files": ["well.g"]}})";
    const std::string refuse = R"({"host": {"refuseInstructions": true}}, )";
    EXPECT_EQ(1, play(refuse + load));
    EXPECT_EQ(0, play(refuse + R"({"host": {"refuseInstructions": false}}, )" + load));
}

TEST_F(MacroRun, TimesOfFileNamesAreTheHostsOwnOrGivenOrNone) {
    const auto times = [this](const std::string& value) {
        return textsOf(finalOf(R"({"host": {"timesFromFileNames": )" + value +
                               R"(}}, {"select": {"files": ["tell-times.g"]}})"));
    };
    EXPECT_EQ(Strings{"3.000000 5.000000"}, times("null"));
    EXPECT_EQ(Strings{"0.250000 7.000000"}, times("[0.25, 7]"));
    EXPECT_EQ(Strings{"none"}, times("[]"));
}

TEST_F(MacroRun, DataSetIsPutIntoTheFrameByHand) {
    const Json dataSet = finalOf(R"({"dataSet": {"title": "Hand", "variables": ["X", "P "],
        "zones": [{"name": "Box", "i": 2, "j": 3, "k": 5, "types": ["float64", "int32"],
                   "cellCentred": [2], "strandId": 7, "solutionTime": 0.5}]}})")["dataSet"];
    EXPECT_EQ("Hand", dataSet["title"]);
    EXPECT_EQ(Json({"X", "P "}), dataSet["variables"]);
    const Json& zone = dataSet["zones"][0];
    EXPECT_EQ("Box", zone["name"]);
    EXPECT_EQ(7, zone["strandId"]);
    EXPECT_EQ(0.5, zone["solutionTime"]);
    EXPECT_EQ("float64", zone["fields"][0]["type"]);
    EXPECT_EQ(30, zone["fields"][0]["count"]);
    EXPECT_EQ(8, zone["fields"][1]["count"]);
    EXPECT_EQ("stored", zone["fields"][1]["state"]);
    EXPECT_EQ(0.0, zone["fields"][1]["max"]);
}

TEST_F(MacroRun, LoaderFindsTheDataSetThatWasMadeByHand) {
    const Json outcome = finalOf(
        R"({"dataSet": {"variables": ["X", "Y", "Z"],
                        "zones": [{"i": 2, "types": ["float64", "float32", "int32"],
                                   "cellCentred": [2], "passive": [3]}]}},
           {"select": {"files": ["tell-fields.g"]}})");
    EXPECT_EQ(Strings{"2nodal;1cells;3nodal passive;"}, textsOf(outcome));
    EXPECT_EQ("empty", outcome["dataSet"]["zones"][0]["fields"][2]["state"]);
}

TEST_F(MacroRun, UnstructuredZonesCanBeMadeByHand) {
    const Json zones = finalOf(R"({"dataSet": {"variables": ["X"],
        "zones": [{"type": "triangles", "i": 7, "j": 5, "cellCentred": [1]},
                  {"type": "tetrahedra", "i": 11, "j": 13}]}})")["dataSet"]["zones"];
    EXPECT_EQ("triangles", zones[0]["type"]);
    EXPECT_EQ(5, zones[0]["fields"][0]["count"]);
    EXPECT_EQ(11, zones[1]["fields"][0]["count"]);
}

TEST_F(MacroRun, DataSetThatFindsNoMemoryEndsTheMacro) {
    EXPECT_EQ(1, play(R"({"dataSet": {"variables": ["X"], "zones": [{"i": 1000000000000}]}})"));
    EXPECT_NE(std::string::npos,
              err.str().find("command 1: there is no memory for the values of the data set\n"));
}

TEST_F(MacroRun, InterruptionComesAtItsStepInTheNextLoadAlone) {
    const std::string load = R"({"select": {"files": ["steps.g"]}})";
    const Json outcomes =
        outcomesOf(R"({"interruptAtStep": 2}, )" + load + R"(, {"describe": "stopped"}, )" + load);
    EXPECT_EQ(false, outcomes["descriptions"]["stopped"]["ok"]);
    EXPECT_EQ(Strings{"Interrupted by the user."}, textsOf(outcomes["descriptions"]["stopped"]));
    EXPECT_EQ(true, outcomes["final"]["ok"]);
    EXPECT_EQ(0, play(R"({"interruptAtStep": 4}, )" + load));
}

TEST_F(MacroRun, CallFailsInTheNextLoadAlone) {
    const std::string load = R"({"select": {"files": ["steps.g"]}})";
    const std::string fail = R"({"fail": {"operation": "TaskProgress::step", "call": 3}}, )";
    const Json outcomes =
        outcomesOf(load + "," + fail + load + R"(, {"describe": "failed"}, )" + load);
    EXPECT_EQ(Strings{"A step failed."}, textsOf(outcomes["descriptions"]["failed"]));
    EXPECT_EQ(true, outcomes["final"]["ok"]);
}

TEST_F(MacroRun, PlannedFaultsSpareDescriptions) {
    EXPECT_EQ(1, play(R"({"fail": {"operation": "TaskProgress::step", "call": 1}},
                         {"interruptAtStep": 3}, {"describe": "a"},
                         {"select": {"files": ["steps.g"]}})"));
    EXPECT_EQ("quorhost: error: A step failed.\n", err.str());
}

TEST_F(MacroRun, StateChangeReachesTheAddOn) {
    EXPECT_EQ(Strings{"State change 22"}, textsOf(finalOf(R"({"stateChange": 22})")));
}

TEST_F(MacroRun, FetchAllTellsHowManyFieldsCame) {
    play(R"({"select": {"files": ["unreadable.g"]}}, {"fetch": "all"})");
    EXPECT_NE(std::string::npos, out.str().find("  2  fetch all            3 of 4 fields\n"));
    EXPECT_EQ(0U, err.str().find("quorhost: error: The values are gone.\n"));
}

TEST_F(MacroRun, FieldThatCantBeReadDoesNotEndTheMacro) {
    EXPECT_EQ(3, play(R"({"select": {"files": ["unreadable.g"]}},
                         {"fetch": {"zone": 2, "variable": 2}}, {"unload": "all"})"));
    EXPECT_NE(std::string::npos, out.str().find("failed: The values are gone.\n"));
    EXPECT_NE(std::string::npos, out.str().find("  3  unload all"));
}

TEST_F(MacroRun, LastLoadThatLeftSomethingOutEndsWith1) {
    const std::string partly = R"({"select": {"files": ["partly.g"]}})";
    const std::string well = R"({"select": {"files": ["well.g"]}})";
    EXPECT_EQ(1, play(well + "," + partly));
    EXPECT_NE(std::string::npos, err.str().find("the last load came in, but with an error"));
    EXPECT_EQ(0, play(partly + "," + well));
}

TEST_F(MacroRun, JsonThatCannotBeWrittenLeavesTheOldFile) {
    const std::string file = directory.file("o.json");
    std::ofstream(file) << "old";
    std::filesystem::create_directory(directory.file("full"));
    EXPECT_EQ(1, play("", {"--json", directory.file("full")}));
    EXPECT_EQ(2, play(R"({"nothing": 1})", {"--json", file}));
    std::ifstream in(file);
    EXPECT_EQ("old", std::string(std::istreambuf_iterator<char>(in), {}));
}

TEST_F(MacroRun, WhatIsNotThereEndsTheMacro) {
    const std::string load = R"({"select": {"files": ["well.g"]}}, )";
    const std::pair<std::string, const char*> table[] = {
        {R"({"fetch": {"zone": 3, "variable": 1}})", "there is no variable 1 of a zone 3"},
        {R"({"fetch": {"zone": 2, "variable": 3}})", "there is no variable 3 of a zone 2"},
        {R"({"deleteZones": [1, 3]})", "there is no zone 3"}};
    for (const auto& [command, problem] : table) {
        EXPECT_EQ(1, play(load + command));
        EXPECT_NE(std::string::npos, err.str().find(std::string("command 2: ") + problem + "\n"));
    }
    EXPECT_EQ(1, play(R"({"fetch": "all"})"));
    EXPECT_EQ(1, play(R"({"deleteZones": [1]})"));
}

TEST_F(MacroRun, DeletedZonesCloseUp) {
    const Json zones =
        finalOf(R"({"select": {"files": ["well.g"]}}, {"deleteZones": [1]})")["dataSet"]["zones"];
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ("Second", zones[0]["name"]);
    EXPECT_EQ(1, zones[0]["number"]);
}

TEST_F(MacroRun, BadMacroIsRefusedBeforeAnythingRuns) {
    EXPECT_EQ(2, play(R"({"select": {"files": ["fail.g"]}}, {"unlaod": "all"})"));
    EXPECT_EQ("", out.str());
    EXPECT_EQ("quorhost: error: " + directory.file("macro.json") +
                  ": command 2: there is no command \"unlaod\"; the nearest known name is "
                  "\"unload\"\n",
              err.str());
}

TEST_F(MacroRun, FileThatIsNotThereIsABadMacro) {
    EXPECT_EQ(2, playFile(directory.file("none.json")));
    EXPECT_EQ("quorhost: error: " + directory.file("none.json") +
                  ": it can't be read: No such file or directory\n",
              err.str());
    EXPECT_EQ(2, playFile(directory.path().string()));
}

TEST_F(MacroRun, AddOnIsNotLoadedBeforeItIsNeeded) {
    addOn = directory.file("none.so");
    EXPECT_EQ(0, play(R"({"dataSet": {"variables": ["X"]}}, {"fetch": "all"})"));
    EXPECT_EQ(1, play(R"({"describe": "a"})"));
    EXPECT_EQ(0U, err.str().find("quorhost: error: The add-on can't be loaded: "));
}

TEST_F(MacroRun, WhatTheAddOnStillHoldsAtTheEndIsTold) {
    play(R"({"select": {"files": ["leak.g"]}})");
    EXPECT_NE(std::string::npos, err.str().find("quorhost: contract violation: "));
}

TEST_F(MacroRun, CtrlCEndsTheMacro) {
    EXPECT_EQ(130, play(R"({"select": {"files": ["ctrl-c.g"]}}, {"describe": "never"})"));
    EXPECT_NE(std::string::npos,
              err.str().find("quorhost: interrupted, the rest of the macro was not played\n"));
    EXPECT_EQ(std::string::npos, out.str().find("never"));
}

TEST_F(MacroRun, NothingOfAMacroOutlivesIt) {
    play(R"({"host": {"sharingAllowed": false}}, {"select": {"files": ["well.g"]}},
            {"interruptAtStep": 1})");
    const Json outcome = finalOf(R"({"select": {"files": ["tell-host.g"]}})");
    EXPECT_EQ(Strings{"sharing 1, plot type 0, version 1000377"}, textsOf(outcome));
    EXPECT_TRUE(outcome["dataSet"].isNull());
}

} // namespace
} // namespace quorvia::host
