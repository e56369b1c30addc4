#include "acceptance/witness/GoldenFixture.h"

namespace quorvia::testsupport {
namespace {

class GoldenText : public GoldenFileTest {};

TEST_F(GoldenText, SurfaceOfTrianglesPassesOverTheirTags) {
    loadGrid("4 2 0\n"
             "0. 1. 1. 0.  0. 0.\n"
             "1. 1. 4*.5\n"
             "1 2 3  1 3 4\n"
             "-7 99\n");
    EXPECT_EQ(zone(1).type, QuorZoneType_Triangles);
    EXPECT_EQ(values(1, 1), Values({0, 1, 1, 0}));
    EXPECT_EQ(values(1, 2), Values({0, 0, 1, 1}));
    EXPECT_EQ(values(1, 3), Values({0.5, 0.5, 0.5, 0.5}));
    ASSERT_NE(zone(1).nodeMap, nullptr);
    const std::int32_t* const nodes = zone(1).nodeMap->nodes();
    EXPECT_EQ(std::vector<std::int32_t>(nodes, nodes + 6),
              (std::vector<std::int32_t>{1, 2, 3, 1, 3, 4}));
}

TEST_F(GoldenText, SolutionInEverySpelling) {
    loadSolution("2 3\r\n"
                 "1. 2. 3. 4. 5. 6.\r\n"
                 "7., 8.,\t9., 1.0D+1, 1.1e1 +12\r\n",
                 "2 3\n"
                 "0.5 0.25 1.5D+02 2\n"
                 "6*1, 6*2.5\n"
                 "6*-3.E0\n"
                 "5*4., 1.25d-01\n");
    expectZone(2, 3, 1);
    EXPECT_EQ(values(1, 2), Values({7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(values(1, 3), Values({1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(values(1, 4), Values({2.5, 2.5, 2.5, 2.5, 2.5, 2.5}));
    EXPECT_EQ(values(1, 5), Values({-3, -3, -3, -3, -3, -3}));
    EXPECT_EQ(values(1, 6), Values({4, 4, 4, 4, 4, 0.125}));
    EXPECT_EQ(zone(1).auxData, host::AuxData({{"Common.ReferenceMachNumber", "0.5"},
                                              {"Common.AngleOfAttack", "0.25"},
                                              {"Common.ReynoldsNumber", "150"}}));
    EXPECT_EQ(zone(1).solutionTime, 2.0);
}

TEST_F(GoldenText, RepeatRunsFromOneVariableIntoTheNext) {
    loadGrid("2\n"
             "2 1 1\n"
             "1 2 1\n"
             "3*1. 3*2.\n"
             "5*-1.5 0.\n");
    ASSERT_EQ(dataSet().zoneCount(), 2);
    EXPECT_EQ(values(1, 2), Values({1, 2}));
    EXPECT_EQ(values(2, 1), Values({-1.5, -1.5}));
    EXPECT_EQ(values(2, 3), Values({-1.5, 0}));
}

TEST_F(GoldenText, LineOfPoints) {
    loadGrid("3\n-1.0 0.0 1.0\n");
    expectZone(3, 1, 1);
    EXPECT_EQ(values(1, 1), Values({-1, 0, 1}));
}

} // namespace
} // namespace quorvia::testsupport
