// Strand options, times from the names of files, and time steps of one time.
#include <limits>
#include <new>
#include <utility>

#include "LoaderFixture.h"
#include "loader/SolutionTimes.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"
#include "support/AllocationFaults.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

class StrandOptions : public LoaderTest {
protected:
    void normalise() { normaliseStrandOptions(options); }
};

TEST_F(StrandOptions, OfFunctionStyleAreClearedWithoutTimesFromNames) {
    useFiles({}, {}, {"a.fun"});
    options.style = Plot3DStyle_Function;
    normalise();
    EXPECT_FALSE(options.assignStrandIds);
    EXPECT_TRUE(options.assignStrandIdsRequested);
}

TEST_F(StrandOptions, OfFunctionStyleStayWithTimesFromNames) {
    useFiles({}, {}, {"a.fun"});
    options.style = Plot3DStyle_Function;
    options.extractTimeFromSolFileNames = true;
    normalise();
    EXPECT_TRUE(options.assignStrandIds);
}

TEST_F(StrandOptions, OfFunctionStyleAreClearedWithoutAnyNames) {
    options.style = Plot3DStyle_Function;
    options.extractTimeFromSolFileNames = true;
    normalise();
    EXPECT_FALSE(options.assignStrandIds);
}

TEST_F(StrandOptions, OfOtherStylesStay) {
    normalise();
    EXPECT_TRUE(options.assignStrandIds);
}

TEST_F(StrandOptions, JoinExistingStrandsOnlyWhenAppendingStrands) {
    options.addToExistingStrands = true;
    options.append = true;
    normalise();
    EXPECT_TRUE(options.addToExistingStrands);
    options.assignStrandIds = false;
    normalise();
    EXPECT_FALSE(options.addToExistingStrands);
}

TEST_F(StrandOptions, DoNotJoinExistingStrandsOfADataSetThatGoes) {
    options.addToExistingStrands = true;
    normalise();
    EXPECT_FALSE(options.addToExistingStrands);
}

using Times = std::map<std::string, double>;

class SolutionTimes : public LoaderTest {
protected:
    /// A time step with this time in its file, of `gridCount` grids.
    void addStep(const std::string& solution, double time, std::int32_t gridCount = 1) {
        files.push_back(recordOf(solution, gridCount, Plot3DStyle_Classic));
        files.back()->solutionTime = time;
        options.solutionFiles.push_back(solution);
        fileSets.emplace_back(nullptr, files.back().get(), std::vector<Plot3DFile_s*>());
    }
    bool check(std::int32_t firstZone = 1) {
        return checkSolutionTimes(firstZone, options, fileSets);
    }
    bool assign(std::int32_t firstZone) {
        return assignSolutionTimes(firstZone, options, fileSets);
    }

    HostLock lock{addOnID};
    Plot3DFileList files;
    std::vector<Plot3DFileHandler> fileSets;
};

TEST_F(SolutionTimes, ComeFromSolutionNamesAheadOfFunctionNames) {
    useFiles({}, {"d/q_2.q", "d/q_5.q"}, {"d/f_7.fun"});
    extractSolutionTimes(options);
    EXPECT_EQ(options.solutionTimes, (Times{{"d/q_2.q", 2}, {"d/q_5.q", 5}}));
}

TEST_F(SolutionTimes, ComeFromFunctionNamesWithoutSolutions) {
    useFiles({}, {}, {"f_7.fun"});
    extractSolutionTimes(options);
    EXPECT_EQ(options.solutionTimes, (Times{{"f_7.fun", 7}}));
}

TEST_F(SolutionTimes, AreForgottenWhenANameHasNone) {
    useFiles({}, {"q_2.q", "last.q"});
    options.solutionTimes["old.q"] = 3;
    extractSolutionTimes(options);
    EXPECT_EQ(options.solutionTimes, Times());
}

TEST_F(SolutionTimes, OfANameThatStandsTwiceAreTheFirst) {
    useFiles({}, {"a.q", "b.q", "a.q"});
    host().settings().timesFromFileNames = {2.0, 3.0, 5.0};
    extractSolutionTimes(options);
    EXPECT_EQ(options.solutionTimes, (Times{{"a.q", 2}, {"b.q", 3}}));
}

TEST_F(SolutionTimes, ThrowWithoutMemoryForListNameOrArray) {
    for (const char* operation :
         {"QuorUtilStringListAlloc", "QuorUtilStringListAppendString", "QuorUtilStringAlloc"}) {
        useFiles({}, {"q_2.q"});
        host().failCall(operation, 1);
        EXPECT_THROW(extractSolutionTimes(options), std::bad_alloc) << operation;
    }
}

TEST_F(SolutionTimes, ThatCameFromNamesAreNotChecked) {
    addStep("q_2.q", 1.5);
    addStep("q_5.q", 1.5);
    options.extractTimeFromSolFileNames = true;
    EXPECT_TRUE(check());
    EXPECT_EQ(host().callCount("QuorUtilExtractTimesFromFileNames"), 0);
}

TEST_F(SolutionTimes, AreNotCheckedWithoutSolutionFiles) {
    addStep("q_2.q", 1.5);
    addStep("q_5.q", 1.5);
    options.solutionFiles.clear();
    EXPECT_TRUE(check());
}

TEST_F(SolutionTimes, ThatDifferStand) {
    makeOldDataSet({"X"}, 2);
    addStep("q_2.q", 1.5);
    addStep("q_5.q", 2.5);
    EXPECT_TRUE(check());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0, 0}));
    EXPECT_EQ(options.solutionTimes.size(), 2U); // taken, and of no use any more
}

TEST_F(SolutionTimes, ThatAreEqualGiveWayToThoseOfTheNames) {
    makeOldDataSet({"X"}, 2);
    addStep("q_2.q", 1.5);
    addStep("q_5.q", 1.5);
    EXPECT_TRUE(check());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{2, 5}));
    EXPECT_EQ(files[1]->solutionTime, 5);
}

TEST_F(SolutionTimes, AllGiveWayWhenTheLastTwoAreEqual) {
    makeOldDataSet({"X"}, 3);
    addStep("q_2.q", 0.5);
    addStep("q_5.q", 1.5);
    addStep("q_7.q", 1.5);
    EXPECT_TRUE(check());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{2, 5, 7}));
}

TEST_F(SolutionTimes, ThatAreEqualCannotBeToldApartWithoutTimesInNames) {
    addStep("a.q", 1.5);
    addStep("b.q", 1.5);
    EXPECT_FALSE(check());
}

TEST_F(SolutionTimes, OfASingleStepNeverClash) {
    addStep("a.q", 1.5);
    EXPECT_TRUE(check());
}

TEST_F(SolutionTimes, ThatAreNoNumbersDiffer) {
    addStep("a.q", std::numeric_limits<double>::quiet_NaN());
    addStep("b.q", std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(check());
}

TEST_F(SolutionTimes, OfZeroAndMinusZeroAreEqual) {
    addStep("a.q", 0.0);
    addStep("b.q", -0.0);
    EXPECT_FALSE(check());
}

TEST_F(SolutionTimes, AreStillComparedWithoutMemoryForTheNames) {
    addStep("q_2.q", 1.5);
    addStep("q_5.q", 2.5);
    host().failCall("QuorUtilStringListAlloc", 1);
    EXPECT_TRUE(check());
    EXPECT_EQ(messages(), Texts{"Out of memory."});
}

TEST_F(SolutionTimes, CannotBeToldApartWithoutMemoryToCompareThem) {
    addStep("q_2.q", 1.5);
    addStep("q_5.q", 2.5);
    host().failCall("QuorUtilStringListAlloc", 1);
    // The first message stands right before the comparison.
    host().settings().messageObserver = [first = true](const host::Message_s&) mutable {
        if (std::exchange(first, false))
            failNextAllocation();
    };
    EXPECT_FALSE(check());
    EXPECT_FALSE(cancelAllocationFault());
    EXPECT_EQ(messages(), (Texts{"Out of memory.", "Out of memory."}));
}

TEST_F(SolutionTimes, CountZonesBehindTheFirst) {
    makeOldDataSet({"X"}, 5);
    addStep("q_2.q", 1.5, 2);
    addStep("q_5.q", 1.5, 1);
    EXPECT_TRUE(check(3));
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0, 0, 2, 2, 5}));
}

TEST_F(SolutionTimes, CountZonesAlsoForGridsThatAreNotSelected) {
    makeOldDataSet({"X"}, 6);
    selectGrids({2});
    addStep("q_2.q", 1.5, 3);
    addStep("q_5.q", 1.5, 3);
    EXPECT_TRUE(check());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0, 2, 0, 0, 5, 0}));
}

TEST_F(SolutionTimes, AssignedSoFarStayWhenANameHasNone) {
    makeOldDataSet({"X"}, 2);
    addStep("a.q", 1.5);
    addStep("b.q", 1.5);
    options.solutionTimes["a.q"] = 7;
    EXPECT_FALSE(assign(1));
    EXPECT_EQ(solutionTimes(), (std::vector<double>{7, 0}));
}

} // namespace
} // namespace quorvia::testsupport
