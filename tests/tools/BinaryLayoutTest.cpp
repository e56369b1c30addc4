// Whole small files, byte for byte, spelled by hand.
#include <gtest/gtest.h>

#include "support/HexBytes.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

// Reals: 1 3F800000, 2 40000000, 10 41200000, 100 42C80000, 1000 447A0000, 1001 447A4000,
// 2000 44FA0000, 2001 44FA2000, 10000 461C4000, 11000 462BE000, 12000 463B8000.

TEST(GoldenGridFile, MultiGridWholeWithIBlankInFortranRecords) {
    FileDescription_s grids = describe(FileKind_e::Grid, {{2, 1, 1}, {1, 1, 1}});
    grids.hasIBlank = true;
    EXPECT_EQ(toHex(bytesOf(grids, formOf(Encoding_e::Fortran))),
              hexOf("04000000 02000000 04000000"
                    "18000000 02000000 01000000 01000000 01000000 01000000 01000000 18000000"
                    "20000000 00000000 0000803F 00007A44 00407A44 0000FA44 0020FA44"
                    "01000000 02000000 20000000"
                    "10000000 00401C46 00E02B46 00803B46 F1FFFFFF 10000000"));
}

TEST(GoldenSolutionFile, SinglePlanesClassicInDoubleFortranRecords) {
    FileDescription_s solution =
        describe(FileKind_e::ClassicSolution, {{1, 1, 2}}, Layout_e::ThreeDPlanes);
    solution.scalars = {{1, 2, 4, 8}};
    solution.value = [](std::int32_t, std::int32_t variable, std::int32_t, std::int32_t,
                        std::int32_t k) { return k == 0 ? 1 << variable : -(1 << variable); };
    EXPECT_EQ(toHex(bytesOf(solution,
                            formOf(Encoding_e::Fortran, ByteOrder_e::Little, Precision_e::Double))),
              hexOf("0C000000 01000000 01000000 02000000 0C000000"
                    "20000000 00000000 0000F03F 00000000 00000040 00000000 00001040"
                    "00000000 00002040 20000000"
                    "28000000 00000000 0000F03F 00000000 00000040 00000000 00001040"
                    "00000000 00002040 00000000 00003040 28000000"
                    "28000000 00000000 0000F0BF 00000000 000000C0 00000000 000010C0"
                    "00000000 000020C0 00000000 000030C0 28000000"));
}

TEST(GoldenFunctionFile, TwoDWithTwoVariablesInPlainBinary) {
    FileDescription_s functions = describe(FileKind_e::Function, {{2, 2, 1}}, Layout_e::TwoD);
    functions.numVars = 2;
    EXPECT_EQ(toHex(bytesOf(functions, formOf(Encoding_e::Binary))),
              hexOf("02000000 02000000 02000000 00000000 0000803F 00002041 00003041"
                    "00007A44 00407A44 00807C44 00C07C44"));
}

TEST(GoldenFunctionFile, BigEndianReversesEachNumber) {
    FileDescription_s functions = describe(FileKind_e::Function, {{2, 2, 1}}, Layout_e::TwoD);
    functions.numVars = 1;
    const FileForm_s big = formOf(Encoding_e::Binary, ByteOrder_e::Big, Precision_e::Single);
    EXPECT_EQ(toHex(bytesOf(functions, big)),
              hexOf("00000002 00000002 00000001 00000000 3F800000 41200000 41300000"));
}

TEST(GoldenGridFile, OneDInFortranRecordsWithWideBigEndianMarkers) {
    FileForm_s wide = formOf(Encoding_e::Fortran, ByteOrder_e::Big, Precision_e::Single);
    wide.markerBytes = 8;
    const FileDescription_s line = describe(FileKind_e::Grid, {{2, 1, 1}}, Layout_e::OneD);
    EXPECT_EQ(toHex(bytesOf(line, wide)), hexOf("00000000 00000004 00000002 00000000 00000004"
                                                "00000000 00000008 00000000 3F800000"
                                                "00000000 00000008"));
}

TEST(GoldenFunctionFile, OneDKeepsItsCountOfVariablesInTheHeaderRecord) {
    FileDescription_s functions = describe(FileKind_e::Function, {{1, 1, 1}}, Layout_e::OneD);
    functions.numVars = 2;
    EXPECT_EQ(toHex(bytesOf(functions, formOf(Encoding_e::Fortran))),
              hexOf("08000000 01000000 02000000 08000000 08000000 00000000 00007A44 08000000"));
}

TEST(GoldenGridFile, TrianglesCarryATagBehindAllCorners) {
    FileDescription_s surface = describe(FileKind_e::Grid, {{4, 2, 0}}, Layout_e::Unstructured);
    surface.triangleTag = [](std::int32_t, std::int64_t triangle) {
        return 7 + static_cast<std::int32_t>(triangle);
    };
    EXPECT_EQ(toHex(bytesOf(surface, formOf(Encoding_e::Fortran))),
              hexOf("0C000000 04000000 02000000 00000000 0C000000"
                    "50000000 00000000 0000803F 00000040 00004040"
                    "00007A44 00407A44 00807A44 00C07A44 0000FA44 0020FA44 0040FA44 0060FA44"
                    "01000000 02000000 03000000 02000000 03000000 04000000 07000000 08000000"
                    "50000000"));
}

TEST(GoldenGridFile, TetrahedraHaveFourCorners) {
    const FileDescription_s volume =
        describe(FileKind_e::Grid, {{1, 0, 1}}, Layout_e::Unstructured);
    EXPECT_EQ(toHex(bytesOf(volume, formOf(Encoding_e::Binary))),
              hexOf("01000000 00000000 01000000 00000000 00007A44 0000FA44"
                    "01000000 02000000 03000000 04000000"));
}

TEST(GoldenSolutionFile, UnstructuredStoresItsNodesAndTwoOnes) {
    FileDescription_s solution =
        describe(FileKind_e::ClassicSolution, {{1, 0, 3}}, Layout_e::Unstructured);
    solution.scalars = {{1, 1, 1, 1}};
    solution.value = [](auto...) { return 2; };
    EXPECT_EQ(toHex(bytesOf(solution, formOf(Encoding_e::Binary))),
              hexOf("01000000 01000000 01000000 0000803F 0000803F 0000803F 0000803F"
                    "00000040 00000040 00000040 00000040 00000040"));
}

FileDescription_s overflowSolution() {
    FileDescription_s solution = describe(FileKind_e::OverflowSolution, {{1, 1, 1}});
    solution.numVars = 6;
    solution.numSpecies = 0;
    solution.scalars = {{1, 1, 1, 1, 1, 1, 1, 3, 1, 1, 1, 1, 1}};
    solution.value = [](auto...) { return 2; };
    return solution;
}

TEST(GoldenSolutionFile, OverflowInPlainBinaryEndsInEightBytesOfPadding) {
    EXPECT_EQ(toHex(bytesOf(overflowSolution(), formOf(Encoding_e::Binary))),
              hexOf("01000000 01000000 01000000 06000000 00000000"
                    "0000803F 0000803F 0000803F 0000803F 0000803F 0000803F 0000803F 03000000"
                    "0000803F 0000803F 0000803F 0000803F 0000803F"
                    "00000040 00000040 00000040 00000040 00000040 00000040 00000000 00000000"));
}

TEST(OverflowSolution, InDoublePlainBinaryIsAsLongAsItsAcceptedSum) {
    FileDescription_s solution = overflowSolution();
    solution.isMultiGrid = true;
    solution.grids = {{2, 3, 5}, {3, 2, 1}, {1, 1, 1}};
    solution.scalars.assign(3, solution.scalars[0]);
    constexpr std::size_t header = 4 * (1 + 3 * 3 + 2);
    constexpr std::size_t accounted = 6 * 8 * (30 + 6 + 1) + 3 * 13 * 8 + 16;
    EXPECT_EQ(
        bytesOf(solution, formOf(Encoding_e::Binary, ByteOrder_e::Little, Precision_e::Double))
            .size(),
        header + accounted);
}

TEST(OverflowSolution, CanLeaveItsPaddingOut) {
    FileForm_s bare = formOf(Encoding_e::Binary);
    bare.overflowTail = OverflowTail_e::Nothing;
    EXPECT_EQ(bytesOf(overflowSolution(), bare).size() + 8,
              bytesOf(overflowSolution(), formOf(Encoding_e::Binary)).size());
}

TEST(OverflowSolution, IntegerStaysFourBytesWideInDoublePrecision) {
    const std::string bytes = bytesOf(
        overflowSolution(), formOf(Encoding_e::Fortran, ByteOrder_e::Little, Precision_e::Double));
    constexpr std::size_t scalarsRecord = 4 + 20 + 4;
    EXPECT_EQ(toHex(bytes.substr(scalarsRecord, 4)), "64000000"); // 12 x 8 + 4
    EXPECT_EQ(toHex(bytes.substr(scalarsRecord + 4 + 7 * 8, 4)), "03000000");
}

TEST(OverflowSolution, InFortranRecordsMayCarryMoreScalars) {
    FileDescription_s solution = overflowSolution();
    solution.scalars[0].push_back(1);
    const std::string bytes = bytesOf(solution, formOf(Encoding_e::Fortran));
    EXPECT_EQ(toHex(bytes.substr(28, 4)), "38000000");
    EXPECT_EQ(findFault(solution, formOf(Encoding_e::Binary)),
              "a grid has 14 scalars, expected 13");
}

TEST(BlockPositions, NameTheFirstByteOfEveryBlock) {
    FileDescription_s grid = describe(FileKind_e::Grid, {{2, 3, 5}}, Layout_e::ThreeDPlanes);
    grid.hasIBlank = true;
    std::string bytes;
    const auto blocks = writePlot3DBytes(bytes, grid, formOf(Encoding_e::Fortran)).blocks;
    ASSERT_EQ(blocks.size(), 5U * 4U);
    const BlockPosition_s& zOfThirdPlane = blocks[2 * 4 + 2];
    EXPECT_EQ(zOfThirdPlane.variable, 2);
    EXPECT_EQ(zOfThirdPlane.plane, 2);
    EXPECT_EQ(zOfThirdPlane.position, 20 + 2 * (4 + 96 + 4) + 4 + 2 * 24);
    EXPECT_EQ(blocks.back().kind, BlockKind_e::IBlank);
}

TEST(Values, StandWithIFastestThenJThenK) {
    FileDescription_s functions = describe(FileKind_e::Function, {{2, 3, 5}});
    functions.numVars = 1;
    FileForm_s text = formOf(Encoding_e::Text);
    text.text.tokensPerLine = 30;
    EXPECT_EQ(bytesOf(functions, text),
              "2 3 5 1\n"
              "0. 1. 10. 11. 20. 21. 100. 101. 110. 111. 120. 121. 200. 201. 210. 211. 220. 221. "
              "300. 301. 310. 311. 320. 321. 400. 401. 410. 411. 420. 421.\n");
}

} // namespace
} // namespace quorvia::testsupport
