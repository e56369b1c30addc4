#include "desktop/files/SeriesFiles.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "desktop/files/ImportList.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::host {
namespace {

using Names = std::vector<std::string>;

class SeriesFiles : public ::testing::Test {
protected:
    void there(const Names& names) {
        for (const std::string& name : names)
            directory_.write(name, "");
    }
    Names paths(const Names& names) const {
        Names paths;
        for (const std::string& name : names)
            paths.push_back(directory_.file(name));
        return paths;
    }
    /// Names of the others in the folder.
    Names others(const Names& files) const {
        Names names;
        for (const std::string& path : othersOfSeries(paths(files)))
            names.push_back(std::filesystem::path(path).filename().string());
        return names;
    }

private:
    testsupport::TemporaryDirectory directory_;
};

TEST_F(SeriesFiles, HaveTheSameNameWithAnotherNumber) {
    there({"step8.q", "step9.q", "step10.q", "step11.q", "step8.x", "step.q", "other12.q"});
    EXPECT_EQ(others({"step8.q", "step9.q"}), (Names{"step10.q", "step11.q"}));
}

TEST_F(SeriesFiles, CountFractionsAsOneNumber) {
    there({"a_t0.00.q", "a_t0.25.q", "a_t1.00.q"});
    EXPECT_EQ(others({"a_t0.00.q", "a_t0.25.q"}), Names{"a_t1.00.q"});
}

TEST_F(SeriesFiles, KeepTheNumbersThatAllOfThemHave) {
    there({"run1_8.q", "run1_9.q", "run1_10.q", "run2_10.q"});
    EXPECT_EQ(others({"run1_8.q", "run1_9.q"}), Names{"run1_10.q"});
}

TEST_F(SeriesFiles, OfOneFileDifferByTheLastNumber) {
    there({"run1_8.q", "run1_9.q", "run2_8.q"});
    EXPECT_EQ(others({"run1_8.q"}), Names{"run1_9.q"});
}

TEST_F(SeriesFiles, MayHaveTheNumberForAnEnding) {
    there({"wing.q.0010", "wing.q.0020", "wing.p3d", "wing.p4d"});
    EXPECT_EQ(others({"wing.q.0010"}), Names{"wing.q.0020"});
    EXPECT_EQ(others({"wing.p3d"}), Names());
}

TEST_F(SeriesFiles, AreNoneWithoutANumberOrAFolder) {
    there({"wing.q", "wing2.q"});
    EXPECT_EQ(others({"wing.q"}), Names());
    EXPECT_EQ(othersOfSeries({"/nowhere/at/all/step1.q"}), Names());
}

TEST_F(SeriesFiles, ThatCameSinceGoIntoTheListOfTheirKind) {
    there({"wing1.x", "wing2.x", "s8.q", "s9.q", "s7.q"});
    const Names files = paths({"wing1.x", "s8.q", "s9.q", "s10.q"});
    const Names instructions = {"STANDARDSYNTAX",
                                "1.0",
                                "FILELIST_GRIDFILES",
                                "1",
                                files[0],
                                "FILELIST_SOLUTIONFILES",
                                "2",
                                files[1],
                                files[2],
                                "ASSIGNSTRANDIDS",
                                "Yes"};
    Import_s import = importBy(instructions);
    EXPECT_EQ(import.leftOut, paths({"s7.q"}));
    EXPECT_EQ(addNewFiles(import), 0U);
    EXPECT_EQ(import.instructions, instructions);
    there({"s10.q"});
    EXPECT_EQ(addNewFiles(import), 1U);
    EXPECT_EQ(import.instructions, (Names{"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1",
                                          files[0], "FILELIST_SOLUTIONFILES", "3", files[1],
                                          files[2], files[3], "ASSIGNSTRANDIDS", "Yes"}));
}

TEST_F(SeriesFiles, OfInstructionsThatEndTooEarlyAreThoseThatAreThere) {
    EXPECT_EQ(filesOf({{{"FILELIST_GRIDFILES", "9", "a.x"}, {}}}).size(), 1U);
    EXPECT_EQ(filesOf({{{"FILELIST_GRIDFILES"}, {}}}).size(), 0U);
    EXPECT_EQ(filesOf({{{"FILELIST_GRIDFILES", "-3", "a.x"}, {}}}).size(), 0U);
}

} // namespace
} // namespace quorvia::host
