// Loads at a host that refuses, fails, interrupts, or is not the one that the add-on asks for.
#include "acceptance/macros/MacroSession.h"

namespace quorvia::testsupport {
namespace {

class HostBehaviour : public MacroSession {
protected:
    HostBehaviour() : load_(select({files_.grid("a.x"), files_.solution("a.q", 0.25)})) {
        SmallFiles small = files_;
        small.grids = {{5, 2, 3}};
        before_ = select({small.grid("before.x")});
    }

    static Json fail(const std::string& operation, int call) {
        return command("fail", {{"operation", operation}, {"call", call}});
    }
    static Json host(const std::string& key, const Json& value) {
        return command("host", command(key, value));
    }

    Json load_;
    Json before_;
};

TEST_F(HostBehaviour, RefusedInstructionsFailTheLoadThatHasMadeItsDataSet) {
    play({load_, describe("whole"), command("resetFrame", true), host("refuseInstructions", true),
          load_});
    EXPECT_EQ(exitCode_, 1);
    EXPECT_EQ(last()["ok"], false);
    EXPECT_EQ(dataSet(last()), dataSet(described("whole")));
}

TEST_F(HostBehaviour, EarlyInterruptionKeepsTheDataSetThatWasThere) {
    play({before_, describe("before"), command("interruptAtStep", 1), load_});
    EXPECT_EQ(exitCode_, 1);
    EXPECT_EQ(last()["ok"], false);
    EXPECT_EQ(dataSet(last()), dataSet(described("before")));
}

TEST_F(HostBehaviour, LoadBehindAnInterruptedOneIsWhole) {
    play({load_, describe("whole"), command("interruptAtStep", 5), load_, describe("interrupted"),
          load_});
    EXPECT_EQ(exitCode_, 0);
    EXPECT_EQ(described("interrupted")["ok"], false);
    EXPECT_EQ(dataSet(last()), dataSet(described("whole")));
}

TEST_F(HostBehaviour, FailedCreationOfTheDataSetLeavesTheFrameEmpty) {
    play({load_, describe("whole"), fail("QuorUtilDataSetCreateX", 1), load_, describe("failed"),
          load_});
    EXPECT_EQ(described("failed")["ok"], false);
    EXPECT_TRUE(described("failed")["dataSet"].isNull());
    EXPECT_EQ(last()["ok"], true);
    EXPECT_EQ(dataSet(last()), dataSet(described("whole")));
}

TEST_F(HostBehaviour, SecondZoneThatFailsLeavesTheFrameEmpty) {
    play({fail("QuorUtilDataSetAddZoneX", 2), load_});
    EXPECT_EQ(exitCode_, 1);
    EXPECT_TRUE(last()["dataSet"].isNull());
}

TEST_F(HostBehaviour, OlderHostGetsAMessageAndNoLoader) {
    play({host("version", 1000376), describe("registered"), load_});
    EXPECT_EQ(exitCode_, 1);
    EXPECT_EQ(messages(described("registered")),
              Texts{"Add-On \"PLOT3D Loader\" requires Quorvia version 10.0-3-77 or greater"});
    EXPECT_EQ(last()["hostError"], "No data loader is registered.");
}

TEST_F(HostBehaviour, NewerHostIsAsGood) {
    play({host("version", 1000378), load_});
    EXPECT_EQ(exitCode_, 0);
}

TEST_F(HostBehaviour, WithoutSharingEveryZoneHasItsOwnFields) {
    const Json series =
        select({files_.grid("s.x"), files_.solution("q.1", 0.25), files_.solution("q.2", 0.75)});
    play({series, describe("shared"), host("sharingAllowed", false), series});
    const Json& shared = described("shared")["dataSet"]["zones"][2]["fields"][0];
    const Json& own = last()["dataSet"]["zones"][2]["fields"][0];
    EXPECT_EQ(shared["state"], "shared");
    EXPECT_NE(own["state"], "shared");
    EXPECT_EQ(own["crc32"], shared["crc32"]);
}

TEST_F(HostBehaviour, DataSetMadeByHandGivesWayToALoad) {
    const Json handMade = {
        {"title", "Hand"},
        {"variables", {"X", "Y", "Z"}},
        {"zones", Json::array({{{"name", "Box"}, {"i", 2}, {"j", 3}, {"k", 5}}})}};
    play({command("dataSet", handMade), describe("hand"), load_});
    EXPECT_EQ(zoneNames(described("hand")), Texts{"Box"});
    EXPECT_EQ(zoneNames(last()), (Texts{"a.q:1", "a.q:2"}));
}

} // namespace
} // namespace quorvia::testsupport
