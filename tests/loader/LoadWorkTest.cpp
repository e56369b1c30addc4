// The weight of the dataset stage, in variables of a zone or of a K plane.
#include <limits>

#include "LoaderFixture.h"
#include "loader/LoadWork.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

class LoadWork : public LoaderTest {
protected:
    LoadWork() : context(options, false) {
        context.shape.numSpatialVars = 3;
        context.shape.numSolutionVars = 5;
        options.uniformGridStructure = false;
    }
    Plot3DFile_s* addGrid(std::int32_t gridCount) {
        context.gridFiles.push_back(recordOf("a.x", gridCount, Plot3DStyle_Classic));
        return context.gridFiles.back().get();
    }
    Plot3DFile_s* addFunctions(std::int32_t gridCount) {
        context.functionFiles.push_back(recordOf("a.fun", gridCount, Plot3DStyle_Function));
        return context.functionFiles.back().get();
    }
    void addStep(Plot3DFile_s* grid, std::vector<Plot3DFile_s*> functions = {}) {
        context.fileSets.emplace_back(grid, nullptr, std::move(functions));
    }

    Plot3DLoadContext_s context;
};

TEST_F(LoadWork, IsZonesTimesVariables) {
    addStep(addGrid(7));
    EXPECT_EQ(estimateLoadWork(context), 7 * (3 + 5));
    context.shape.hasIBlank = true;
    EXPECT_EQ(estimateLoadWork(context), 7 * (3 + 5 + 1));
}

TEST_F(LoadWork, CountsPlanesOfAFileInPlanes) {
    Plot3DFile_s* grid = addGrid(2);
    grid->dataStructure = Plot3DDataStructure_3DPlanes;
    grid->gridDims[1].k = 11;
    addStep(grid);
    EXPECT_EQ(estimateLoadWork(context), (5 + 11) * (3 + 5));
}

TEST_F(LoadWork, OfUnlikeStepsIsSummed) {
    context.shape.numFunctionVars = 2;
    addStep(addGrid(7));
    addStep(addGrid(11));
    EXPECT_EQ(estimateLoadWork(context), (7 + 11) * (3 + 5 + 2));
}

TEST_F(LoadWork, OfUniformStepsIsTheFirstStepsEachTime) {
    options.uniformGridStructure = true;
    context.shape.numFunctionVars = 2;
    addStep(addGrid(7), {addFunctions(7), addFunctions(7), addFunctions(7)});
    addStep(addGrid(2));
    EXPECT_EQ(estimateLoadWork(context), 2 * 7 * (3 + 5 + 2 * 3));
}

TEST_F(LoadWork, OfOneGridFileIsTheFirstStepsEachTime) {
    useFiles({"a.x"});
    Plot3DFile_s* grid = addGrid(7);
    for (int step = 0; step < 13; ++step)
        addStep(grid);
    EXPECT_EQ(estimateLoadWork(context), 13 * 7 * (3 + 5));
}

TEST_F(LoadWork, OfAbsurdCountsStaysInRange) {
    constexpr std::int32_t absurd = std::numeric_limits<std::int32_t>::max();
    context.shape.numSolutionVars = absurd;
    Plot3DFile_s* grid = addGrid(7);
    grid->dataStructure = Plot3DDataStructure_3DPlanes;
    for (Plot3DGridDims_s& dims : grid->gridDims)
        dims.k = absurd;
    addStep(grid);
    addStep(grid);
    EXPECT_EQ(estimateLoadWork(context), std::numeric_limits<std::int64_t>::max());
    context.shape.numSolutionVars = -absurd;
    EXPECT_EQ(estimateLoadWork(context), 0);
}

} // namespace
} // namespace quorvia::testsupport
