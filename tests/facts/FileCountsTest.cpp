// Which numbers of grid (g), solution (s) and function (f) files go together, and which files make
// a time step (docs/time-series.md): told by the values that the zones hold.
#include <cmath>

#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

constexpr const char* needsSolutions =
    "If you select more than one grid file, the number of grid files must match the number of "
    "solution files.";
constexpr const char* needsGridsAndSolutions =
    "If you load function files, the number of function files must match the number of grid and "
    "solution files.";
constexpr const char* needsGrids =
    "If you load function files, the number of function files must match the number of grid files.";
constexpr const char* needsSameSolutions =
    "If you load function files and more than one solution file, the number of function files "
    "must match the number of solution files.";
constexpr const char* appendsSolutions =
    "If you are appending function file variables, you cannot append solution files at the same "
    "time.";
constexpr const char* functionsOnly =
    "You can not load function files or solution files only. You must load grid and solution files "
    "along with function files. ";
constexpr const char* needsGridsAndSolutionsBlank =
    "If you load function files, the number of function files must match the number of grid and "
    "solution files. ";

struct Counts_s {
    int g;
    int s;
    int f;
};

class FileCounts : public LoadedAddOnTest {
protected:
    FileCounts() { files_.grids = {{2, 3, 5}}; }

    /// Files of each kind, numbered from `first` on. Each value is that of its place and the number
    /// of its file.
    Load_s loadOf(const Counts_s& counts, const Settings& settings = {}, int first = 1) const {
        Load_s load{.settings = settings};
        constexpr bool hasIBlank = false;
        for (int number = first; number < first + counts.g; ++number)
            load.gridFiles.push_back(files_.grid(std::to_string(number) + ".x", hasIBlank, number));
        for (int number = first; number < first + counts.s; ++number)
            load.solutionFiles.push_back(
                files_.solution(std::to_string(number) + ".q", number, number));
        for (int number = first; number < first + counts.f; ++number)
            load.functionFiles.push_back(files_.function(std::to_string(number) + ".f", 2, number));
        return load;
    }
    /// What is there before is of files 11, 12 and so on.
    void begin(const Counts_s& counts) const {
        host().frame().reset();
        expectLoads(loadOf(counts, {}, 11));
        host().clearLog();
    }
    /// The files that each zone has its values from, such as "[G1 S2 F2]".
    static std::string steps() {
        std::string text;
        const Texts names = variableNames();
        for (std::int32_t zone = 1; zone <= zoneCount(); ++zone) {
            std::string files;
            for (std::int32_t variable = 1; variable <= std::ssize(names); ++variable)
                if (const char kind = kindOf(names[static_cast<std::size_t>(variable - 1)]))
                    files += std::string(files.empty() ? "" : " ") + kind +
                             std::to_string(std::lround(values(zone, variable).front()));
            text += "[" + files + "]";
        }
        return text;
    }
    std::string stepsAfter(const Load_s& load) const {
        expectLoads(load);
        return steps();
    }

    SmallFiles files_{directory().path().string()};

private:
    /// Of the first variable of a file; 0: of another.
    static char kindOf(const std::string& variable) {
        if (variable == "X")
            return 'G';
        if (variable == "RHO")
            return 'S';
        return variable.starts_with("F") && variable.ends_with("V1") ? 'F' : '\0';
    }
};

const Settings append = {{"APPEND", "Yes"}};
const Settings byTimesOfNames = {{"EXTRACTTIMEFROMSOLFILENAMES", "Yes"}};

TEST_F(FileCounts, OfGridsAloneMakeATimeStepEach) {
    begin({1, 1, 0});
    EXPECT_EQ(stepsAfter(loadOf({1, 0, 0})), "[G1]");
    EXPECT_EQ(stepsAfter(loadOf({3, 0, 0})), "[G1][G2][G3]");
}

TEST_F(FileCounts, OfSolutionsMakeATimeStepEachOnOneGridOrOnTheirOwn) {
    begin({1, 1, 0});
    EXPECT_EQ(stepsAfter(loadOf({1, 1, 0})), "[G1 S1]");
    EXPECT_EQ(stepsAfter(loadOf({1, 3, 0})), "[G1 S1][G1 S2][G1 S3]");
    EXPECT_EQ(stepsAfter(loadOf({3, 3, 0})), "[G1 S1][G2 S2][G3 S3]");
}

TEST_F(FileCounts, OfSolutionsTakeAsManyFunctionsAlong) {
    begin({1, 1, 0});
    EXPECT_EQ(stepsAfter(loadOf({1, 1, 1})), "[G1 S1 F1]");
    EXPECT_EQ(stepsAfter(loadOf({1, 2, 2})), "[G1 S1 F1][G1 S2 F2]");
    EXPECT_EQ(stepsAfter(loadOf({3, 3, 3})), "[G1 S1 F1][G2 S2 F2][G3 S3 F3]");
}

TEST_F(FileCounts, OfOneSolutionTakeAllFunctionsIntoItsTimeStep) {
    begin({1, 1, 0});
    EXPECT_EQ(stepsAfter(loadOf({1, 1, 5})), "[G1 S1 F1 F2 F3 F4 F5]");
}

TEST_F(FileCounts, OfFunctionsOnOneGridMakeTimeStepsByTheTimesInTheirNamesAlone) {
    begin({1, 1, 0});
    EXPECT_EQ(stepsAfter(loadOf({1, 0, 3}, byTimesOfNames)), "[G1 F1][G1 F2][G1 F3]");
    EXPECT_EQ(stepsAfter(loadOf({1, 0, 3})), "[G1 F1 F2 F3]");
}

TEST_F(FileCounts, OfFunctionsGoWithAsManyGrids) {
    begin({1, 1, 0});
    EXPECT_EQ(stepsAfter(loadOf({3, 0, 3})), "[G1 F1][G2 F2][G3 F3]");
}

TEST_F(FileCounts, OfSolutionsAloneReplaceATimeStepEach) {
    begin({1, 1, 0});
    EXPECT_EQ(stepsAfter(loadOf({0, 1, 0})), "[G11 S1]");
    EXPECT_EQ(stepsAfter(loadOf({0, 3, 0})), "[G11 S1][G11 S2][G11 S3]");
}

TEST_F(FileCounts, OfSolutionsAndAsManyFunctionsReplaceTogether) {
    begin({1, 1, 1});
    EXPECT_EQ(stepsAfter(loadOf({0, 1, 1})), "[G11 S1 F1]");
    EXPECT_EQ(stepsAfter(loadOf({0, 2, 2})), "[G11 S1 F1][G11 S2 F2]");
}

TEST_F(FileCounts, OfFunctionsAloneAreAppendedToATimeStepEach) {
    begin({1, 2, 0});
    EXPECT_EQ(stepsAfter(loadOf({0, 0, 2}, append)), "[G11 S11 F1][G11 S12 F2]");
}

// ---- Refused ------------------------------------------------------------------------------------

struct RefusedCounts_s {
    Counts_s counts;
    const char* told;
    bool isAppended = false;
};

class RefusedFileCounts : public FileCounts,
                          public ::testing::WithParamInterface<RefusedCounts_s> {};

TEST_P(RefusedFileCounts, AreToldInWordsOfTheirOwnAndLeaveTheDataSet) {
    begin({1, 1, 0});
    EXPECT_FALSE(load(loadOf(GetParam().counts, GetParam().isAppended ? append : Settings())).ok);
    EXPECT_EQ(messages(), Texts{GetParam().told});
    EXPECT_EQ(steps(), "[G11 S11]");
}

INSTANTIATE_TEST_SUITE_P(Rules, RefusedFileCounts,
                         ::testing::Values(RefusedCounts_s{{3, 2, 0}, needsSolutions},
                                           RefusedCounts_s{{2, 3, 0}, needsSolutions},
                                           // several grid files
                                           RefusedCounts_s{{3, 3, 2}, needsGridsAndSolutions},
                                           RefusedCounts_s{{3, 2, 3}, needsGridsAndSolutions},
                                           RefusedCounts_s{{2, 2, 1}, needsGridsAndSolutions},
                                           RefusedCounts_s{{3, 0, 2}, needsGrids},
                                           RefusedCounts_s{{2, 0, 3}, needsGrids},
                                           // one grid file
                                           RefusedCounts_s{{1, 2, 3}, needsSameSolutions},
                                           // no grid file
                                           RefusedCounts_s{{0, 1, 2}, appendsSolutions, true},
                                           RefusedCounts_s{{0, 2, 2}, appendsSolutions, true},
                                           RefusedCounts_s{{0, 0, 2}, functionsOnly},
                                           RefusedCounts_s{{0, 2, 3}, needsGridsAndSolutionsBlank},
                                           RefusedCounts_s{{0, 1, 2}, needsGridsAndSolutionsBlank}),
                         [](const auto& row) {
                             const Counts_s& counts = row.param.counts;
                             return "G" + std::to_string(counts.g) + "S" +
                                    std::to_string(counts.s) + "F" + std::to_string(counts.f) +
                                    (row.param.isAppended ? "Appended" : "");
                         });

} // namespace
} // namespace quorvia::testsupport
