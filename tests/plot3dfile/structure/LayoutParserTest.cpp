// What each layout accepts and refuses when it judges.
#include <limits>

#include "StructureTest.h"

namespace quorvia::quorutildataio {
namespace {

class LayoutParser : public StructureTest {
protected:
    /// Whether a file of the given bytes passes as the given structure.
    bool accepts(const std::string& bytes, Plot3DDataStructure_e dataStructure, bool isMultiGrid,
                 bool isSolutionOrFunction = gridFile, Plot3DStyle_e style = Plot3DStyle_Classic) {
        auto file = openRecord(bytes, dataStructure, isSolutionOrFunction, style);
        file->isMultiGrid = isMultiGrid;
        return judge(*file);
    }

    static constexpr bool single = false;
    static constexpr bool multi = true;
};

constexpr Plot3DDataStructure_e severalGridLayouts[] = {
    Plot3DDataStructure_2D, Plot3DDataStructure_3DPlanes, Plot3DDataStructure_3DWhole,
    Plot3DDataStructure_Unstructured};

// ---- Counts of grids ----------------------------------------------------------------------------

TEST_F(LayoutParser, RefusesCountOfGridsBelowOne) {
    for (const std::int32_t count : {0, -1, -2147483647})
        for (const Plot3DDataStructure_e layout : severalGridLayouts)
            EXPECT_FALSE(accepts(FileBytes().integers({count}).str(), layout, multi));
    for (const Plot3DDataStructure_e layout : severalGridLayouts)
        EXPECT_FALSE(accepts("0\n" + std::string(60, '1'), layout, multi));
}

// Function files without variables have no data, so that nothing but their size stands against
// them.
TEST_F(LayoutParser, RefusesMoreGridsThanOneForSixteenBytes) {
    auto file = openRecord(FileBytes().integers({2, 1, 1, 0, 1, 1, 0, 1}).str(),
                           Plot3DDataStructure_2D, solutionOrFunction, Plot3DStyle_Function);
    file->isMultiGrid = true;
    file->relaxedChecks = true;
    EXPECT_FALSE(judge(*file)); // 32 bytes
    file->fileSize = 33;
    EXPECT_TRUE(judge(*file));
}

TEST_F(LayoutParser, RefusesSixteenBytesInEveryLayoutBut1D) {
    for (const Plot3DDataStructure_e layout : severalGridLayouts) {
        auto file = openRecord(FileBytes().integers({1, 1, 1, 0}).str(), layout, solutionOrFunction,
                               Plot3DStyle_Function);
        file->relaxedChecks = true;
        EXPECT_FALSE(judge(*file));
        file->fileSize = 17;
        EXPECT_TRUE(judge(*file));
    }
    auto line = openRecord(FileBytes().integers({3}).equalReals(3).str(), Plot3DDataStructure_1D);
    line->numGrids = 1;
    EXPECT_TRUE(judge(*line));
}

// ---- Dimensions ---------------------------------------------------------------------------------

TEST_F(LayoutParser, RefusesDimensionsBelowOne) {
    for (const std::int32_t wrong : {0, -2}) {
        EXPECT_FALSE(accepts(FileBytes().integers({wrong, 3, 5}).equalReals(90).str(),
                             Plot3DDataStructure_3DWhole, single));
        EXPECT_FALSE(accepts(FileBytes().integers({2, wrong, 5}).equalReals(90).str(),
                             Plot3DDataStructure_3DWhole, single));
        EXPECT_FALSE(accepts(FileBytes().integers({2, 3, wrong}).equalReals(90).str(),
                             Plot3DDataStructure_3DWhole, single));
        EXPECT_FALSE(accepts(FileBytes().integers({2, wrong}).equalReals(90).str(),
                             Plot3DDataStructure_2D, single));
    }
    // In text even if their product is one of a grid.
    const std::string values(60, '1');
    EXPECT_FALSE(accepts("2 -3 -4\n" + values, Plot3DDataStructure_3DWhole, single));
    EXPECT_FALSE(accepts("-2 -3\n" + values, Plot3DDataStructure_2D, single));
}

TEST_F(LayoutParser, RefusesGridsWithMorePointsThanTheFileHasBytes) {
    // In text nothing else bounds the size of a grid.
    EXPECT_TRUE(accepts("1 1 18\n1 2 3 4 5 6\n", Plot3DDataStructure_3DWhole, single));
    EXPECT_FALSE(accepts("1 1 19\n1 2 3 4 5 6\n", Plot3DDataStructure_3DWhole, single));
}

TEST_F(LayoutParser, RefusesProductsPast64Bits) {
    const std::int32_t huge = 2147483647;
    EXPECT_FALSE(accepts(FileBytes().integers({huge, huge, huge}).equalReals(30).str(),
                         Plot3DDataStructure_3DWhole, single));
}

// Two grids of nearly 2^63 points each, in a file of as many bytes as a position can tell.
TEST_F(LayoutParser, RefusesSumsPast64Bits) {
    const std::int32_t huge = 2147483647;
    disk.putSparse("record", FileBytes().integers({2, huge, huge, 2, huge, huge, 2}).str(),
                   std::numeric_limits<std::int64_t>::max());
    auto file = createPlot3DFile("record", false);
    ASSERT_TRUE(openPlot3DFile(*file));
    file->dataStructure = Plot3DDataStructure_3DWhole;
    file->isMultiGrid = true;
    EXPECT_FALSE(judge(*file));
    EXPECT_EQ(file->gridDims[0], (Plot3DGridDims_s{huge, huge, 2}));
    EXPECT_EQ(file->gridDims[1], (Plot3DGridDims_s{0, 0, 0}));
}

TEST_F(LayoutParser, RefusesCountsInTheOtherByteOrder) {
    FileBytes reversed(Order_e::Swapped);
    reversed.integers({2, 3, 5}).equalReals(90);
    EXPECT_FALSE(accepts(reversed.str(), Plot3DDataStructure_3DWhole, single));
}

TEST_F(LayoutParser, RefusesHeaderThatTheFileEndsIn) {
    EXPECT_FALSE(accepts("2\n2 3 5\n" + std::string(90, ' '), Plot3DDataStructure_3DWhole, multi));
    EXPECT_FALSE(accepts("2 3" + std::string(90, ' '), Plot3DDataStructure_3DWhole, single));
}

// ---- Lines of text ------------------------------------------------------------------------------

TEST_F(LayoutParser, WantsTheCountOfGridsAloneOnItsLine) {
    const std::string values(60, '1');
    EXPECT_FALSE(accepts("2 3 4\n" + values, Plot3DDataStructure_3DWhole, multi));
    EXPECT_TRUE(accepts("2 3 4\n" + values, Plot3DDataStructure_3DWhole, single));
}

TEST_F(LayoutParser, WantsTheDimensionsOfAGridOnOneLine) {
    const std::string values(90, '1');
    EXPECT_TRUE(accepts("2\n2 3 4\n5 6 1\n" + values, Plot3DDataStructure_3DWhole, multi));
    EXPECT_TRUE(accepts("2\n2 3 4 5 6 1\n" + values, Plot3DDataStructure_3DWhole, multi));
    EXPECT_FALSE(accepts("2\n2 3 4 5\n6 1\n" + values, Plot3DDataStructure_3DWhole, multi));
    EXPECT_FALSE(accepts("2\n3\n" + values, Plot3DDataStructure_2D, single));
}

TEST_F(LayoutParser, TakesDimensionsOverSeveralLinesIfRelaxed) {
    auto file = openRecord("2\n3\n4\n" + std::string(60, '1'), Plot3DDataStructure_3DWhole);
    EXPECT_FALSE(judge(*file));
    file->relaxedChecks = true;
    EXPECT_TRUE(judge(*file));
}

TEST_F(LayoutParser, TakesUnstructuredSizesOverSeveralLines) {
    EXPECT_TRUE(
        accepts("4\n2\n0\n" + std::string(60, '1'), Plot3DDataStructure_Unstructured, single));
}

TEST_F(LayoutParser, WantsTheHeaderToEndItsLine) {
    EXPECT_FALSE(accepts("2 3 4 9\n" + std::string(60, '1'), Plot3DDataStructure_3DWhole, single));
    EXPECT_FALSE(accepts("3 9\n" + std::string(60, '1'), Plot3DDataStructure_1D, single));
}

TEST_F(LayoutParser, TakesAnEmptyFirstLineOnlyAheadOfDimensions) {
    const std::string values(60, '1');
    EXPECT_TRUE(accepts("\n2 3 4\n" + values, Plot3DDataStructure_3DWhole, single));
    EXPECT_TRUE(accepts("\n2 3\n" + values, Plot3DDataStructure_2D, single));
    EXPECT_FALSE(accepts("\n1\n2 3 4\n" + values, Plot3DDataStructure_3DWhole, multi));
    EXPECT_FALSE(accepts("\n3\n" + values, Plot3DDataStructure_1D, single));
}

TEST_F(LayoutParser, WantsTheFirstScalarsToEndTheirLine) {
    const std::string header = "2 3 4\n";
    const std::string values = "\n" + std::string(60, '1');
    EXPECT_TRUE(accepts(header + "0.5 1 1e6 0" + values, Plot3DDataStructure_3DWhole, single,
                        solutionOrFunction));
    EXPECT_FALSE(accepts(header + "0.5 1 1e6 0 7" + values, Plot3DDataStructure_3DWhole, single,
                         solutionOrFunction));
    EXPECT_TRUE(accepts(header + "0.5\n1\n2*0" + values, Plot3DDataStructure_3DWhole, single,
                        solutionOrFunction));
}

// ---- Fortran headers ----------------------------------------------------------------------------

TEST_F(LayoutParser, WantsDimensionsToFillTheirRecord) {
    const FileBytes fits =
        FileBytes().record(FileBytes().integers({2, 3, 5})).record(FileBytes().equalReals(90));
    const FileBytes tooLong =
        FileBytes().record(FileBytes().integers({2, 3, 5, 9})).record(FileBytes().equalReals(90));
    const FileBytes tooShort =
        FileBytes().record(FileBytes().integers({2, 3})).record(FileBytes().equalReals(90));
    EXPECT_TRUE(accepts(fits.str(), Plot3DDataStructure_3DWhole, single));
    EXPECT_FALSE(accepts(tooLong.str(), Plot3DDataStructure_3DWhole, single));
    EXPECT_FALSE(accepts(tooShort.str(), Plot3DDataStructure_3DWhole, single));
}

// ---- Function files -----------------------------------------------------------------------------

TEST_F(LayoutParser, RefusesGridsThatDisagreeOnTheNumberOfVariables) {
    // Two grids, of 2 and of 3 variables; the size of the data is right for 2 in each.
    EXPECT_FALSE(accepts(FileBytes().integers({2, 2, 3, 2, 5, 7, 3}).equalReals(2 * 41).str(),
                         Plot3DDataStructure_2D, multi, solutionOrFunction, Plot3DStyle_Function));
    EXPECT_FALSE(accepts(FileBytes().integers({2, 2, 3, 1, 2, 5, 7, 1, 3}).equalReals(2 * 41).str(),
                         Plot3DDataStructure_3DWhole, multi, solutionOrFunction,
                         Plot3DStyle_Function));
    EXPECT_FALSE(accepts(FileBytes().integers({2, 3, 1, 1, 2, 5, 1, 1, 3}).equalReals(2 * 8).str(),
                         Plot3DDataStructure_Unstructured, multi, solutionOrFunction,
                         Plot3DStyle_Function));
    EXPECT_TRUE(accepts(FileBytes().integers({2, 2, 3, 2, 5, 7, 2}).equalReals(2 * 41).str(),
                        Plot3DDataStructure_2D, multi, solutionOrFunction, Plot3DStyle_Function));
}

// ---- Layouts that refuse a file outright --------------------------------------------------------

TEST_F(LayoutParser, RefusesOverflowOutside3D) {
    const std::string values(90, '1');
    const std::string scalars = "13*0.5\n";
    EXPECT_FALSE(accepts("7 11 2 0\n" + scalars + values, Plot3DDataStructure_2D, single,
                         solutionOrFunction, Plot3DStyle_Overflow));
    EXPECT_FALSE(accepts("7\n4*0.5\n" + values, Plot3DDataStructure_1D, single, solutionOrFunction,
                         Plot3DStyle_Overflow));
    EXPECT_FALSE(accepts("7 1 1 2 0\n" + scalars + values, Plot3DDataStructure_Unstructured, single,
                         solutionOrFunction, Plot3DStyle_Overflow));
    EXPECT_TRUE(accepts("7 1 1 2 0\n" + scalars + values, Plot3DDataStructure_3DWhole, single,
                        solutionOrFunction, Plot3DStyle_Overflow));
}

TEST_F(LayoutParser, RefusesSwiftAndIBlankInUnstructuredData) {
    EXPECT_FALSE(accepts("4 2 0\n" + std::string(60, '1'), Plot3DDataStructure_Unstructured, single,
                         gridFile, Plot3DStyle_Swift));
    auto file = openRecord("4 2 0\n" + std::string(60, '1'), Plot3DDataStructure_Unstructured);
    EXPECT_TRUE(judge(*file));
    file->hasIBlank = true;
    EXPECT_FALSE(judge(*file));
}

TEST_F(LayoutParser, RefusesIBlankAndSeveralGridsIn1D) {
    auto file = openRecord("3\n1 2 3\n", Plot3DDataStructure_1D);
    EXPECT_TRUE(judge(*file));
    file->hasIBlank = true;
    EXPECT_FALSE(judge(*file));
    file->hasIBlank = false;
    file->isMultiGrid = true;
    EXPECT_FALSE(judge(*file));
}

// ---- Unstructured data --------------------------------------------------------------------------

TEST_F(LayoutParser, WantsTrianglesOrTetrahedraButNotBoth) {
    const auto acceptsElements = [&](std::int32_t triangles, std::int32_t tetrahedra) {
        FileBytes file;
        file.integers({4, triangles, tetrahedra}).equalReals(12);
        file.equalReals(4 * (std::int64_t{triangles} + tetrahedra));
        return accepts(file.str(), Plot3DDataStructure_Unstructured, single);
    };
    EXPECT_TRUE(acceptsElements(2, 0));
    EXPECT_TRUE(acceptsElements(0, 3));
    EXPECT_FALSE(acceptsElements(2, 3));
    EXPECT_FALSE(acceptsElements(0, 0));
}

TEST_F(LayoutParser, WantsOnesBehindTheNodesOfAnUnstructuredSolution) {
    const auto acceptsSizes = [&](std::int32_t second, std::int32_t third) {
        return accepts(FileBytes().integers({7, second, third}).equalReals(4 + 35).str(),
                       Plot3DDataStructure_Unstructured, single, solutionOrFunction);
    };
    EXPECT_TRUE(acceptsSizes(1, 1));
    EXPECT_FALSE(acceptsSizes(2, 1));
    EXPECT_FALSE(acceptsSizes(1, 0));
}

// ---- 1-D ----------------------------------------------------------------------------------------

TEST_F(LayoutParser, Gives1DSolutionsThreeVariablesAndFourScalarsInEveryStyle) {
    for (const Plot3DStyle_e style : {Plot3DStyle_Classic, Plot3DStyle_Swift}) {
        auto file = openRecord(FileBytes().integers({7}).equalReals(4 + 21).str(),
                               Plot3DDataStructure_1D, solutionOrFunction, style);
        file->numGrids = 1;
        EXPECT_TRUE(judge(*file));
        EXPECT_EQ(file->numVars, 3);
        EXPECT_EQ(file->numScalars, 4);
    }
}

TEST_F(LayoutParser, TakesTheNumberOfVariablesOfA1DFunctionFileFromItsHeader) {
    auto file = openRecord(FileBytes().integers({7, 2}).equalReals(14).str(),
                           Plot3DDataStructure_1D, solutionOrFunction, Plot3DStyle_Function);
    file->numGrids = 1;
    EXPECT_TRUE(judge(*file));
    EXPECT_EQ(file->numVars, 2);
    EXPECT_EQ(file->numScalars, 0);
}

TEST_F(LayoutParser, LeavesTheCountOfGridsTo1DAsItWas) {
    auto file = openRecord("3\n1 2 3\n", Plot3DDataStructure_1D);
    EXPECT_TRUE(judge(*file));
    EXPECT_EQ(file->numGrids, 0);
}

TEST_F(LayoutParser, TakesAnUnknownStructureWithoutReading) {
    auto file = openRecord("", Plot3DDataStructure_Unknown);
    EXPECT_TRUE(judge(*file));
}

} // namespace
} // namespace quorvia::quorutildataio
