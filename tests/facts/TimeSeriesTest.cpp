// Files of several time steps: the strand and the solution time of every zone, by the options of
// strands and by where the times come from. docs/time-series.md tells the rules.
#include "TimeSeries.h"

namespace quorvia::testsupport {
namespace {

const Setting join = {"ADDTOEXISTINGSTRANDS", "Yes"};
const Setting newEachStep = {"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", "Yes"};
const Setting bySize = {"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", "No"};
const Setting uniform = {"SOLUTIONSSHARESTRUCTURE", "Yes"};
const Setting differ = {"UNIFORMGRIDSTRUCTURE", "No"};

const Texts kept = {"1@1", "2@1", "1@2", "2@2"};
const Texts numberedOn = {"1@1", "2@1", "3@2", "4@2"};

Texts behind(Texts zones, const Texts& more) {
    zones.insert(zones.end(), more.begin(), more.end());
    return zones;
}

TEST_F(TimeSeries, WithoutTheOptionHasNoStrands) {
    const Texts none = {"0@1", "0@1", "0@2", "0@2"};
    EXPECT_EQ(afterFresh(steps({1, 2}, {})), none);
    EXPECT_EQ(afterFresh(steps({1, 2}, {noStrands})), none);
}

TEST_F(TimeSeries, OnOneGridFileKeepsTheStrandOfEachGridWhateverElseIsAsked) {
    for (const Settings& settings :
         {Settings{withStrands}, Settings{withStrands, uniform}, Settings{withStrands, newEachStep},
          Settings{withStrands, bySize}, Settings{withStrands, join},
          Settings{withStrands, newEachStep, differ}})
        EXPECT_EQ(afterFresh(steps({1, 2}, settings)), kept);
    EXPECT_EQ(afterFresh(steps({0.25, 0.75, 1.5})),
              (Texts{"1@0.25", "2@0.25", "1@0.75", "2@0.75", "1@1.5", "2@1.5"}));
}

TEST_F(TimeSeries, OfUniformGridFilesKeepsTheStrandOfEachGridWhateverElseIsAsked) {
    for (const Settings& settings : {Settings{withStrands}, Settings{withStrands, newEachStep},
                                     Settings{withStrands, bySize}, Settings{withStrands, join}})
        EXPECT_EQ(afterFresh(gridEachStep({1, 2}, settings)), kept);
}

TEST_F(TimeSeries, OfOtherGridFilesTakesNewStrandsOrThoseOfTheSize) {
    EXPECT_EQ(afterFresh(gridEachStep({1, 2}, {withStrands, differ})), numberedOn);
    EXPECT_EQ(afterFresh(gridEachStep({1, 2}, {withStrands, differ, newEachStep})), numberedOn);
    EXPECT_EQ(afterFresh(gridEachStep({1, 2}, {withStrands, differ, newEachStep, join})),
              numberedOn);
    EXPECT_EQ(afterFresh(gridEachStep({1, 2}, {withStrands, differ, bySize})), kept);
}

// The second step has the sizes the other way round, and one of them twice.
TEST_F(TimeSeries, OfGridsOfOneSizeTakesTheStrandsOfTheStepBeforeInOrder) {
    Load_s load = gridEachStep({1, 2}, {withStrands, differ, bySize});
    files_.grids = {{3, 5, 2}, {2, 3, 5}, {2, 3, 5}};
    load.gridFiles[1] = files_.grid("more.x");
    load.solutionFiles[1] = files_.solution("more.q", 2);
    EXPECT_EQ(afterFresh(load), (Texts{"1@1", "2@1", "2@2", "1@2", "3@2"}));
}

TEST_F(TimeSeries, ThatIsAppendedNumbersOnOrJoins) {
    for (const bool hasGrid : {true, false})
        for (const bool joins : {false, true}) {
            afterFresh(steps({1, 2}));
            Load_s more =
                steps({3, 4}, {appending, withStrands, {join.first, joins ? "Yes" : "No"}});
            if (!hasGrid)
                more.gridFiles.clear();
            EXPECT_EQ(after(more), behind(kept, joins ? Texts{"1@3", "2@3", "1@4", "2@4"}
                                                      : Texts{"3@3", "4@3", "3@4", "4@4"}))
                << "with a grid: " << hasGrid;
        }
}

// The second step has one more grid.
TEST_F(TimeSeries, OfOtherGridFilesThatIsAppendedIsNewForEachStepUnlessItShallJoin) {
    const auto appended = [this](const Settings& settings) {
        afterFresh(steps({1, 2}));
        Load_s more = gridEachStep({1, 2}, settings);
        files_.grids.push_back({5, 7, 11});
        more.gridFiles[1] = files_.grid("more.x");
        more.solutionFiles[1] = files_.solution("more.q", 2);
        files_.grids.pop_back();
        const Texts all = after(more);
        return Texts(all.begin() + 4, all.end());
    };
    EXPECT_EQ(appended({appending, withStrands, differ, newEachStep}),
              (Texts{"3@1", "4@1", "5@2", "6@2", "7@2"}));
    EXPECT_EQ(appended({appending, withStrands, differ, newEachStep, join}),
              (Texts{"1@1", "2@1", "1@2", "2@2", "3@2"}));
    EXPECT_EQ(appended({appending, withStrands, differ, bySize}),
              (Texts{"3@1", "4@1", "3@2", "4@2", "5@2"}));
}

TEST_F(TimeSeries, ThatIsAppendedWithoutTheOptionHasNoStrandsEvenIfItShallJoin) {
    afterFresh(steps({1, 2}));
    EXPECT_EQ(after(steps({3, 4}, {appending, join, noStrands})),
              behind(kept, {"0@3", "0@3", "0@4", "0@4"}));
}

TEST_F(TimeSeries, KeepsStrandsAndTimesUnderAppendedFunctions) {
    afterFresh(steps({1, 2}));
    EXPECT_EQ(after({.functionFiles = {files_.function("a.fun", 2), files_.function("b.fun", 2)},
                     .settings = {appending}}),
              kept);
}

TEST_F(TimeSeries, ThatReplacesAnotherBringsItsTimes) {
    afterFresh(steps({1, 2}));
    Load_s later = steps({3, 4});
    later.gridFiles.clear();
    EXPECT_EQ(after(later), (Texts{"1@3", "2@3", "1@4", "2@4"}));
}

TEST_F(TimeSeries, IgnoresTheWishToAddToStrandsThatAreNotThere) {
    EXPECT_EQ(afterFresh(steps({1, 2}, {withStrands, join})), kept);
    EXPECT_TRUE(handedOver("ADDTOEXISTINGSTRANDS", "No"));
}

TEST_F(TimeSeries, SharesTheGridOfTheFirstStep) {
    expectLoads(steps({1, 2}));
    EXPECT_EQ(dataSet().fieldHolders(1), (std::vector<std::int32_t>{1, 2, 1, 2}));
    EXPECT_EQ(dataSet().fieldHolders(4), (std::vector<std::int32_t>{1, 2, 3, 4}));
}

// ---- Times from the names of files --------------------------------------------------------------

TEST_F(TimeSeries, KeepsDifferentTimesOfFilesWhateverTheNames) {
    EXPECT_EQ(afterFresh(named({{"q.100", 1}, {"q.200", 2}})), kept);
}

TEST_F(TimeSeries, TakesTimesOfNamesOnRequest) {
    EXPECT_EQ(afterFresh(named({{"q.100", 0.25}, {"q.200", 0.75}}, {withStrands, timesOfNames})),
              (Texts{"1@100", "2@100", "1@200", "2@200"}));
}

TEST_F(TimeSeries, TakesTheTimesThatTheHostFindsInTheNames) {
    host().settings().timesFromFileNames = {5.0, 7.0};
    EXPECT_EQ(afterFresh(steps({1, 2}, {withStrands, timesOfNames})),
              (Texts{"1@5", "2@5", "1@7", "2@7"}));
}

TEST_F(TimeSeries, OfFunctionFilesTakesTimesOfNames) {
    EXPECT_EQ(afterFresh(functions({withStrands, timesOfNames})),
              (Texts{"1@10", "2@10", "1@20", "2@20"}));
}

TEST_F(TimeSeries, OfFunctionFilesWithoutTimesIsOneStepWithoutStrands) {
    EXPECT_EQ(afterFresh(functions({withStrands})), (Texts{"0@0", "0@0"}));
    EXPECT_TRUE(handedOver("ASSIGNSTRANDIDS", "Yes"));
}

TEST_F(TimeSeries, OfSelectedFunctionFilesTakesTimesOfNamesUnasked) {
    expectSelectionLoads(
        {files_.grid("a.x"), files_.function("f_10.f", 1), files_.function("f_20.f", 1)});
    EXPECT_EQ(solutionTimes(), (Numbers{10, 10, 20, 20}));
    EXPECT_TRUE(handedOver("EXTRACTTIMEFROMSOLFILENAMES", "Yes"));
}

} // namespace
} // namespace quorvia::testsupport
