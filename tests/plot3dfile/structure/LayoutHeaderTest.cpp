#include <limits>

#include "StructureTest.h"

namespace quorvia::quorutildataio {
namespace {

using LayoutHeader = StructureTest;

// ---- Small records of integers ------------------------------------------------------------------

TEST_F(LayoutHeader, ReadsIntegersThatFillAFortranRecord) {
    auto file =
        openRecord(FileBytes().record(FileBytes().integers({2, 3})).str(), Plot3DDataStructure_1D);
    std::int32_t values[2] = {};
    EXPECT_TRUE(readIntegerRecord(*file, 2, values));
    EXPECT_EQ(values[0], 2);
    EXPECT_EQ(values[1], 3);
}

TEST_F(LayoutHeader, RefusesIntegersInALongerFortranRecord) {
    auto file =
        openRecord(FileBytes().record(FileBytes().integers({2, 3})).str(), Plot3DDataStructure_1D);
    std::int32_t value = 0;
    EXPECT_FALSE(readIntegerRecord(*file, 1, &value));
    file->relaxedChecks = true;
    rewindPlot3DFile(*file);
    EXPECT_TRUE(readIntegerRecord(*file, 1, &value));
}

TEST_F(LayoutHeader, RefusesIntegersInAShorterFortranRecordEvenIfRelaxed) {
    auto file =
        openRecord(FileBytes().record(FileBytes().integers({2})).str(), Plot3DDataStructure_1D);
    file->relaxedChecks = true;
    std::int32_t values[2] = {};
    EXPECT_FALSE(readIntegerRecord(*file, 2, values));
}

TEST_F(LayoutHeader, TakesTheLineOfATextForARecord) {
    const std::pair<const char*, bool> spellings[] = {
        {"2 3\n", true},   {"2,3 \r\n", true}, {"2 3", true},   {"2 3 4\n", false},
        {"2\n3\n", false}, {"\n2 3\n", false}, {"2*3\n", true}, {"3*3\n", false},
    };
    for (const auto& [text, isRecord] : spellings) {
        auto file = openRecord(text, Plot3DDataStructure_1D);
        std::int32_t values[2] = {};
        EXPECT_EQ(readIntegerRecord(*file, 2, values), isRecord) << text;
    }
}

// ---- Dimensions ---------------------------------------------------------------------------------

TEST_F(LayoutHeader, GrowsDimensionsFromAThousandByDoubling) {
    std::vector<Plot3DGridDims_s> dims;
    EXPECT_TRUE(storeGridDims(2, 3, 5, 0, dims));
    EXPECT_EQ(dims.size(), 1000U);
    EXPECT_EQ(dims[0], (Plot3DGridDims_s{2, 3, 5}));
    EXPECT_EQ(dims[999], (Plot3DGridDims_s{0, 0, 0}));
    EXPECT_TRUE(storeGridDims(7, 11, 13, 1000, dims));
    EXPECT_EQ(dims.size(), 2000U);
}

TEST_F(LayoutHeader, GrowsManyDimensionsByAHundredThousand) {
    std::vector<Plot3DGridDims_s> dims(100000);
    EXPECT_TRUE(storeGridDims(2, 3, 5, 100000, dims));
    EXPECT_EQ(dims.size(), 200000U);
    EXPECT_TRUE(storeGridDims(2, 3, 5, 200000, dims));
    EXPECT_EQ(dims.size(), 300000U);
}

TEST_F(LayoutHeader, KeepsLeftoverDimensionsOfEarlierTrials) {
    auto file = openRecord(FileBytes().integers({2, 3, 5}).equalReals(90).str(),
                           Plot3DDataStructure_3DWhole);
    EXPECT_TRUE(storeGridDims(7, 11, 13, 1, file->gridDims));
    EXPECT_TRUE(judge(*file));
    EXPECT_EQ(file->numGrids, 1);
    EXPECT_EQ(file->gridDims[1], (Plot3DGridDims_s{7, 11, 13}));
}

// ---- Counts of scalars --------------------------------------------------------------------------

TEST_F(LayoutHeader, CountsScalarsByStyle) {
    const std::pair<Plot3DStyle_e, std::int32_t> counts[] = {
        {Plot3DStyle_Classic, 4}, {Plot3DStyle_Function, 0}, {Plot3DStyle_Swift, 5}};
    for (const auto& [style, count] : counts) {
        auto file = openRecord("", Plot3DDataStructure_3DWhole, solutionOrFunction, style);
        EXPECT_TRUE(readScalarCount(*file));
        EXPECT_EQ(file->numScalars, count);
    }
}

TEST_F(LayoutHeader, CountsOverflowScalarsByItsSpecies) {
    const std::pair<std::int32_t, std::int32_t> counts[] = {
        {-3, 13}, {0, 13}, {2, 13}, {3, 14}, {7, 18}};
    for (const auto& [species, count] : counts) {
        auto file = openRecord("11 " + std::to_string(species) + "\n", Plot3DDataStructure_3DWhole,
                               solutionOrFunction, Plot3DStyle_Overflow);
        EXPECT_TRUE(readScalarCount(*file));
        EXPECT_EQ(file->numVars, 11);
        EXPECT_EQ(file->numSpecies, species);
        EXPECT_EQ(file->numScalars, count);
    }
}

TEST_F(LayoutHeader, SetsOverflowScalarsEvenIfACountIsMissing) {
    auto file =
        openRecord("", Plot3DDataStructure_3DWhole, solutionOrFunction, Plot3DStyle_Overflow);
    EXPECT_FALSE(readScalarCount(*file));
    EXPECT_EQ(file->numScalars, 13);
}

TEST_F(LayoutHeader, DoesNotWrapScalarsOfAbsurdlyManySpecies) {
    auto file = openRecord("5 2147483647\n", Plot3DDataStructure_3DWhole, solutionOrFunction,
                           Plot3DStyle_Overflow);
    EXPECT_TRUE(readScalarCount(*file));
    EXPECT_EQ(file->numScalars, std::numeric_limits<std::int32_t>::max());
}

} // namespace
} // namespace quorvia::quorutildataio
