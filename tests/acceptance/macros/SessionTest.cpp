// What stays and what changes between the commands of a session.
#include "acceptance/macros/MacroSession.h"

namespace quorvia::testsupport {
namespace {

class Session : public MacroSession {
protected:
    Session() {
        SmallFiles small = files_;
        small.grids = {{5, 2, 3}};
        smallGrid_ = small.grid("small.x");
        grid_ = files_.grid("a.x");
        first_ = files_.solution("q.1", 0.25);
        second_ = files_.solution("q.2", 0.75);
    }

    std::string smallGrid_;
    std::string grid_;
    std::string first_;
    std::string second_;
};

TEST_F(Session, SecondLoadTakesThePlaceOfTheFirst) {
    play({select({smallGrid_}), describe("small"), select({grid_, first_})});
    EXPECT_EQ(exitCode_, 0);
    EXPECT_EQ(zoneNames(described("small")), (Texts{"small.x:1"}));
    EXPECT_EQ(zoneNames(last()), (Texts{"q.1:1", "q.1:2"}));
}

TEST_F(Session, EventsOfEachLoadAreToldWithIt) {
    play({select({smallGrid_}), describe("small"), describe("nothing"), select({smallGrid_})});
    EXPECT_FALSE(described("small")["progress"].empty());
    EXPECT_EQ(described("nothing")["progress"], Json::array());
    EXPECT_EQ(last()["progress"], described("small")["progress"]);
    EXPECT_EQ(last()["undo"], described("small")["undo"]);
    EXPECT_EQ(last()["stateChanges"], described("small")["stateChanges"]);
    EXPECT_EQ(last()["redraws"], described("small")["redraws"]);
}

TEST_F(Session, InstructionsAndSelectionLoadTheSame) {
    play({select({grid_, first_}), describe("selected"), command("resetFrame", true),
          load({.grids = {grid_}, .solutions = {first_}},
               {{"SOLUTIONSSHARESTRUCTURE", "Yes"}, {"ASSIGNSTRANDIDS", "Yes"}})});
    EXPECT_EQ(dataSet(last()), dataSet(described("selected")));
}

TEST_F(Session, ReplayRepeatsTheDataSetAndTheInstructions) {
    play({select({grid_, first_, second_}), describe("selected"), command("resetFrame", true),
          describe("empty"), replay()});
    EXPECT_EQ(exitCode_, 0);
    EXPECT_TRUE(described("empty")["dataSet"].isNull());
    EXPECT_EQ(dataSet(last()), dataSet(described("selected")));
    EXPECT_EQ(last()["instructions"], described("selected")["instructions"]);
}

TEST_F(Session, ValuesComeAgainAfterTheyWereDropped) {
    play({select({grid_, first_}), describe("fetched"), command("unload", "all"),
          command("host", command("memoryLimit", 1)), command("fetch", "all")});
    EXPECT_EQ(dataSet(last()), dataSet(described("fetched")));
}

TEST_F(Session, FieldsOfTheZonesThatStayAreStillThereAfterADeletion) {
    play({select({grid_, first_}), describe("both"), command("deleteZones", Json::array({1})),
          command("unload", "all")});
    EXPECT_EQ(zoneNames(last()), (Texts{"q.1:2"}));
    EXPECT_EQ(last()["dataSet"]["zones"][0]["fields"],
              described("both")["dataSet"]["zones"][1]["fields"]);
}

TEST_F(Session, RefusedLoadDoesNotStandInTheWayOfTheNext) {
    play({select({directory().file("none.x")}), describe("refused"), select({smallGrid_})});
    EXPECT_EQ(exitCode_, 0);
    EXPECT_EQ(described("refused")["ok"], false);
    EXPECT_EQ(messages(last()), Texts());
}

} // namespace
} // namespace quorvia::testsupport
