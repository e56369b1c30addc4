// How many grid (g), solution (s) and function (f) files may go together: every rule, both sides.
#include "loader/FileSetCounts.h"
#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

constexpr const char* pass = "";
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

struct CountCase_s {
    std::size_t g;
    std::size_t s;
    std::size_t f;
    bool append;
    const char* outcome;
};

class FileSetCounts : public LoaderTest, public ::testing::WithParamInterface<CountCase_s> {};

TEST_P(FileSetCounts, PassOrAreRefusedWithTheirOwnText) {
    const CountCase_s& row = GetParam();
    useFiles(Texts(row.g, "a.x"), Texts(row.s, "a.q"), Texts(row.f, "a.fun"));
    options.append = row.append;
    const std::string outcome = row.outcome;
    EXPECT_EQ(quorutildataio::checkFileSetCounts(options), outcome.empty());
    EXPECT_EQ(messages(), outcome.empty() ? Texts() : Texts{outcome});
}

INSTANTIATE_TEST_SUITE_P(
    Rules, FileSetCounts,
    ::testing::Values(
        // no function files
        CountCase_s{0, 3, 0, false, pass}, CountCase_s{3, 0, 0, false, pass},
        CountCase_s{1, 5, 0, false, pass}, CountCase_s{3, 3, 0, false, pass},
        CountCase_s{3, 2, 0, false, needsSolutions}, CountCase_s{2, 3, 0, false, needsSolutions},
        // several grid files
        CountCase_s{3, 3, 3, false, pass}, CountCase_s{3, 3, 2, false, needsGridsAndSolutions},
        CountCase_s{3, 2, 3, false, needsGridsAndSolutions}, CountCase_s{3, 0, 3, false, pass},
        CountCase_s{3, 0, 2, false, needsGrids}, CountCase_s{2, 0, 3, false, needsGrids},
        // one grid file
        CountCase_s{1, 0, 5, false, pass}, CountCase_s{1, 1, 5, false, pass},
        CountCase_s{1, 5, 5, false, pass}, CountCase_s{1, 2, 3, false, needsSameSolutions},
        // no grid file
        CountCase_s{0, 0, 2, true, pass}, CountCase_s{0, 1, 2, true, appendsSolutions},
        CountCase_s{0, 2, 2, true, appendsSolutions}, CountCase_s{0, 0, 2, false, functionsOnly},
        CountCase_s{0, 2, 2, false, pass}, CountCase_s{0, 2, 3, false, needsGridsAndSolutionsBlank},
        CountCase_s{0, 1, 2, false, needsGridsAndSolutionsBlank}));

class FileSetCountFlags : public LoaderTest {};

TEST_F(FileSetCountFlags, OneClearFlagLetsAnyCountsPassWithoutFunctionFiles) {
    useFiles(Texts(3, "a.x"), Texts(2, "a.q"));
    options.hasSolutionFiles = false;
    EXPECT_TRUE(quorutildataio::checkFileSetCounts(options));
    options.hasSolutionFiles = true;
    options.hasGridFiles = false;
    EXPECT_TRUE(quorutildataio::checkFileSetCounts(options));
}

} // namespace
} // namespace quorvia::testsupport
