// Real files in text.
#include "acceptance/realdata/RealDataFixture.h"

namespace quorvia::testsupport {
namespace {

/// Two grids of 8 x 12 x 12, line breaks anywhere.
class MultiAscii : public RealDataTest {
protected:
    static constexpr std::int64_t points = 8 * 12 * 12;
    static constexpr std::int64_t header = 1 + 3 + 3;
    static constexpr double sixDecimals = 0.51e-6; // half of the last digit, and rounding

    static Load_s loadOf(const char* grid, const char* solution) {
        return {{realFile(grid)}, {realFile(solution)}, {}, {}, {{"ASCIIISDOUBLE", "Yes"}}};
    }
};

TEST_F(MultiAscii, HasEveryValueOfBothGridsNarrowedUnlessToldOtherwise) {
    expectSelectionLoads({realFile("multi-ascii.xyz"), realFile("multi-ascii.q")});
    const std::vector<double> grid = narrowed(plainTokens(realFile("multi-ascii.xyz")));
    const std::vector<double> solution = narrowed(plainTokens(realFile("multi-ascii.q")));
    expectOrderedZone(1, 8, 12, 12);
    expectFields(1, 1, 3, stretch(grid, header, 3 * points));
    expectFields(2, 1, 3, stretch(grid, header + 3 * points, 3 * points));
    expectFields(1, 4, 5, stretch(solution, header + 4, 5 * points));
    expectFields(2, 4, 5, stretch(solution, header + 4 + 5 * points + 4, 5 * points));
}

TEST_F(MultiAscii, AgreesWithTheSameDataInRecords) {
    expectLoads(loadOf("multi-ascii.xyz", "multi-ascii.q"));
    std::vector<std::vector<double>> fromText;
    for (std::int32_t number = 1; number <= 2; ++number)
        for (std::int32_t variable = 1; variable <= 8; ++variable)
            fromText.push_back(values(number, variable));
    expectLoads(loadOf("multi-bin.xyz", "multi-bin.q"));
    std::size_t index = 0;
    for (std::int32_t number = 1; number <= 2; ++number)
        for (std::int32_t variable = 1; variable <= 8; ++variable, ++index)
            EXPECT_TRUE(sameNumbers(fromText[index], values(number, variable), sixDecimals))
                << "zone " << number << ", variable " << variable;
}

/// One grid in a multi-grid file, with commas and repeat counts.
class Ramp : public RealDataTest {
protected:
    static void expectGrid(const std::vector<double>& tokens) {
        ASSERT_EQ(dataSet().zoneCount(), 1);
        expectOrderedZone(1, 2, 73, 45);
        expectFields(1, 1, 3, stretch(tokens, 4, 3 * 2 * 73 * 45));
    }
};

TEST_F(Ramp, HasEveryCoordinateIn32Bits) {
    expectLoads({{realFile("ramp_noembed.fmt")}, {}, {}, {}, {}});
    expectGrid(narrowed(plainTokens(realFile("ramp_noembed.fmt"))));
}

TEST_F(Ramp, HasEveryDigitIn64Bits) {
    expectLoads({{realFile("ramp_noembed.fmt")}, {}, {}, {}, {{"ASCIIISDOUBLE", "Yes"}}});
    expectGrid(plainTokens(realFile("ramp_noembed.fmt")));
}

/// Nine patches of a wing's surface; sizes of two grids stand on one line.
class WingSurface : public RealDataTest {};

TEST_F(WingSurface, HasEveryCoordinateOfNinePatches) {
    expectLoads({{realFile("m6_small.fmt")}, {}, {}, {}, {{"ASCIIISDOUBLE", "Yes"}}});
    const std::vector<double> tokens = plainTokens(realFile("m6_small.fmt"));
    ASSERT_EQ(dataSet().zoneCount(), 9);
    std::int64_t first = 1 + 3 * 9;
    for (std::int32_t number = 1; number <= 9; ++number) {
        const std::vector<double> dims = stretch(tokens, 1 + 3 * (number - 1), 3);
        expectOrderedZone(number, static_cast<std::int64_t>(dims[0]),
                          static_cast<std::int64_t>(dims[1]), 1);
        const std::int64_t points = zone(number).i * zone(number).j;
        expectFields(number, 1, 3, stretch(tokens, first, 3 * points));
        first += 3 * points;
    }
    EXPECT_EQ(first, static_cast<std::int64_t>(tokens.size()));
}

} // namespace
} // namespace quorvia::testsupport
