// Which counts of a header the file's size bears out.
#include "plot3dfile/timestep/FieldCount.h"

#include "DatasetFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

class FieldCount : public DatasetTest {};

TEST_F(FieldCount, OfVariablesIsOneThatTheFileBearsOut) {
    const GridList oneGrid = {{2, 3, 5}};
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q = write("q", describeSolution(oneGrid, 1));
    EXPECT_TRUE(areCountsPlausible(step(&x, &q)));
    for (const std::int32_t count : {2000000000, -1}) {
        q.numVars = count;
        EXPECT_FALSE(areCountsPlausible(step(&x, &q))) << count;
    }
}

TEST_F(FieldCount, OfEveryFunctionFileIsAsked) {
    const GridList oneGrid = {{2, 3, 5}};
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& f = write("f", describeFunction(oneGrid, 2));
    Plot3DFile_s& g = write("g", describeFunction(oneGrid, 2));
    EXPECT_TRUE(areCountsPlausible(step(&x, nullptr, {&f, &g})));
    g.numVars = 2000000000;
    EXPECT_FALSE(areCountsPlausible(step(&x, nullptr, {&f, &g})));
}

// Text of a few bytes that claims two billion triangles.
TEST_F(FieldCount, OfElementsIsOneThatTheFileBearsOut) {
    const FileDescription_s surface = describeGrid({{11, 5, 0}}, Layout_e::Unstructured);
    for (const FileForm_s& form : {text(), fortran()}) {
        Plot3DFile_s& x = write("x", surface, form);
        EXPECT_TRUE(areCountsPlausible(step(&x)));
        x.gridDims[0].j = 2000000000;
        EXPECT_FALSE(areCountsPlausible(step(&x)));
    }
}

TEST_F(FieldCount, NamesTheFileAtFault) {
    const GridList oneGrid = {{2, 3, 5}};
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q = write("q", describeSolution(oneGrid, 1));
    Plot3DFile_s& f = write("f", describeFunction(oneGrid, 2));
    const Plot3DFileHandler all = step(&x, &q, {&f});
    EXPECT_EQ(findImplausibleFile(all), nullptr);
    for (Plot3DFile_s* file : {&f, &q, &x}) {
        file->numVars = -1;
        EXPECT_EQ(findImplausibleFile(all), file);
    }
}

// ---- Values of a text file ----------------------------------------------------------------------

TEST_F(FieldCount, OfValuesOfTextIs64ForEachByte) {
    FileDescription_s grid = describeGrid({{2, 3, 5}, {3, 5, 7}});
    grid.hasIBlank = true;
    Plot3DFile_s& x = write("x", grid, text());
    x.hasIBlank = true;
    const std::int64_t values = 4 * (30 + 105);
    EXPECT_TRUE(isValueCountPlausible(x, values / 64 + 1));
    EXPECT_FALSE(isValueCountPlausible(x, values / 64));
}

TEST_F(FieldCount, OfValuesCountsNodesAndElements) {
    Plot3DFile_s& x = write("x", describeGrid({{11, 5, 0}}, Layout_e::Unstructured), text());
    x.gridDims[0].j = 20;
    EXPECT_FALSE(isValueCountPlausible(x, 1));
    EXPECT_TRUE(isValueCountPlausible(x, 2)); // 33 coordinates, 80 integers
}

TEST_F(FieldCount, OfValuesOfOtherFilesIsNotAsked) {
    EXPECT_TRUE(isValueCountPlausible(write("x", describeGrid({{2, 3, 5}})), 0));
}

} // namespace
} // namespace quorvia::testsupport
