// Values that are fetched after the load: dropped and fetched again, cut short, gone.
#include <filesystem>

#include "acceptance/behaviour/Snapshot.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

class ReadOnDemand : public LoadedAddOnTest {
protected:
    void SetUp() override {
        SmallFiles files(directory().path().string());
        grid_ = files.grid("a.x");
        solution_ = files.solution("a.q", 0.25);
        expectLoads({.gridFiles = {grid_}, .solutionFiles = {solution_}});
    }

    /// Of zone 1 (2 x 3 x 5 points), whose grid is the first of its files.
    static std::vector<double> expectedValues(std::int32_t variableOfFile) {
        std::vector<double> expected;
        for (std::int32_t k = 0; k < 5; ++k)
            for (std::int32_t j = 0; j < 3; ++j)
                for (std::int32_t i = 0; i < 2; ++i)
                    expected.push_back(placeValue(0, variableOfFile, i, j, k));
        return expected;
    }

    static constexpr std::int32_t firstOfSolution = 4;
    std::string grid_;
    std::string solution_;
};

TEST_F(ReadOnDemand, GivesTheSameValuesAfterADrop) {
    EXPECT_EQ(values(1, firstOfSolution), expectedValues(0));
    ASSERT_TRUE(host().unload(1, firstOfSolution));
    EXPECT_EQ(host().fetchedBytes(), 0);
    EXPECT_EQ(values(1, firstOfSolution), expectedValues(0));
}

TEST_F(ReadOnDemand, GivesTheSameValuesUnderABudgetOfOneField) {
    const std::string atLeisure = snapshotOfFrame();
    host().unloadAll();
    host().settings().memoryLimitBytes = 30 * 4;
    EXPECT_EQ(snapshotOfFrame(), atLeisure);
    EXPECT_LE(host().fetchedBytes(), 30 * 4);
    EXPECT_EQ(values(1, 1), expectedValues(0));
    EXPECT_EQ(values(1, firstOfSolution + 4), expectedValues(4));
}

TEST_F(ReadOnDemand, TellsEachTimeThatTheFileIsGone) {
    std::filesystem::remove(solution_);
    const std::string told = "The file " + solution_ + " could not be opened.";
    EXPECT_EQ(host().fetch(1, firstOfSolution).error, told);
    EXPECT_FALSE(host().fetch(1, firstOfSolution).ok);
    EXPECT_EQ(messages(), (Texts{told, told}));
}

TEST_F(ReadOnDemand, LeavesFieldsOfOtherFilesAlone) {
    std::filesystem::remove(solution_);
    EXPECT_EQ(values(1, 1), expectedValues(0));
}

TEST_F(ReadOnDemand, KeepsValuesThatAreInMemoryWhenTheFileGoes) {
    values(1, firstOfSolution);
    std::filesystem::remove(solution_);
    EXPECT_EQ(values(1, firstOfSolution), expectedValues(0));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(ReadOnDemand, FindsTheFileAgainWhenItIsBack) {
    std::filesystem::rename(solution_, solution_ + ".away");
    EXPECT_FALSE(host().fetch(1, firstOfSolution).ok);
    std::filesystem::rename(solution_ + ".away", solution_);
    EXPECT_EQ(values(1, firstOfSolution), expectedValues(0));
}

TEST_F(ReadOnDemand, SaysNothingOfAFileThatWasCutShort) {
    std::filesystem::resize_file(solution_, 100);
    EXPECT_FALSE(host().fetch(1, firstOfSolution).ok);
    EXPECT_FALSE(host().fetch(2, firstOfSolution).ok);
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(values(1, 1), expectedValues(0));
}

TEST_F(ReadOnDemand, IsNotStoppedByAnInterruptionOfTheLoadBefore) {
    host().interruptAtStep(12);
    EXPECT_FALSE(load({.gridFiles = {grid_}, .solutionFiles = {solution_}}).ok);
    host().clearFaults();
    host().clearLog();
    expectLoads({.gridFiles = {grid_}, .solutionFiles = {solution_}});
    EXPECT_EQ(values(1, 1), expectedValues(0));
}

// Reads of whole fields ask nothing of the host that could fail, so that no fault reaches them.
TEST_F(ReadOnDemand, MeetsNoHostCallThatCanFail) {
    for (const std::string& operation : host::ReferenceHost::operationsThatCanFail())
        host().failCall(operation, 1);
    EXPECT_EQ(values(1, firstOfSolution), expectedValues(0));
    host().clearFaults();
}

} // namespace
} // namespace quorvia::testsupport
