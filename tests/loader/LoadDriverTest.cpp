// One load from its options to its end, as the user and the host see it.
#include <algorithm>

#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

const std::string noBoundaryFile =
    "The boundary file does not exist in the same directory as the grid file and will not be "
    "loaded.This may have an effect on the dataset if anything relies on the boundary zones.";

const std::string functionsAlone =
    "You can not load function files or solution files only. You must load grid and solution files "
    "along with function files. ";

class LoadDriver : public LoaderTest {
protected:
    /// The value behind a key of the instructions that were handed over.
    static std::string instruction(const std::string& key) {
        const Texts& all = host().log().instructions;
        const auto found = std::find(all.begin(), all.end(), key);
        return found != all.end() && found + 1 != all.end() ? *(found + 1) : "(none)";
    }
    /// How much host memory a load, which must succeed, takes for the parents of its zones.
    std::int64_t bytesForParents() {
        host().recordTranscript(true);
        EXPECT_TRUE(load()) << ::testing::PrintToString(messages());
        const std::string start = "QuorUtilStringAlloc(";
        for (const std::string& call : host().log().transcript)
            if (call.find("Parent Zone Array") != std::string::npos)
                return std::stoll(call.substr(start.size()));
        return -1;
    }
};

TEST_F(LoadDriver, MakesAZoneOfEachGridAndTimeStep) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 0.25), solutionFile("b.q", twoGrids, 0.75)});
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"}));
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0.25, 0.25, 0.75, 0.75}));
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 1, 2}));
}

TEST_F(LoadDriver, TellsTheHostOfANewDataSetByPlotTypeAndRedrawAlone) {
    useFiles({gridFile("a.x", twoGrids)});
    EXPECT_TRUE(load());
    EXPECT_EQ(host().frame().plotType(), QuorPlotType_3D);
    EXPECT_EQ(host().log().redraws, 1);
    EXPECT_TRUE(host().log().stateChanges.empty());
    EXPECT_TRUE(host().log().undo.empty());
    EXPECT_TRUE(host().log().instructionsHandedOver);
}

TEST_F(LoadDriver, HoldsNotificationsOfTimesBackToTheEnd) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 0.25), solutionFile("b.q", twoGrids, 0.75)});
    EXPECT_TRUE(load());
    EXPECT_EQ(host().log().solutionTimeNotifications, 1);
}

TEST_F(LoadDriver, EndsATwoDimensionalGridInAPlotOfTwoDimensions) {
    useFiles({gridFile("a.x", {{5, 7, 1}, {3, 11, 1}}, Layout_e::TwoD)});
    EXPECT_TRUE(load());
    EXPECT_EQ(host().frame().plotType(), QuorPlotType_2D);
    EXPECT_EQ(variableNames(), (Texts{"X", "Y"}));
}

TEST_F(LoadDriver, EndsAOneDimensionalGridInAnXYPlot) {
    useFiles({gridFile("a.x", {{7, 1, 1}}, Layout_e::OneD)});
    options.autoDetect = false;
    options.isMultiGrid = false;
    options.dataStructure = Plot3DDataStructure_1D;
    EXPECT_TRUE(load()) << ::testing::PrintToString(messages());
    EXPECT_EQ(host().frame().plotType(), QuorPlotType_XY);
}

TEST_F(LoadDriver, CountsIBlankAmongTheVariables) {
    useFiles({iblankGridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 0)});
    EXPECT_TRUE(load());
    EXPECT_EQ(variableNames(),
              (Texts{"X", "Y", "Z", "IBlank", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"}));
}

TEST_F(LoadDriver, TakesTheSelectedGridsAlone) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 0.25), solutionFile("b.q", twoGrids, 0.75)});
    selectGrids({2});
    EXPECT_TRUE(load());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0.25, 0.75}));
}

TEST_F(LoadDriver, KeepsParentsOfSelectedGridsForEachStepOfAUniformLoad) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 0.25), solutionFile("b.q", twoGrids, 0.75),
              solutionFile("c.q", twoGrids, 1.25)});
    selectGrids({2});
    EXPECT_EQ(bytesForParents(), 4 * 3 * 1);
}

TEST_F(LoadDriver, KeepsParentsOfAllGridsOfUnlikeFiles) {
    useFiles({gridFile("a.x", twoGrids), gridFile("b.x", {{2, 3, 5}, {3, 5, 7}, {5, 7, 11}})});
    options.uniformGridStructure = false;
    selectGrids({2});
    EXPECT_EQ(bytesForParents(), 4 * (2 + 3)); // also of those that are not selected
    EXPECT_EQ(zoneCount(), 2);
}

TEST_F(LoadDriver, GoesOnWithoutABoundaryFileThatIsNotThere) {
    useFiles({gridFile("a.x", twoGrids)});
    options.loadBoundary = true;
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts{noBoundaryFile});
    EXPECT_EQ(instruction("LOADBOUNDARY"), "No");
}

TEST_F(LoadDriver, GoesOnToTheHeadersWithoutAGridForABoundaryFile) {
    useFiles({}, {solutionFile("a.q", twoGrids, 0.25)});
    options.loadBoundary = true;
    load();
    EXPECT_FALSE(options.loadBoundary);
    ASSERT_FALSE(messages().empty());
    EXPECT_EQ(messages().front(), noBoundaryFile);
    EXPECT_TRUE(showedProgress("Examining file headers... "));
}

TEST_F(LoadDriver, TakesFunctionFilesThatWereNamedAsSolutions) {
    const Texts functions = {functionFile("f_2.fun", twoGrids, 2),
                             functionFile("f_5.fun", twoGrids, 2)};
    useFiles({gridFile("a.x", twoGrids)}, functions);
    EXPECT_TRUE(load());
    EXPECT_EQ(options.functionFiles, functions);
    EXPECT_EQ(options.solutionFiles, Texts());
    EXPECT_FALSE(options.hasSolutionFiles);
    EXPECT_EQ(instruction("FILELIST_FUNCTIONFILES"), "2");
    EXPECT_EQ(instruction("FILELIST_SOLUTIONFILES"), "(none)");
}

TEST_F(LoadDriver, TakesMisnamedFunctionFilesAlsoWhenALaterFileIsRefused) {
    const std::string function = functionFile("f_2.fun", twoGrids, 2);
    const std::string damaged = directory.write("f_5.fun", std::string(64, '\x7f'));
    useFiles({gridFile("a.x", twoGrids)}, {function, damaged});
    options.uniformGridStructure = false; // one grid file would have the second file taken on trust
    options.solutionsShareStructure = false;
    EXPECT_FALSE(load(fromSelection));
    EXPECT_EQ(options.functionFiles, (Texts{function, damaged}));
    EXPECT_FALSE(options.hasSolutionFiles);
    EXPECT_TRUE(options.extractTimeFromSolFileNames);
    EXPECT_EQ(options.solutionTimes.size(), 2U);
}

// A list of no names sets the flag all the same, and the solution file turns out to be none.
TEST_F(LoadDriver, RefusesFunctionFilesForANewDataSetWithoutAGrid) {
    const std::string function = functionFile("a.fun", twoGrids, 2);
    useFiles({}, {function});
    options.hasGridFiles = true;
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{functionsAlone});
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(LoadDriver, RefusesARangeThatIsTurnedRoundAheadOfAllFiles) {
    const std::string name = gridFile("a.x", twoGrids);
    for (auto range : {&Plot3DLoadOptions_s::iRange, &Plot3DLoadOptions_s::jRange,
                       &Plot3DLoadOptions_s::kRange}) {
        host().clearLog();
        makeOldDataSet({"old"}, 1);
        useFiles({name});
        options.*range = {10, 9, 7};
        EXPECT_FALSE(load(fromSelection));
        EXPECT_EQ(messages().size(), 1U);
        EXPECT_EQ(messages().back().substr(1),
                  "-Range Error: end must be greater than or equal to start.");
        EXPECT_EQ(variableNames(), Texts{"old"});
        options.*range = {1, 0, 1};
    }
}

TEST_F(LoadDriver, TellsOfTheFirstRangeThatIsTurnedRound) {
    useFiles({gridFile("a.x", twoGrids)});
    options.jRange = {3, 2, 1};
    options.kRange = {3, 1, 1};
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{"J-Range Error: end must be greater than or equal to start."});
}

TEST_F(LoadDriver, RefusesARangeThatIsTurnedRoundOfAppendedFunctionsToo) {
    useFiles({gridFile("a.x", twoGrids)});
    ASSERT_TRUE(load());
    const Texts variables = variableNames();
    useFiles({}, {}, {functionFile("f.fun", twoGrids, 2)});
    options.append = true;
    options.iRange = {2, 1, 1};
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{"I-Range Error: end must be greater than or equal to start."});
    EXPECT_EQ(variableNames(), variables);
}

// Counted from the last index: 0 is the last one itself, -1 the one before it.
TEST_F(LoadDriver, TakesARangeWhoseEndIsCountedFromTheLastIndex) {
    for (const auto& [end, points] : {std::pair{0, 3}, {-1, 2}, {3, 1}, {9, 3}}) {
        host().clearLog();
        useFiles({gridFile("a.x", {{2, 3, 5}})});
        options.kRange = {3, end, 1};
        EXPECT_TRUE(load()) << end;
        EXPECT_EQ(host().frame().dataSet()->zone(1)->k, points) << end;
    }
}

TEST_F(LoadDriver, MakesOneStepOfFunctionFilesWithoutTimes) {
    useFiles({gridFile("a.x", twoGrids)}, {},
             {functionFile("f_2.fun", twoGrids, 2), functionFile("f_5.fun", twoGrids, 2)});
    EXPECT_TRUE(load());
    EXPECT_EQ(zoneCount(), 2);
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z", "F1V1", "F1V2", "F2V1", "F2V2"}));
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{0, 0})); // no time, no strand
}

TEST_F(LoadDriver, MakesATimeSeriesOfSelectedFunctionFiles) {
    useFiles({gridFile("a.x", twoGrids)}, {},
             {functionFile("f_2.fun", twoGrids, 2), functionFile("f_5.fun", twoGrids, 2)});
    EXPECT_TRUE(load(fromSelection));
    EXPECT_TRUE(options.extractTimeFromSolFileNames);
    EXPECT_EQ(solutionTimes(), (std::vector<double>{2, 2, 5, 5}));
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 1, 2}));
}

TEST_F(LoadDriver, LeavesTheTimesOfSelectedSolutionFilesAlone) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("q_2.q", twoGrids, 0.25), solutionFile("q_5.q", twoGrids, 0.75)});
    EXPECT_TRUE(load(fromSelection));
    EXPECT_FALSE(options.extractTimeFromSolFileNames);
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0.25, 0.25, 0.75, 0.75}));
}

TEST_F(LoadDriver, TakesTheTimesOfNamesThatWereAskedFor) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("q_2.q", twoGrids, 0.25), solutionFile("q_5.q", twoGrids, 0.75)});
    options.extractTimeFromSolFileNames = true;
    EXPECT_TRUE(load());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{2, 2, 5, 5}));
}

TEST_F(LoadDriver, GivesNoStrandsToFunctionStyleWithoutTimes) {
    useFiles({gridFile("a.x", twoGrids)}, {}, {functionFile("f.fun", twoGrids, 2)});
    options.style = Plot3DStyle_Function;
    EXPECT_TRUE(load());
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{0, 0}));
    EXPECT_FALSE(options.assignStrandIds);
    EXPECT_EQ(instruction("ASSIGNSTRANDIDS"), "Yes"); // as it was asked
}

TEST_F(LoadDriver, TakesTimesFromNamesAlsoWhenTheCountsWereRefused) {
    useFiles({"a.x", "b.x"}, {"q_2.q", "q_5.q", "q_7.q"});
    options.extractTimeFromSolFileNames = true;
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{"If you select more than one grid file, the number of grid files "
                                "must match the number of solution files."});
    EXPECT_EQ(options.solutionTimes.size(), 3U);
    EXPECT_FALSE(showedProgress("Examining file headers... "));
}

TEST_F(LoadDriver, LeavesTheFrameAloneWhenAFileIsRefused) {
    makeOldDataSet({"X"}, 3);
    useFiles({directory.write("a.x", std::string(64, '\x7f'))});
    EXPECT_FALSE(load());
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(zoneCount(), 3);
    EXPECT_FALSE(host().log().instructionsHandedOver);
}

// It is opened to see how it is encoded, and again to find its structure.
TEST_F(LoadDriver, TellsOfTheFirstFileThatIsNotThereAlone) {
    useFiles({directory.file("a.x"), directory.file("b.x")});
    EXPECT_FALSE(load());
    const std::string told = "The file " + directory.file("a.x") + " could not be opened.";
    EXPECT_EQ(messages(), (Texts{told, told}));
}

// Beside a solution function files are not compared with the grid before they are scanned.
TEST_F(LoadDriver, NamesAFunctionFileThatDoesNotFitTheGrid) {
    const std::string solution = solutionFile("a.q", twoGrids, 0);
    const std::string function = functionFile("a.fun", {{2, 3, 5}, {3, 5, 11}}, 2);
    useFiles({gridFile("a.x", twoGrids)}, {solution}, {function});
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), (Texts{"The function file does not fit the grid.\nFile: " + function,
                                 "Invalid Plot 3D solution file.\nFile: " + solution}));
}

TEST_F(LoadDriver, RefusesALaterSolutionOfFewerGrids) {
    const GridList many(1001, {2, 3, 4});
    const GridList fewer(1000, {2, 3, 4});
    const std::string later = solutionFile("b.q", fewer, 1);
    useFiles({gridFile("a.x", {{2, 3, 5}}), gridFile("b.x", many)},
             {solutionFile("a.q", {{2, 3, 5}}, 0), later});
    options.uniformGridStructure = false;
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{"Grid 1000 in file " + later +
                                " does not have the same dimensions as the corresponding grid in "
                                "the previous datafile."});
}

TEST_F(LoadDriver, RefusesToLoadNothing) {
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{"There are no files to load."});
}

TEST_F(LoadDriver, FailsWhenTheHostRefusesTheInstructionsThoughTheZonesStand) {
    useFiles({gridFile("a.x", twoGrids)});
    host().settings().refuseInstructions = true;
    EXPECT_FALSE(load());
    EXPECT_EQ(zoneCount(), 2);
    EXPECT_EQ(host().log().redraws, 1);
}

TEST_F(LoadDriver, ShowsHowFarItIs) {
    useFiles({gridFile("a.x", twoGrids)});
    EXPECT_TRUE(load());
    const std::string name = options.gridFiles.front();
    const std::string tail = name.size() > 40 ? name.substr(name.size() - 40) : name;
    ASSERT_GE(progress().size(), 4U);
    EXPECT_EQ(progress()[0], "Preparing to Load Plot3D Data...");
    EXPECT_EQ(progress()[1], "Examining file headers... ");
    EXPECT_EQ(progress()[2], "Examining file header ..." + tail);
    EXPECT_EQ(progress()[3], "Creating the dataset");
}

TEST_F(LoadDriver, ShowsTheLastFortyCharactersOfALongName) {
    const std::string tail = "\xC3\xA9" + std::string(37, 'n') + ".x"; // 40 characters, 41 bytes
    useFiles({gridFile("x" + tail, twoGrids)});
    EXPECT_TRUE(load());
    EXPECT_TRUE(showedProgress("Examining file header ..." + tail));
}

TEST_F(LoadDriver, LoadsAgainInPlaceOfWhatIsThere) {
    makeOldDataSet({"X"}, 3);
    useFiles({gridFile("a.x", twoGrids)});
    EXPECT_TRUE(load());
    EXPECT_TRUE(load());
    EXPECT_EQ(zoneCount(), 2);
}

} // namespace
} // namespace quorvia::testsupport
