// Whether the headers agree on the number of grids.
#include "loader/GridCountRules.h"
#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

class GridCounts : public LoaderTest {
protected:
    static void add(Plot3DFileList& files, const std::string& name, std::int32_t gridCount) {
        files.push_back(recordOf(name, gridCount, Plot3DStyle_Classic));
    }
    bool agree() { return checkFileListGridCounts(grids, solutions, functions); }
    bool areUniform() { return checkUniformGridStructure(grids, solutions, functions); }

    Plot3DFileList grids;
    Plot3DFileList solutions;
    Plot3DFileList functions;
};

TEST_F(GridCounts, OfAllFirstFilesAgree) {
    add(grids, "a.x", 3);
    add(solutions, "a.q", 3);
    add(solutions, "b.q", 7); // stands behind the first, which is asked for its list
    add(functions, "a.fun", 3);
    EXPECT_TRUE(agree());
}

TEST_F(GridCounts, OfSolutionFilesStandInForMissingGridFiles) {
    add(solutions, "a.q", 2);
    add(functions, "a.fun", 5);
    EXPECT_FALSE(agree());
    EXPECT_EQ(messages(), Texts{"The number of grids in the function files (5) does not match the "
                                "number of grids in the grid or solution files (2)"});
}

TEST_F(GridCounts, OfFunctionFilesAloneAgreeWithAnything) {
    add(functions, "a.fun", 5);
    add(functions, "b.fun", 7);
    EXPECT_TRUE(agree());
}

TEST_F(GridCounts, OfUniformFilesMayBeFewerOrNone) {
    add(grids, "a.x", 3);
    add(grids, "b.x", 2);
    add(solutions, "a.q", 0);
    EXPECT_TRUE(areUniform());
}

TEST_F(GridCounts, OfUniformFilesMayNotGrow) {
    add(grids, "a.x", 3);
    add(solutions, "a.q", 3);
    add(solutions, "b.q", 5);
    add(functions, "b.fun", 7); // not told: the first offender ends the check
    EXPECT_FALSE(areUniform());
    EXPECT_EQ(messages(), Texts{"b.q contains more zones than specified in the first time step  (5 "
                                "and 3 ). Please reload the Plot3D data unselecting the \"Uniform "
                                "Grid Structure\" option."});
}

TEST_F(GridCounts, OfUniformFunctionFilesFollowTheFirstOfThem) {
    add(functions, "a.fun", 2);
    add(functions, "b.fun", 3);
    EXPECT_FALSE(areUniform());
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(GridCounts, OfNoFilesAreUniform) {
    EXPECT_TRUE(areUniform());
    EXPECT_TRUE(agree());
}

} // namespace
} // namespace quorvia::testsupport
