// The instructions that a load hands to the host repeat it: the same data set, and the same
// instructions again.
#include <algorithm>

#include "acceptance/behaviour/Snapshot.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::Encoding_e;

class Replay : public LoadedAddOnTest {
protected:
    static void expectRepeats() {
        const std::string first = snapshotOfFrame();
        const Texts instructions = host().log().instructions;
        ASSERT_FALSE(instructions.empty());
        host().frame().reset();
        host().clearLog();
        EXPECT_TRUE(host().importInstructions(instructions).ok);
        EXPECT_EQ(messages(), Texts());
        EXPECT_EQ(snapshotOfFrame(), first);
        EXPECT_EQ(host().log().instructions, instructions);
    }
    static void expectLoadRepeats(const Load_s& load) {
        expectLoads(load);
        expectRepeats();
    }

    SmallFiles files_{directory().path().string()};
};

TEST_F(Replay, OfASelection) {
    expectSelectionLoads({files_.grid("a.x", true), files_.solution("q.1", 0.25),
                          files_.solution("q.2", 0.75),
                          directory().write("names.nam", "Density\n")});
    expectRepeats();
}

TEST_F(Replay, OfASelectionWithFunctionFiles) {
    expectSelectionLoads(
        {files_.grid("a.x"), files_.function("f_1.f", 2), files_.function("f_2.f", 2)});
    expectRepeats();
}

TEST_F(Replay, OfSubsets) {
    expectLoadRepeats({.gridFiles = {files_.grid("a.x")},
                       .solutionFiles = {files_.solution("a.q", 0.25)},
                       .settings = {{"IINDEXRANGE", "1,,2"},
                                    {"JINDEXRANGE", "2,3,1"},
                                    {"KINDEXRANGE", "1,2,1"},
                                    {"FILEGRIDSET", "2"}}});
}

TEST_F(Replay, OfTextFiles) {
    files_.form.encoding = Encoding_e::Text;
    expectLoadRepeats({.gridFiles = {files_.grid("a.x", true)},
                       .solutionFiles = {files_.solution("a.q", 0.25)},
                       .settings = {{"ASCIIISDOUBLE", "Yes"}, {"ASCIIHASIBLANK", "Yes"}}});
}

TEST_F(Replay, OfAStructureDescribedByHand) {
    expectLoadRepeats({.gridFiles = {files_.grid("a.x")},
                       .settings = {{"AUTODETECT", "No"},
                                    {"STYLE", "PLOT3DCLASSIC"},
                                    {"DATASTRUCTURE", "3DW"},
                                    {"ISMULTIGRID", "Yes"}}});
}

TEST_F(Replay, OfAnUnstructuredSeries) {
    expectLoadRepeats({.gridFiles = {files_.surface("a.x")},
                       .solutionFiles = {files_.surfaceSolution("1.q", 0.25),
                                         files_.surfaceSolution("2.q", 0.75)},
                       .settings = {{"ASSIGNSTRANDIDS", "Yes"}}});
}

// They are function files in truth, and go by that name afterwards.
TEST_F(Replay, OfFunctionFilesThatWereCalledSolutions) {
    const std::string function = files_.function("a.f", 2);
    expectLoads({.gridFiles = {files_.grid("a.x")}, .solutionFiles = {function}});
    const Texts& handedOver = host().log().instructions;
    const auto at = std::find(handedOver.begin(), handedOver.end(), "FILELIST_FUNCTIONFILES");
    ASSERT_NE(at, handedOver.end());
    EXPECT_EQ(*(at + 2), function);
    EXPECT_EQ(std::count(handedOver.begin(), handedOver.end(), "FILELIST_SOLUTIONFILES"), 0);
    expectRepeats();
}

TEST_F(Replay, OfAHostThatRefusesInstructionsFailsThoughTheZonesStand) {
    host().settings().refuseInstructions = true;
    EXPECT_FALSE(load({.gridFiles = {files_.grid("a.x")}}).ok);
    EXPECT_EQ(dataSet().zoneCount(), 2);
    EXPECT_EQ(messages(), Texts());
}

// Options of one load must not reach the next one.
TEST_F(Replay, OfTheFirstLoadAfterAnotherIsTheSame) {
    const Load_s load{.gridFiles = {files_.grid("a.x")}};
    expectLoads(load);
    const std::string first = snapshotOfFrame();
    expectLoads({.gridFiles = {files_.grid("b.x")},
                 .settings = {{"FILEGRIDSET", "2"}, {"IINDEXRANGE", "2,2,1"}}});
    expectLoads(load);
    EXPECT_EQ(snapshotOfFrame(), first);
}

TEST_F(Replay, IsNotTouchedByTheStateChangeThatEmptiesTheDialog) {
    expectLoads({.gridFiles = {files_.grid("a.x")}});
    const std::string first = snapshotOfFrame();
    for (const std::int32_t code : {15, 0, 3, 15})
        host().sendStateChange(code);
    EXPECT_EQ(snapshotOfFrame(), first);
    expectRepeats();
}

} // namespace
} // namespace quorvia::testsupport
