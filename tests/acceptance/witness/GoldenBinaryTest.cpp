#include "acceptance/witness/GoldenFixture.h"

namespace quorvia::testsupport {
namespace {

// Numbers as they stand in files, so that the files below can be read by eye. Big-endian reals of
// 32 bits: 3f800000 is 1, 40000000 2, 40400000 3, 40800000 4, 40a00000 5, 40c00000 6, 40e00000 7,
// 41000000 8, and from there on each 00100000 more is 1 more up to 16, each 00080000 behind it.

class GoldenBinary : public GoldenFileTest {};

TEST_F(GoldenBinary, WholeGridBigEndian) {
    loadGrid(fromHex("00000002 00000001 00000003" // i, j, k
                     "3f800000 40000000 40400000 40800000 40a00000 40c00000"
                     "40e00000 41000000 41100000 41200000 41300000 41400000"
                     "41500000 41600000 41700000 41800000 41880000 41900000"));
    expectZone(2, 1, 3);
    EXPECT_EQ(values(1, 1), Values({1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(values(1, 2), Values({7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(values(1, 3), Values({13, 14, 15, 16, 17, 18}));
}

const char* const squareGridLittleEndian = "02000000 03000000" // i, j
                                           "0000803f 00000040 00004040 00008040 0000a040 0000c040"
                                           "000080bf 000000c0 000040c0 000080c0 0000a0c0 0000c0c0";

TEST_F(GoldenBinary, FunctionsOnASurfaceLittleEndian) {
    loadFunction(fromHex(squareGridLittleEndian),
                 fromHex("02000000 03000000 02000000" // i, j, number of variables
                         "0000e040 00000041 00001041 00002041 00003041 00004041"
                         "00005041 00006041 00007041 00008041 00008841 00009041"));
    expectZone(2, 3, 1);
    EXPECT_EQ(variableNames(), Texts({"X", "Y", "F1V1", "F1V2"}));
    EXPECT_EQ(values(1, 2), Values({-1, -2, -3, -4, -5, -6}));
    EXPECT_EQ(values(1, 3), Values({7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(values(1, 4), Values({13, 14, 15, 16, 17, 18}));
}

const char* const pairOfPoints = "02000000 01000000 01000000" // i, j, k
                                 "0000803f 00000040 00004040 00008040 0000a040 0000c040";

TEST_F(GoldenBinary, SwiftSolutionLittleEndian) {
    loadSolution(fromHex(pairOfPoints),
                 fromHex("02000000 01000000 01000000"
                         "0000003f 00000040 00004040 00008040 0000a040" // scalars
                         "0000803f 00000040  00004040 00008040  0000a040 0000c040"
                         "0000e040 00000041  00001041 00002041"));
    EXPECT_EQ(zone(1).auxData, host::AuxData({{"Common.ReferenceMachNumber", "0.5"},
                                              {"Common.AngleOfAttack", "2"},
                                              {"Common.ReynoldsNumber", "3"},
                                              {"OMAR", "5"}}));
    EXPECT_EQ(zone(1).solutionTime, 4.0);
    EXPECT_EQ(values(1, 4), Values({1, 2}));
    EXPECT_EQ(values(1, 8), Values({9, 10}));
}

TEST_F(GoldenBinary, PlanesWithIBlankInRecordsLittleEndian) {
    loadGrid(fromHex("0c000000  02000000 01000000 03000000  0c000000"
                     "20000000  0000803f 00000040  0000e040 00000041  00005041 00006041"
                     "          01000000 00000000  20000000"
                     "20000000  00004040 00008040  00001041 00002041  00007041 00008041"
                     "          02000000 ffffffff  20000000"
                     "20000000  0000a040 0000c040  00003041 00004041  00008841 00009041"
                     "          03000000 04000000  20000000"));
    expectZone(2, 1, 3);
    EXPECT_EQ(values(1, 1), Values({1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(values(1, 2), Values({7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(values(1, 3), Values({13, 14, 15, 16, 17, 18}));
    EXPECT_EQ(integers(1, 4), (std::vector<std::int32_t>{1, 0, 2, -1, 3, 4}));
}

TEST_F(GoldenBinary, LineInRecordsWithLongMarkersBigEndian) {
    loadSolution(
        fromHex("0000000000000004  00000003  0000000000000004"
                "0000000000000018  3ff0000000000000 4000000000000000 4008000000000000"
                "0000000000000018"),
        fromHex("0000000000000004  00000003  0000000000000004"
                "0000000000000020  3fe0000000000000 4000000000000000 4008000000000000"
                "                  4010000000000000  0000000000000020" // the last one is the time
                "0000000000000048  3ff0000000000000 4000000000000000 4008000000000000"
                "                  4010000000000000 4014000000000000 4018000000000000"
                "                  bff0000000000000 c000000000000000 c008000000000000"
                "0000000000000048"));
    expectZone(3, 1, 1);
    EXPECT_EQ(host().frame().plotType(), QuorPlotType_XY);
    EXPECT_EQ(variableNames(), Texts({"X", "V2   ", "V3   ", "V4   "}));
    EXPECT_EQ(field(1, 4).type, QuorFieldDataType_Double);
    EXPECT_EQ(values(1, 1), Values({1, 2, 3}));
    EXPECT_EQ(values(1, 3), Values({4, 5, 6}));
    EXPECT_EQ(values(1, 4), Values({-1, -2, -3}));
    EXPECT_EQ(zone(1).solutionTime, 4.0);
}

TEST_F(GoldenBinary, OverflowInRecordsBigEndian) {
    loadSolution(
        fromHex("0000000c  00000002 00000001 00000001  0000000c"
                "00000018  3f800000 40000000 40400000 40800000 40a00000 40c00000  00000018"),
        fromHex("00000014  00000002 00000001 00000001  00000006 00000000  00000014"
                "00000034  3f000000 40000000 40400000 40800000" // the last one is the time
                "          3f800000 3fc00000 40000000"          // G, B, T
                "          0000002a"                            // the one integer
                "          40400000 40800000 40a00000"          // H, H1, H2
                "          40c00000 40e00000  00000034"
                "00000030  3f800000 40000000  40400000 40800000  40a00000 40c00000"
                "          40e00000 41000000  41100000 41200000  41300000 41400000  00000030"));
    EXPECT_EQ(zone(1).auxData, host::AuxData({{"Common.ReferenceMachNumber", "0.5"},
                                              {"Common.AngleOfAttack", "2"},
                                              {"Common.ReynoldsNumber", "3"},
                                              {"G", "1"},
                                              {"B", "1.5"},
                                              {"T", "2"},
                                              {"I", "42"},
                                              {"H", "3"},
                                              {"H1", "4"},
                                              {"H2", "5"},
                                              {"G1", "6"},
                                              {"G2", "7"}}));
    EXPECT_EQ(variableNames().back(), "GAMMA");
    EXPECT_EQ(values(1, 4), Values({1, 2}));
    EXPECT_EQ(values(1, 9), Values({11, 12}));
}

TEST_F(GoldenBinary, TetrahedraInRecordsLittleEndian) {
    loadGrid(fromHex("04000000  01000000  04000000" // one grid, counted
                     "0c000000  04000000 00000000 01000000  0c000000"
                     "40000000  0000803f 00000040 00004040 00008040"
                     "          0000a040 0000c040 0000e040 00000041"
                     "          00001041 00002041 00003041 00004041"
                     "          04000000 01000000 03000000 02000000  40000000"));
    EXPECT_EQ(zone(1).type, QuorZoneType_Tetrahedra);
    EXPECT_EQ(values(1, 3), Values({9, 10, 11, 12}));
    ASSERT_NE(zone(1).nodeMap, nullptr);
    const std::int32_t* const nodes = zone(1).nodeMap->nodes();
    EXPECT_EQ(std::vector<std::int32_t>(nodes, nodes + 4), (std::vector<std::int32_t>{4, 1, 3, 2}));
}

} // namespace
} // namespace quorvia::testsupport
