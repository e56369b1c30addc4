// The dataset stage by itself, on data sets that other programs left in the frame.
#include "loader/DatasetStage.h"
#include "LoaderFixture.h"
#include "dataset/items/CurrentTask.h"
#include "loader/TimeStepPairing.h"
#include "plot3dfile/detection/StructureDetection.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

const GridList likeGrids = {{2, 3, 5}, {2, 3, 5}};

/// The context stands as the driver leaves it before the stage.
class DatasetStage : public LoaderTest {
protected:
    DatasetStage() : context(options, false) {
        currentTask = createTaskProgressBar(1);
        context.shape.numSpatialVars = 3;
        context.assignStrandIDs = true;
        context.parentZones = HostArray<std::int32_t>::allocate(100, "Parent Zone Array");
    }
    ~DatasetStage() override { currentTask.reset(); }
    void build(const Texts& names, Plot3DFileList& files, bool isSolutionOrFunction) {
        Plot3DFileBuilder builder(options);
        for (const std::string& name : names)
            files.push_back(buildPlot3DFile(builder, name, isSolutionOrFunction));
    }
    /// Files of two grids each; the solutions' times are 1, 2, ...
    void useSteps(bool hasGridFile, int solutions) {
        Texts names;
        for (int step = 1; step <= solutions; ++step)
            names.push_back(solutionFile("s" + std::to_string(step) + ".q", likeGrids, step));
        useFiles(hasGridFile ? Texts{gridFile("a.x", likeGrids)} : Texts(), names);
        build(options.gridFiles, context.gridFiles, false);
        build(options.solutionFiles, context.solutionFiles, true);
        ASSERT_TRUE(pairFilesIntoHandlers(options, context.gridFiles, context.solutionFiles, {},
                                          context.fileSets));
        context.shape.numSolutionVars = solutions > 0 ? 5 : 0;
        context.zonesPerTimeStep = 2;
        context.firstNewZone = 1;
    }
    /// As the check of the data set leaves the counts.
    void joinOldDataSet(const Texts& variables, std::int32_t zones) {
        makeOldDataSet(variables, zones);
        context.existingZoneCount = zones;
        context.shape.existingVarCount = static_cast<std::int32_t>(variables.size());
        context.firstNewZone = options.append ? zones + 1 : 1;
    }
    bool run() { return createDatasetAndZones(context); }

    static std::vector<std::int64_t> toldMembers(std::int32_t code) {
        for (const host::StateChange_s& change : host().log().stateChanges)
            if (change.code == code)
                return change.members;
        return {};
    }

    HostLock lock{addOnID};
    Plot3DLoadContext_s context;
};

TEST_F(DatasetStage, OfAFreshLoadSendsNoStateChange) {
    useSteps(true, 2);
    EXPECT_TRUE(run());
    EXPECT_EQ(zoneCount(), 4);
    EXPECT_TRUE(host().log().stateChanges.empty());
}

TEST_F(DatasetStage, ShowsTheHostsOwnErrorWhenTheDataSetIsRefused) {
    useSteps(true, 1);
    host().failCall("QuorUtilDataSetCreateX", 1);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(), Texts{"QuorUtilDataSetCreateX: failed on purpose"});
    EXPECT_EQ(progress(), (Texts{"Creating the dataset", "Cleaning up..."}));
}

TEST_F(DatasetStage, ThrowsADataSetWithoutCommonItemsAway) {
    useSteps(true, 1);
    host().failCall("QuorUtilAuxDataSetItem", 1);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(), Texts{"QuorUtilAuxDataSetItem: failed on purpose"});
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(DatasetStage, EndsInSilenceWithoutItsFirstSetOrLists) {
    for (const char* operation :
         {"QuorUtilSetAlloc", "QuorUtilStringListAlloc", "QuorUtilArgListAlloc"}) {
        useSteps(true, 1);
        host().failCall(operation, 1);
        EXPECT_FALSE(run()) << operation;
        EXPECT_EQ(messages(), Texts()) << operation;
    }
}

TEST_F(DatasetStage, NamesTheGridFileOfAStepThatFails) {
    useSteps(true, 0);
    host().failCall("QuorUtilDataSetAddZoneX", 1);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(), Texts{"Invalid Plot 3D grid file.\nFile: " + options.gridFiles.front()});
}

TEST_F(DatasetStage, NamesTheSolutionFileOfTheStepThatFails) {
    useSteps(true, 3);
    host().failCall("QuorUtilDataSetAddZoneX", 5);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(),
              Texts{"Invalid Plot 3D solution file.\nFile: " + options.solutionFiles[2]});
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(DatasetStage, PutsANewSolutionOnZonesThatAreThere) {
    useSteps(false, 2);
    joinOldDataSet(gridAndSolution, 3);
    EXPECT_TRUE(run()) << ::testing::PrintToString(messages());
    EXPECT_EQ(zoneNames(), (Texts{"s1.q:1", "s1.q:2", "s2.q:1", "s2.q:2"}));
    EXPECT_EQ(toldMembers(QuorStateChange_VarsAltered), (std::vector<std::int64_t>{4, 5, 6, 7, 8}));
    EXPECT_EQ(host().log().stateChanges.size(), 1U);
}

TEST_F(DatasetStage, TellsWhenTheAlteredVariablesHaveNoMemory) {
    useSteps(false, 1);
    joinOldDataSet(gridAndSolution, 2);
    host().failCall("QuorUtilSetAlloc", 2);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(), Texts{"memory allocation error"});
    EXPECT_EQ(zoneNames(), (Texts{"s1.q:1", "s1.q:2"})); // new names stay
}

TEST_F(DatasetStage, EndsInSilenceWhenAnAlteredVariableIsNotTaken) {
    useSteps(false, 1);
    joinOldDataSet(gridAndSolution, 2);
    host().failCall("QuorUtilSetAddMember", 2);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(zoneCount(), 2);
}

TEST_F(DatasetStage, AppendsZonesBehindThoseThatAreThere) {
    useSteps(true, 1);
    options.append = true;
    joinOldDataSet(gridAndSolution, 3);
    host().frame().setPlotType(QuorPlotType_3D);
    EXPECT_TRUE(run()) << ::testing::PrintToString(messages());
    EXPECT_EQ(zoneNames(), (Texts{"old", "old", "old", "s1.q:1", "s1.q:2"}));
    EXPECT_EQ(toldMembers(QuorStateChange_ZonesAdded), (std::vector<std::int64_t>{4, 5}));
    EXPECT_EQ(host().log().autoStyledZones, (std::vector<std::vector<std::int64_t>>{{4, 5}}));
}

TEST_F(DatasetStage, StylesNoAppendedZonesOfAnXYPlot) {
    useSteps(true, 1);
    options.append = true;
    joinOldDataSet(gridAndSolution, 3);
    host().frame().setPlotType(QuorPlotType_XY);
    EXPECT_TRUE(run());
    EXPECT_TRUE(host().log().autoStyledZones.empty());
}

TEST_F(DatasetStage, NumbersStrandsOnFromThoseThatAreThere) {
    useSteps(true, 2);
    options.append = true;
    joinOldDataSet(gridAndSolution, 1);
    QuorUtilZoneSetStrandID(1, 7);
    EXPECT_TRUE(run());
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{7, 8, 9, 8, 9}));
}

TEST_F(DatasetStage, JoinsStrandsThatAreThere) {
    useSteps(true, 1);
    options.append = true;
    options.addToExistingStrands = true;
    joinOldDataSet(gridAndSolution, 1);
    QuorUtilZoneSetStrandID(1, 7);
    EXPECT_TRUE(run());
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{7, 1, 2}));
}

TEST_F(DatasetStage, TakesAppendedZonesBackOnInterruption) {
    useSteps(true, 3);
    options.append = true;
    joinOldDataSet(gridAndSolution, 3);
    host().interruptAtStep(12);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(), Texts{"Plot3D Data load interrupted"});
    EXPECT_EQ(zoneNames(), (Texts{"old", "old", "old"}));
    EXPECT_EQ(variableNames(), gridAndSolution);
}

TEST_F(DatasetStage, DeletesNewVariablesOnFailure) {
    useSteps(true, 1);
    options.append = true;
    joinOldDataSet(gridAndSolution, 3);
    // The stage counts the variables itself; a failed count leaves those of the check.
    context.shape.existingVarCount = 5;
    host().failCall("QuorUtilDataSetGetInfo", 1);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages().size(), 1U); // the host's own words
    EXPECT_EQ(variableNames().size(), 5U);
    EXPECT_EQ(zoneCount(), 3);
}

TEST_F(DatasetStage, ResetsTheFrameWhenTheHostDoesNotSayWhatIsThere) {
    for (const char* operation : {"QuorUtilZoneGetEnabled", "QuorUtilVarGetEnabled"}) {
        useSteps(true, 1);
        options.append = true;
        joinOldDataSet(gridAndSolution, 3);
        host().failCall("QuorUtilDataSetAddZoneX", 1);
        host().failCall(operation, 1);
        EXPECT_FALSE(run());
        EXPECT_EQ(host().frame().dataSet(), nullptr) << operation;
    }
}

TEST_F(DatasetStage, TellsOfVariablesThatZonesGetWithASolution) {
    useSteps(false, 1);
    options.append = true;
    joinOldDataSet({"X", "Y", "Z", "a", "b"}, 2);
    EXPECT_TRUE(run());
    EXPECT_EQ(messages(), Texts{"The existing zones in quorvia do not have as many variables per "
                                "datapoint as the appended plot3d file thus variables will be "
                                "created for them and initialized to zero."});
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z", "a", "b", "RHO-V", "RHO-W", "E"}));
    EXPECT_EQ(toldMembers(QuorStateChange_VarsAdded), (std::vector<std::int64_t>{6, 7, 8}));
    EXPECT_EQ(toldMembers(QuorStateChange_ZonesAdded), (std::vector<std::int64_t>{3, 4}));
}

TEST_F(DatasetStage, PutsASolutionOnALoneGridThatIsThere) {
    useSteps(false, 2);
    options.append = true;
    joinOldDataSet({"X", "Y", "Z"}, 3);
    EXPECT_TRUE(run()) << ::testing::PrintToString(messages());
    EXPECT_EQ(zoneNames(), (Texts{"s1.q:1", "s1.q:2", "s2.q:1", "s2.q:2"}));
    EXPECT_EQ(variableNames(), gridAndSolution);
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 1, 2}));
    EXPECT_EQ(toldMembers(QuorStateChange_VarsAdded), (std::vector<std::int64_t>{4, 5, 6, 7, 8}));
    EXPECT_EQ(toldMembers(QuorStateChange_ZonesAdded), (std::vector<std::int64_t>{1, 2, 3, 4}));
    EXPECT_EQ(host().log().stateChanges.size(), 2U);
}

TEST_F(DatasetStage, GivesNoStrandToAZoneThatIsNotThere) {
    useSteps(false, 1);
    selectGrids({2});
    context.zonesPerTimeStep = 1;
    options.append = true;
    joinOldDataSet({"X", "Y", "Z"}, 1);
    EXPECT_TRUE(run()) << ::testing::PrintToString(messages());
    EXPECT_EQ(zoneCount(), 1);
    EXPECT_EQ(strands(), std::vector<std::int32_t>{0});
}

TEST_F(DatasetStage, KeepsVariablesThatItAddedWhenALaterStepFails) {
    useSteps(false, 2);
    options.append = true;
    joinOldDataSet({"X", "Y", "Z"}, 2);
    host().failCall("QuorUtilDataSetAddZoneX", 2);
    EXPECT_FALSE(run());
    EXPECT_EQ(variableNames(), gridAndSolution);
    EXPECT_EQ(zoneNames(), (Texts{"s1.q:1", "s1.q:2"}));
}

TEST_F(DatasetStage, TakesVariablesBackThatCouldNotAllBeAdded) {
    useSteps(false, 1);
    options.append = true;
    joinOldDataSet({"X", "Y", "Z"}, 2);
    host().failCall("QuorUtilDataSetAddVarX", 3);
    EXPECT_FALSE(run());
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z"}));
}

TEST_F(DatasetStage, FailsAtTheFirstFieldWithoutAVariable) {
    useSteps(false, 1);
    options.append = true;
    joinOldDataSet({"X", "Y", "Z"}, 2);
    host().failCall("QuorUtilSetAlloc", 3); // of the variables that are added
    EXPECT_FALSE(run());
    EXPECT_EQ(messages().back(),
              "Invalid Plot 3D solution file.\nFile: " + options.solutionFiles.front());
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z"}));
}

TEST_F(DatasetStage, ReplacesNothingWhileSurplusZonesStay) {
    useSteps(false, 1);
    joinOldDataSet(gridAndSolution, 3);
    host().failCall("QuorUtilZoneDelete", 1);
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(),
              Texts{"The zones that the new solution has no grids for could not be deleted."});
    EXPECT_EQ(zoneNames(), (Texts{"s1.q:1", "s1.q:2", "old"}));
}

TEST_F(DatasetStage, MakesNothingOfALaterStepThatNoFileBearsOut) {
    options.append = true;
    for (const std::int32_t count : {2000000000, -1}) {
        context.fileSets.clear();
        context.gridFiles.clear();
        context.solutionFiles.clear();
        useSteps(true, 3);
        joinOldDataSet(gridAndSolution, 1);
        context.solutionFiles[2]->numVars = count;
        host().clearLog();
        EXPECT_FALSE(run());
        EXPECT_EQ(messages(),
                  Texts{"Invalid Plot 3D solution file.\nFile: " + options.solutionFiles[2]});
        EXPECT_EQ(progress(), Texts{"Cleaning up..."});
        EXPECT_EQ(zoneNames(), Texts{"old"});
    }
}

// The last zones are compared ahead of the stage, and the first ones are kept.
TEST_F(DatasetStage, DeletesNoZonesForASolutionThatDoesNotFitTheFirst) {
    useSteps(false, 1);
    joinOldDataSet(gridAndSolution, 3);
    host().frame().dataSet()->zone(1)->k = 7;
    EXPECT_FALSE(run());
    EXPECT_EQ(messages(), Texts{"The solution file does not fit the zones that are there.\nFile: " +
                                options.solutionFiles.front()});
    EXPECT_EQ(zoneNames(), (Texts{"old", "old", "old"}));
}

} // namespace
} // namespace quorvia::testsupport
