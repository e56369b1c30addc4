// What OK does: what it settles and refuses, and the load.
#include <algorithm>

#include "dialog/DialogOkFixture.h"

namespace quorvia::quorutildataio {
namespace {

// ---- A load that goes through -------------------------------------------------------------------

TEST_F(DialogOk, LoadsAndStaysClosed) {
    importFiles({grid_, solutionFile("a.q")}, {pressOk()});
    EXPECT_EQ(messages(), Texts());
    ASSERT_TRUE(isAnythingLoaded());
    EXPECT_EQ(zoneCount(), 1);
    EXPECT_FALSE(dialog().open);
    EXPECT_EQ(launches(), 1);
    EXPECT_EQ(host().script().cancelledDialogs(), 0);
    EXPECT_EQ(host().lockDepth(), 0);
}

TEST_F(DialogOk, DropsTheDialogBeforeAnythingElse) {
    retain({grid_});
    host().recordTranscript(true);
    open({pressOk()});
    const Texts& calls = host().log().transcript;
    const std::string id = std::to_string(loadDialog);
    const auto drop = std::find(calls.begin(), calls.end(), "QuorGUIDialogDrop(" + id + ")");
    ASSERT_NE(drop, calls.end());
    EXPECT_EQ(drop[1].find("QuorGUITextFieldGetString("), 0u) << drop[1];
    EXPECT_EQ(calls.back().find("QuorUtilLockFinish("), 0u);
}

TEST_F(DialogOk, LoadMayFindAnotherStructureAndTheDialogKeepsItsOwn) {
    importFiles(
        {write("flat.x", testsupport::describeGrid({{2, 3, 1}}, testsupport::Layout_e::TwoD))},
        {pressOk()});
    ASSERT_TRUE(isAnythingLoaded());
    EXPECT_EQ(gLoadOptions.dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_TRUE(gLoadOptions.isMultiGrid);
}

TEST_F(DialogOk, LoadMayTakeStrandsAwayAndTheDialogKeepsItsChoice) {
    importFiles({grid_, functionFile("a.f")},
                {show(fileStructurePage), choose(fileOrganizationRadio, 2), choose(styleMenu, 2),
                 set(multiGridToggle, false), pressOk()});
    ASSERT_TRUE(isAnythingLoaded());
    EXPECT_TRUE(gLoadOptions.assignStrandIds);
}

TEST_F(DialogOk, LoadMaySortFilesAnewAndTheDialogKeepsItsLists) {
    const std::string functions = functionFile("a.f");
    retain({grid_}, {functions});
    open({pressOk()});
    ASSERT_TRUE(isAnythingLoaded());
    EXPECT_EQ(gLoadOptions.solutionFiles, Texts{functions});
    EXPECT_EQ(gLoadOptions.functionFiles, Texts());
}

TEST_F(DialogOk, LoadIsOneOfFilesThatTheUserChose) {
    importFiles({grid_, functionFile("a_0.5.f")}, {pressOk()});
    const Texts& repeated = host().log().instructions;
    const auto key = std::find(repeated.begin(), repeated.end(), "EXTRACTTIMEFROMSOLFILENAMES");
    ASSERT_NE(key, repeated.end());
    EXPECT_EQ(key[1], "Yes");
    EXPECT_FALSE(gLoadOptions.extractTimeFromSolFileNames);
}

// ---- What is settled before the load ------------------------------------------------------------

TEST_F(DialogOk, SettlesWhichFilesAreThere) {
    gLoadOptions.hasGridFiles = gLoadOptions.hasSolutionFiles = false;
    retain({grid_}, {solutionFile("a.q")});
    open({pressOk()});
    EXPECT_TRUE(gLoadOptions.hasGridFiles);
    EXPECT_TRUE(gLoadOptions.hasSolutionFiles);
    open({press(gridRemoveAll), press(solutionRemoveAll), pressOk()});
    EXPECT_FALSE(gLoadOptions.hasGridFiles);
    EXPECT_FALSE(gLoadOptions.hasSolutionFiles);
}

TEST_F(DialogOk, TellsTheLoadWhetherStrandsWereAskedFor) {
    for (const bool asked : {false, true}) {
        open({set(assignStrandToggle, asked), pressOk()});
        EXPECT_EQ(gLoadOptions.assignStrandIdsRequested, asked);
    }
}

TEST_F(DialogOk, StrandsReachTheLoadByOkAlone) {
    open({set(assignStrandToggle, false)});
    EXPECT_FALSE(gLoadOptions.assignStrandIds);
    EXPECT_TRUE(gLoadOptions.assignStrandIdsRequested);
}

TEST_F(DialogOk, TakesTheNameFileFromTheField) {
    retain({}, {}, {}, "old.nam");
    Texts names;
    open({meanwhile([] { QuorGUITextFieldSetString(nameFileField, "late.nam"); }), pressOk(),
          meanwhile([&] {
              names = {gRetainedNameFile, gLoadOptions.nameFile};
          })});
    // The refusal comes before anything is remembered.
    EXPECT_EQ(names, (Texts{"old.nam", "old.nam"}));
    retain({damaged_}, {}, {}, "old.nam");
    open({meanwhile([] { QuorGUITextFieldSetString(nameFileField, "late.nam"); }), pressOk(),
          meanwhile([&] {
              names = {gRetainedNameFile, gLoadOptions.nameFile};
          })});
    EXPECT_EQ(names, (Texts{"late.nam", "late.nam"}));
}

TEST_F(DialogOk, UsesTheNameFileOnlyForAGridFileWithDataFiles) {
    const auto isUsed = [this](const Texts& grids, const Texts& solutions, const Texts& functions,
                               const std::string& nameFile) {
        retain(grids, solutions, functions, nameFile);
        open({pressOk()});
        return gLoadOptions.hasNameFile;
    };
    EXPECT_TRUE(isUsed({damaged_}, {damaged_}, {}, "n.nam"));
    EXPECT_TRUE(isUsed({damaged_}, {}, {damaged_}, "n.nam"));
    EXPECT_FALSE(isUsed({damaged_}, {damaged_}, {}, ""));
    EXPECT_FALSE(isUsed({damaged_}, {}, {}, "n.nam"));
    EXPECT_EQ(gRetainedNameFile, "n.nam") << "kept, though not used";
    EXPECT_FALSE(isUsed({}, {damaged_}, {damaged_}, "n.nam"));
}

TEST_F(DialogOk, LoadsTheBoundaryFileThatIsThere) {
    importFiles({grid_}, {pressOk()});
    EXPECT_FALSE(gLoadOptions.loadBoundary);
    EXPECT_EQ(gLoadOptions.boundaryFile, "");
    const std::string boundary =
        directory_.write("a.x.fvbnd", "FVBND 1 4\nwall\nBOUNDARIES\n1 1 1 $ 1 $ 1 1 F 0\n");
    host().setAnswers({}, yes);
    importFiles({grid_}, {pressOk()});
    EXPECT_TRUE(gLoadOptions.loadBoundary);
    EXPECT_EQ(gLoadOptions.boundaryFile, boundary);
    EXPECT_EQ(zoneCount(), 2) << ::testing::PrintToString(messages());
}

TEST_F(DialogOk, ShowsTheSolutionAndFunctionFilesAnewAndLeavesTheGridList) {
    retain({damaged_}, {"a.q"}, {"a.f"});
    Texts calls;
    open({meanwhile([] { host().recordTranscript(true); }), pressOk()});
    for (const std::string& call : host().log().transcript) {
        if (call.find("createTaskProgressBar") == 0)
            break;
        if (call.find("QuorGUIList") == 0)
            calls.push_back(call);
    }
    const std::string solutions = std::to_string(solutionList);
    const std::string functions = std::to_string(functionList);
    EXPECT_EQ(calls, (Texts{"QuorGUIListDeleteAllItems(" + solutions + ")",
                            "QuorGUIListAppendItem(" + solutions + ", \"a.q\")",
                            "QuorGUIListDeleteAllItems(" + functions + ")",
                            "QuorGUIListAppendItem(" + functions + ", \"a.f\")"}));
}

// ---- Refusals, each of which brings the dialog back ---------------------------------------------

TEST_F(DialogOk, AppendWithoutADataSetIsToldAndTheDialogComesBack) {
    makeDataSet();
    retain({grid_});
    open({set(appendToggle, true), meanwhile([] { host().frame().reset(); }), pressOk(),
          meanwhile([] { EXPECT_FALSE(isOn(appendToggle)); })});
    EXPECT_EQ(messages(), Texts{"Cannot append without an existing data set."});
    EXPECT_EQ(launches(), 2);
    EXPECT_FALSE(aLoadWasBegun());
}

TEST_F(DialogOk, AppendIsJudgedBeforeTheFiles) {
    makeDataSet();
    open({set(appendToggle, true), meanwhile([] { host().frame().reset(); }), pressOk()});
    EXPECT_EQ(messages(), Texts{"Cannot append without an existing data set."});
}

TEST_F(DialogOk, QuestionIsOneOfYesOrNo) {
    makeDataSet();
    retain({grid_});
    host().recordTranscript(true);
    open({pressOk()});
    const Texts& calls = host().log().transcript;
    EXPECT_NE(std::find(calls.begin(), calls.end(),
                        "QuorUtilDialogMessageBox(\"Warning: All current data will be lost. "
                        "Continue?\", 4) = false"),
              calls.end());
}

TEST_F(DialogOk, WithoutADataSetAsksNothing) {
    importFiles({grid_}, {pressOk()});
    EXPECT_EQ(host().callCount("QuorUtilDialogMessageBox"), 0);
}

TEST_F(DialogOk, EachLaunchTakesALockOfItsOwnAndAllAreGivenBack) {
    std::vector<std::int64_t> depths;
    const auto note = meanwhile([&] { depths.push_back(host().lockDepth()); });
    open({note, pressOk(), note, pressOk(), note, pressOk(), note, pressCancel()});
    EXPECT_EQ(depths, (std::vector<std::int64_t>{2, 3, 4, 5}));
    EXPECT_EQ(host().lockDepth(), 0);
}

// ---- When the host fails ------------------------------------------------------------------------

TEST_F(DialogOk, HostCallThatFailsLeavesNothingBehindAndTheNextOkLoads) {
    for (const char* operation :
         {"QuorUtilArgListAlloc", "QuorUtilStringListAlloc", "QuorUtilDataSetCreateX",
          "QuorUtilDataSetAddZoneX", "createTaskProgressBar"}) {
        host().clearFaults();
        host().failCall(operation, 1);
        host().frame().reset();
        importFiles({grid_}, {pressOk(), pressOk()});
        EXPECT_EQ(launches(), 2) << operation;
        EXPECT_EQ(zoneCount(), 1) << operation;
        EXPECT_EQ(host().lockDepth(), 0) << operation;
        EXPECT_EQ(host().log().violations, Texts()) << operation;
    }
}

TEST_F(DialogOk, LoadThatRunsOutOfMemoryIsToldAndTheDialogComesBack) {
    host().failCall("createTaskProgressBar", 1);
    importFiles({grid_},
                {pressOk(), meanwhile([this] { EXPECT_EQ(items(gridList), Texts{grid_}); })});
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
    EXPECT_EQ(launches(), 2);
}

TEST_F(DialogOk, FailedAnswerCountsAsNo) {
    makeDataSet();
    retain({grid_});
    host().setAnswers({}, yes);
    host().failCall("QuorUtilDialogMessageBox", 1);
    open({pressOk()});
    EXPECT_EQ(launches(), 2);
    EXPECT_FALSE(aLoadWasBegun());
}

TEST_F(DialogOk, NameFileThatTheHostCannotHandOutIsToldAndTheDialogComesBack) {
    retain({grid_}, {solutionFile("a.q")}, {}, "n.nam");
    host().failCall("QuorGUITextFieldGetString", 1);
    open({pressOk(), meanwhile([] { EXPECT_EQ(text(nameFileField), "n.nam"); })});
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
    EXPECT_FALSE(aLoadWasBegun());
}

} // namespace
} // namespace quorvia::quorutildataio
