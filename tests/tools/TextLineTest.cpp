// Text files: which lines must end where, and the spellings of numbers.
#include <gtest/gtest.h>

#include <limits>

#include "plot3dwriter/ByteSink.h"
#include "plot3dwriter/TextNumbers.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

TEST(TextLines, CountOfGridsAndEachGridStandOnLinesOfTheirOwn) {
    FileDescription_s grids = describe(FileKind_e::Grid, {{1, 1, 2}, {1, 1, 1}});
    grids.hasIBlank = true;
    EXPECT_EQ(bytesOf(grids, formOf(Encoding_e::Text)), "2\n"
                                                        "1 1 2\n"
                                                        "1 1 1\n"
                                                        "0. 100.\n1000. 1100.\n2000. 2100.\n"
                                                        "1 4\n"
                                                        "10000.\n11000.\n12000.\n"
                                                        "-15\n");
}

TEST(TextLines, ScalarsEndTheirLineHoweverShortLinesAre) {
    FileDescription_s solution = describe(FileKind_e::SwiftSolution, {{3, 1, 1}}, Layout_e::TwoD);
    solution.scalars = {{0.5, 2, 1e6, 0.25, 9}};
    FileForm_s text = formOf(Encoding_e::Text);
    text.text.tokensPerLine = 2;
    EXPECT_EQ(bytesOf(solution, text), "3 1\n"
                                       "0.5 2. 1e+06 0.25 9.\n"
                                       "0. 1.\n2.\n1000. 1001.\n1002.\n"
                                       "2000. 2001.\n2002.\n3000. 3001.\n3002.\n");
}

TEST(TextLines, OverflowCountsFollowTheDimensionsAndItsIntegerHasNoPoint) {
    FileDescription_s solution =
        describe(FileKind_e::OverflowSolution, {{1, 1, 1}}, Layout_e::ThreeDPlanes);
    solution.numVars = 1;
    solution.numSpecies = 1;
    solution.scalars = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}};
    EXPECT_EQ(bytesOf(solution, formOf(Encoding_e::Text)),
              "1 1 1\n1 1\n1. 2. 3. 4. 5. 6. 7. 8 9. 10. 11. 12. 13.\n0.\n");
}

TEST(TextLines, SurfaceOfFourNodesAndTwoTriangles) {
    const FileDescription_s surface =
        describe(FileKind_e::Grid, {{4, 2, 0}}, Layout_e::Unstructured);
    EXPECT_EQ(bytesOf(surface, formOf(Encoding_e::Text)),
              "4 2 0\n0. 1. 2. 3.\n1000. 1001. 1002. 1003.\n2000. 2001. 2002. 2003.\n"
              "1 2 3 2 3 4\n0 0\n");
}

TEST(TextLines, CommasAndCarriageReturnsAreAMatterOfTaste) {
    FileForm_s text = formOf(Encoding_e::Text);
    text.text.commas = true;
    text.text.carriageReturns = true;
    EXPECT_EQ(bytesOf(describe(FileKind_e::Grid, {{2, 1, 1}}, Layout_e::TwoD), text),
              "2, 1\r\n0., 1.\r\n1000., 1001.\r\n");
}

TEST(RepeatCounts, GatherEqualNeighboursInsideOneBlock) {
    FileDescription_s grid = describe(FileKind_e::Grid, {{2, 3, 5}});
    grid.hasIBlank = true;
    grid.value = [](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                    std::int32_t k) { return variable == 2 && i + j + k == 0 ? -4.5 : 0.5; };
    grid.iblank = [](auto...) { return 1; };
    FileForm_s text = formOf(Encoding_e::Text);
    text.text.repeatCounts = true;
    EXPECT_EQ(bytesOf(grid, text), "2 3 5\n30*0.5\n30*0.5\n-4.5 29*0.5\n30*1\n");
}

TEST(RepeatCounts, LeaveHeaderAndScalarsAlone) {
    FileDescription_s solution = describe(FileKind_e::ClassicSolution, {{2, 1, 1}}, Layout_e::OneD);
    solution.scalars = {{0, 0, 0, 0}};
    solution.value = [](auto...) { return 3; };
    FileForm_s text = formOf(Encoding_e::Text);
    text.text.repeatCounts = true;
    EXPECT_EQ(bytesOf(solution, text), "2\n0. 0. 0. 0.\n2*3.\n2*3.\n2*3.\n");
}

TEST(RealToken, AlwaysHoldsAPointOrAnExponent) {
    const TextOptions_s plain;
    EXPECT_EQ(realToken(150, Precision_e::Double, plain), "150.");
    EXPECT_EQ(realToken(12345678901, Precision_e::Double, plain), "12345678901.");
    EXPECT_EQ(realToken(-1e300, Precision_e::Double, plain), "-1e+300");
    EXPECT_EQ(realToken(0.1, Precision_e::Double, plain), "0.1");
}

TEST(RealToken, HasTheDigitsOfItsPrecision) {
    const TextOptions_s plain;
    EXPECT_EQ(realToken(1.0 / 3, Precision_e::Single, plain), "0.33333334");
    EXPECT_EQ(realToken(1.0 / 3, Precision_e::Double, plain), "0.3333333333333333");
}

TEST(RealToken, WearsFortranExponents) {
    TextOptions_s fortran;
    fortran.fortranExponents = true;
    EXPECT_EQ(realToken(150, Precision_e::Double, fortran), "1.5D+02");
    EXPECT_EQ(realToken(0, Precision_e::Double, fortran), "0D+00");
    fortran.significantDigits = 4;
    EXPECT_EQ(realToken(-150, Precision_e::Double, fortran), "-1.500D+02");
}

TEST(RealToken, IsCutToTheDigitsAskedFor) {
    TextOptions_s short_;
    short_.significantDigits = 3;
    EXPECT_EQ(realToken(3.14159, Precision_e::Double, short_), "3.14");
    EXPECT_EQ(realToken(314159, Precision_e::Double, short_), "3.14e+05");
}

TEST(RealToken, RefusesWhatIsNotFinite) {
    const TextOptions_s plain;
    EXPECT_THROW(realToken(std::numeric_limits<double>::infinity(), Precision_e::Double, plain),
                 WriteFault);
    EXPECT_THROW(realToken(std::numeric_limits<double>::quiet_NaN(), Precision_e::Double, plain),
                 WriteFault);
    EXPECT_THROW(realToken(1e300, Precision_e::Single, plain), WriteFault);
}

} // namespace
} // namespace quorvia::testsupport
