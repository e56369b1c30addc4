// The first file of a list against a later one.
#include "StructureTest.h"
#include "plot3dfile/detection/StructureValidators.h"

namespace quorvia::quorutildataio {
namespace {

class StructureValidator : public StructureTest {
protected:
    StructureValidator() {
        for (Plot3DFile_s* file : {&first, &next}) {
            file->dataStructure = Plot3DDataStructure_3DWhole;
            file->style = Plot3DStyle_Classic;
            file->numGrids = 2;
            file->numVars = 3;
            file->gridDims = {{2, 3, 5}, {7, 11, 13}};
        }
        first.fileName = HostString::copyOf("a");
        next.fileName = HostString::copyOf("b");
        options.uniformGridStructure = true;
    }

    bool validateGridFile() {
        return Plot3DGridFileStructureValidator(first, options).validate(next);
    }
    bool validateSolution() {
        return Plot3DNonGridFileStructureValidator(first, options).validate(next);
    }

    Plot3DFile_s first;
    Plot3DFile_s next;
};

using Texts = std::vector<std::string>;

const std::string otherStructure = "All files must have the same data structure.";
const std::string otherGridCount =
    "b does not have the same number of grids as file a. When loading uniform grids the files must "
    "have the same numbers of grids.";

TEST_F(StructureValidator, TakesFilesThatAreAlike) {
    EXPECT_TRUE(validateGridFile());
    EXPECT_TRUE(validateSolution());
    EXPECT_EQ(messages(), Texts());
}

TEST_F(StructureValidator, RefusesPlanesBesideWhole) {
    next.dataStructure = Plot3DDataStructure_3DPlanes;
    EXPECT_FALSE(validateGridFile());
    EXPECT_FALSE(validateSolution());
    EXPECT_EQ(messages(), Texts(2, otherStructure));
}

TEST_F(StructureValidator, TellsTheFirstFaultAlone) {
    next.numVars = 4;
    next.numGrids = 1;
    EXPECT_FALSE(validateGridFile());
    EXPECT_FALSE(validateSolution());
    next.dataStructure = Plot3DDataStructure_3DPlanes;
    EXPECT_FALSE(validateGridFile());
    EXPECT_FALSE(validateSolution());
    EXPECT_EQ(messages(), (Texts{otherGridCount, otherGridCount, otherStructure, otherStructure}));
}

TEST_F(StructureValidator, RefusesAnotherNumberOfGridsOfUniformFiles) {
    next.numGrids = 1;
    EXPECT_FALSE(validateSolution());
    EXPECT_EQ(messages(), Texts{otherGridCount});
}

TEST_F(StructureValidator, TakesAnotherNumberOfGridsOfFilesThatAreNotUniform) {
    options.uniformGridStructure = false;
    next.numGrids = 1;
    next.gridDims = {{17, 3, 5}};
    EXPECT_TRUE(validateSolution());
    EXPECT_TRUE(validateGridFile());
}

TEST_F(StructureValidator, CallsALoadWithOneGridFileUniform) {
    options.uniformGridStructure = false;
    options.hasGridFiles = true;
    options.gridFiles = {"a"};
    next.numGrids = 1;
    EXPECT_FALSE(validateSolution());
    options.gridFiles = {"a", "b"};
    EXPECT_TRUE(validateSolution());
}

TEST_F(StructureValidator, NamesTheFirstGridThatDiffersByItsIndexFromZero) {
    next.gridDims[1] = {7, 11, 17};
    EXPECT_FALSE(validateGridFile());
    EXPECT_EQ(messages(), Texts{"Grid 1 in file b does not have the same dimensions as the "
                                "corresponding grid in the previous datafile."});
}

// What stands behind a file's grids is left over from other trials.
TEST_F(StructureValidator, NamesTheFirstGridThatOneFileLacks) {
    next.numGrids = 1;
    EXPECT_FALSE(compareFileDimensions(first, next));
    next.gridDims.resize(1);
    EXPECT_FALSE(compareFileDimensions(first, next));
    EXPECT_EQ(messages(), Texts(2, "Grid 1 in file b does not have the same dimensions as the "
                                   "corresponding grid in the previous datafile."));
}

TEST_F(StructureValidator, ComparesUnstructuredGridsByTheirNodes) {
    first.dataStructure = next.dataStructure = Plot3DDataStructure_Unstructured;
    next.gridDims[1] = {7, 0, 17};
    EXPECT_TRUE(compareFileDimensions(first, next));
    next.gridDims[1] = {17, 11, 13};
    EXPECT_FALSE(compareFileDimensions(first, next));
}

TEST_F(StructureValidator, WantsTheVariablesOfGridFilesToMatchTheirStructure) {
    const std::pair<Plot3DDataStructure_e, std::int32_t> counts[] = {
        {Plot3DDataStructure_1D, 1},           {Plot3DDataStructure_2D, 2},
        {Plot3DDataStructure_3DPlanes, 3},     {Plot3DDataStructure_3DWhole, 3},
        {Plot3DDataStructure_Unstructured, 3}, {Plot3DDataStructure_Unknown, 0}};
    for (const auto& [dataStructure, count] : counts) {
        first.dataStructure = next.dataStructure = dataStructure;
        next.numVars = count;
        EXPECT_TRUE(validateGridFile());
        next.numVars = count + 1;
        EXPECT_FALSE(validateGridFile());
    }
    EXPECT_EQ(messages(), Texts(6, "Grid file does not have the right number of variables."));
}

TEST_F(StructureValidator, RefusesFunctionFilesAmongSolutionFiles) {
    next.style = Plot3DStyle_Function;
    next.dataStructure = Plot3DDataStructure_1D; // told after the style, hence not at all
    EXPECT_FALSE(validateSolution());
    std::swap(first.style, next.style);
    EXPECT_FALSE(validateSolution());
    EXPECT_EQ(messages(), Texts(2, "There are Solution Files mixed up with Function Files. Please "
                                   "load them separately."));
}

TEST_F(StructureValidator, TakesSolutionsOfDifferentStyles) {
    next.style = Plot3DStyle_Swift;
    EXPECT_TRUE(validateSolution());
}

TEST_F(StructureValidator, RefusesAnotherNumberOfVariablesOfSolutions) {
    next.numVars = 5;
    EXPECT_FALSE(validateSolution());
    first.style = next.style = Plot3DStyle_Function;
    EXPECT_FALSE(validateSolution());
    EXPECT_EQ(messages(), (Texts{"Solution Files do not each have the same number of variables.",
                                 "Function Files do not each have the same number of variables."}));
}

} // namespace
} // namespace quorvia::quorutildataio
