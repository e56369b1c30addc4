// What the writer refuses, and what it leaves behind when it can't go on.
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

std::string faultOf(const FileDescription_s& description,
                    Encoding_e encoding = Encoding_e::Binary) {
    return findFault(description, formOf(encoding));
}

FileDescription_s solution(FileKind_e kind, Layout_e layout) {
    FileDescription_s result = describe(kind, {{2, 1, 1}}, layout);
    result.numVars = 5;
    result.scalars = {std::vector<double>(static_cast<std::size_t>(scalarCount(result)), 1.0)};
    return result;
}

TEST(Description, OverflowExistsInThreeDOnly) {
    for (const Layout_e layout : {Layout_e::OneD, Layout_e::TwoD, Layout_e::Unstructured})
        EXPECT_EQ(faultOf(solution(FileKind_e::OverflowSolution, layout)),
                  "an Overflow solution must be 3-D");
    EXPECT_EQ(faultOf(solution(FileKind_e::OverflowSolution, Layout_e::ThreeDPlanes)), "");
}

TEST(Description, SwiftIsNeverUnstructured) {
    EXPECT_EQ(faultOf(solution(FileKind_e::SwiftSolution, Layout_e::Unstructured)),
              "a Swift solution can't be unstructured");
}

TEST(Description, OneDIsSingleGridWithoutIBlank) {
    FileDescription_s line = describe(FileKind_e::Grid, {{2, 1, 1}}, Layout_e::OneD);
    line.isMultiGrid = true;
    EXPECT_EQ(faultOf(line), "a 1-D file can't be multi-grid");
    line.isMultiGrid = false;
    line.hasIBlank = true;
    EXPECT_EQ(faultOf(line), "a 1-D or unstructured file has no I-blank");
}

TEST(Description, OnlyGridFilesHaveIBlank) {
    FileDescription_s function = describe(FileKind_e::Function, {{2, 1, 1}}, Layout_e::TwoD);
    function.numVars = 1;
    function.hasIBlank = true;
    EXPECT_EQ(faultOf(function), "only a grid file has I-blank");
}

TEST(Description, SingleGridFileHasOneGrid) {
    FileDescription_s grids = describe(FileKind_e::Grid, {{2, 1, 1}, {2, 1, 1}}, Layout_e::TwoD);
    grids.isMultiGrid = false;
    EXPECT_EQ(faultOf(grids), "a single-grid file has exactly one grid, found 2");
}

TEST(Description, GridHasTrianglesOrTetrahedra) {
    const std::string neither =
        "grid 1 needs nodes, and triangles or tetrahedra but not both, found ";
    EXPECT_EQ(faultOf(describe(FileKind_e::Grid, {{4, 1, 1}}, Layout_e::Unstructured)),
              neither + "4 x 1 x 1");
    EXPECT_EQ(faultOf(describe(FileKind_e::Grid, {{4, 0, 0}}, Layout_e::Unstructured)),
              neither + "4 x 0 x 0");
}

TEST(Description, DimensionsFitTheLayout) {
    EXPECT_EQ(faultOf(describe(FileKind_e::Grid, {{2, 3, 1}}, Layout_e::OneD)),
              "grid 1 of a 1-D file must be i x 1 x 1, found 2 x 3 x 1");
    EXPECT_EQ(faultOf(describe(FileKind_e::Grid, {{2, 3, 1}, {2, 3, 5}}, Layout_e::TwoD)),
              "grid 2 of a 2-D file must be i x j x 1, found 2 x 3 x 5");
    EXPECT_EQ(faultOf(describe(FileKind_e::Grid, {{2, 0, 5}})),
              "grid 1 needs at least one point in each direction, found 2 x 0 x 5");
}

TEST(Description, SizeMustFitFilePositions) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(faultOf(describe(FileKind_e::Grid, {{most, most, most}})),
              "grid 1 is too large for 64-bit file positions");
}

TEST(Description, EachGridNeedsItsScalars) {
    FileDescription_s classic = solution(FileKind_e::ClassicSolution, Layout_e::TwoD);
    classic.scalars[0].pop_back();
    EXPECT_EQ(faultOf(classic), "a grid has 3 scalars, expected 4");
    classic.scalars.clear();
    EXPECT_EQ(faultOf(classic), "each grid needs its scalars, found 0 lists for 1 grids");
}

TEST(Description, OverflowIntegerIsWhole) {
    FileDescription_s overflow = solution(FileKind_e::OverflowSolution, Layout_e::ThreeDWhole);
    overflow.scalars[0][overflowIntegerIndex] = 1.5;
    EXPECT_EQ(faultOf(overflow), "scalar 8 of an Overflow solution must be a 32-bit whole number");
}

TEST(ScalarCount, FollowsTheStyle) {
    EXPECT_EQ(scalarCount(solution(FileKind_e::SwiftSolution, Layout_e::TwoD)), 5);
    EXPECT_EQ(scalarCount(solution(FileKind_e::SwiftSolution, Layout_e::OneD)), 4);
    FileDescription_s overflow = solution(FileKind_e::OverflowSolution, Layout_e::ThreeDWhole);
    EXPECT_EQ(scalarCount(overflow), 13);
    overflow.numSpecies = 7;
    EXPECT_EQ(scalarCount(overflow), 18);
}

TEST(Writing, TellsWhyAFileCannotBeCreated) {
    const auto grid = describe(FileKind_e::Grid, {{2, 3, 1}}, Layout_e::TwoD);
    EXPECT_EQ(writePlot3DFile("/nowhere/at/all.x", grid, formOf(Encoding_e::Binary)).problem,
              "cannot write /nowhere/at/all.x: No such file or directory");
}

TEST(Writing, TellsOfAFullDisk) {
    const auto grid = describe(FileKind_e::Grid, {{2, 3, 1}}, Layout_e::TwoD);
    EXPECT_EQ(writePlot3DFile("/dev/full", grid, formOf(Encoding_e::Binary)).problem,
              "cannot write /dev/full: No space left on device");
}

TEST(Writing, LeavesNoHalfFile) {
    const testsupport::TemporaryDirectory directory;
    auto grid = describe(FileKind_e::Grid, {{2, 3, 1}}, Layout_e::TwoD);
    grid.value = [](auto...) { return std::numeric_limits<double>::infinity(); };
    const std::string path = directory.file("bad.x");
    EXPECT_EQ(writePlot3DFile(path, grid, formOf(Encoding_e::Text)).problem,
              "cannot write " + path + ": a value that is not finite has no form in text");
    EXPECT_FALSE(std::filesystem::exists(path));
}

} // namespace
} // namespace quorvia::testsupport
