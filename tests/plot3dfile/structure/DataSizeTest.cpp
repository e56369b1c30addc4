// The header against the size of the data behind it.
#include "StructureTest.h"

namespace quorvia::quorutildataio {
namespace {

class DataSize : public StructureTest {
protected:
    /// An open record of a single 3-D Whole file.
    Plot3DFilePtr whole(const FileBytes& bytes, bool isSolutionOrFunction = gridFile,
                        Plot3DStyle_e style = Plot3DStyle_Classic) {
        return openRecord(bytes.str(), Plot3DDataStructure_3DWhole, isSolutionOrFunction, style);
    }

    static bool judgeAs(Plot3DFile_s& file, bool isDoublePrecision, bool hasIBlank) {
        file.isDoublePrecision = isDoublePrecision;
        file.hasIBlank = hasIBlank;
        return judge(file);
    }

    static FileBytes fortranGrid(std::int64_t bytesOfData) {
        return FileBytes()
            .record(FileBytes().integers({2, 3, 5}))
            .record(FileBytes().equalReals(bytesOfData / 4));
    }
};

constexpr std::int64_t points = 30; // of 2 x 3 x 5

// ---- Plain binary -------------------------------------------------------------------------------

TEST_F(DataSize, TellsPrecisionAndIBlankOfPlainBinaryBySize) {
    const std::int64_t bytesPerPoint[2][2] = {{12, 16}, {24, 28}};
    for (const bool isDouble : {false, true})
        for (const bool hasIBlank : {false, true}) {
            const std::int64_t size = points * bytesPerPoint[isDouble][hasIBlank];
            auto file = whole(FileBytes().integers({2, 3, 5}).equalReals(size / 4));
            for (const bool triedDouble : {false, true})
                for (const bool triedIBlank : {false, true})
                    EXPECT_EQ(judgeAs(*file, triedDouble, triedIBlank),
                              triedDouble == isDouble && triedIBlank == hasIBlank);
        }
}

TEST_F(DataSize, RefusesTrailingBytesOfPlainBinaryUnlessRelaxed) {
    auto file = whole(FileBytes().integers({2, 3, 5}).equalReals(3 * points + 1));
    EXPECT_FALSE(judge(*file));
    file->relaxedChecks = true;
    EXPECT_TRUE(judge(*file));
}

TEST_F(DataSize, RefusesMissingBytesOfPlainBinaryEvenIfRelaxed) {
    auto file = whole(FileBytes().integers({2, 3, 5}).equalReals(3 * points - 1));
    file->relaxedChecks = true;
    EXPECT_FALSE(judge(*file));
}

TEST_F(DataSize, CountsScalarsOfEveryGridInPlainBinary) {
    auto file =
        whole(FileBytes().integers({2, 2, 3, 5, 7, 2, 3}).equalReals(4 + 5 * 30 + 4 + 5 * 42),
              solutionOrFunction);
    file->isMultiGrid = true;
    EXPECT_TRUE(judge(*file));
    file->style = Plot3DStyle_Swift;
    EXPECT_FALSE(judge(*file));
}

TEST_F(DataSize, WantsEightBytesBehindAnOverflowFileInPlainBinary) {
    // 2 variables, 3 species, hence 14 scalars; 2 reals once for the file.
    auto file = whole(FileBytes().integers({2, 3, 5, 2, 3}).equalReals(14 + 2 * points + 2),
                      solutionOrFunction, Plot3DStyle_Overflow);
    EXPECT_TRUE(judge(*file));
    auto without = whole(FileBytes().integers({2, 3, 5, 2, 3}).equalReals(14 + 2 * points),
                         solutionOrFunction, Plot3DStyle_Overflow);
    EXPECT_FALSE(judge(*without));
}

TEST_F(DataSize, WantsSixteenBytesBehindADoublePrecisionOverflowFileInPlainBinary) {
    auto file = whole(FileBytes().integers({2, 3, 5, 2, 3}).equalDoubles(14 + 2 * points + 2),
                      solutionOrFunction, Plot3DStyle_Overflow);
    EXPECT_TRUE(judgeAs(*file, true, false));
    EXPECT_FALSE(judgeAs(*file, false, false));
}

TEST_F(DataSize, TakesGridsOfPlainBinaryForStylelessWhateverTheirCompanionsAre) {
    auto file = whole(FileBytes().integers({2, 3, 5}).equalReals(3 * points), gridFile,
                      Plot3DStyle_Overflow);
    EXPECT_TRUE(judge(*file));
}

TEST_F(DataSize, LimitsPointsOfPlainBinaryGrids) {
    // Fits a sparse file of the right size, but has 2147483646 points.
    const std::int32_t half = 1073741823;
    const std::int64_t size = 12 + 12 * std::int64_t{2} * half;
    disk.putSparse("huge", FileBytes().integers({2, half, 1}).str(), size);
    Plot3DFileBuilder builder(options);
    EXPECT_EQ(buildPlot3DFile(builder, "huge", gridFile), nullptr);
    disk.putSparse("large", FileBytes().integers({2, half - 1, 1}).str(), size - 24);
    auto large = buildPlot3DFile(builder, "large", gridFile);
    ASSERT_NE(large, nullptr);
    EXPECT_EQ(large->gridDims[0], (Plot3DGridDims_s{2, half - 1, 1}));
}

TEST_F(DataSize, LimitsElementsOfPlainBinaryGrids) {
    constexpr std::int32_t most = 2147483645;
    const auto fits = [this](std::int32_t triangles, std::int32_t tetrahedra) {
        const std::int64_t elements = std::int64_t{triangles} + tetrahedra;
        disk.putSparse("mesh", FileBytes().integers({5, triangles, tetrahedra}).str(),
                       12 + 5 * 12 + elements * 16);
        auto file = createPlot3DFile("mesh", false);
        EXPECT_TRUE(openPlot3DFile(*file));
        file->dataStructure = Plot3DDataStructure_Unstructured;
        return judge(*file);
    };
    EXPECT_TRUE(fits(most, 0));
    EXPECT_FALSE(fits(most + 1, 0));
    EXPECT_TRUE(fits(0, most));
    EXPECT_FALSE(fits(0, most + 1));
}

TEST_F(DataSize, DoesNotOverflowOnAbsurdCountsOfVariables) {
    for (const std::int32_t absurd : {2147483647, -2147483647}) {
        auto file = whole(FileBytes().integers({2, 3, 5, absurd, absurd}).equalReals(90),
                          solutionOrFunction, Plot3DStyle_Overflow);
        EXPECT_FALSE(judge(*file));
    }
    disk.putSparse("vars", FileBytes().integers({1024, 1024, 2047, 2147483647, 7}).str(),
                   std::int64_t{1} << 40);
    auto file = createPlot3DFile("vars", false);
    ASSERT_TRUE(openPlot3DFile(*file));
    file->dataStructure = Plot3DDataStructure_3DWhole;
    file->isSolutionOrFunction = true;
    file->style = Plot3DStyle_Overflow;
    file->relaxedChecks = true;
    EXPECT_FALSE(judgeAs(*file, true, false));
}

TEST_F(DataSize, CountsSixteenBytesForEachElement) {
    auto file = openRecord(FileBytes().integers({5, 0, 3}).equalReals(15 + 4 * 3).str(),
                           Plot3DDataStructure_Unstructured);
    EXPECT_TRUE(judge(*file));
    auto corners = openRecord(FileBytes().integers({5, 2, 0}).equalReals(15 + 3 * 2).str(),
                              Plot3DDataStructure_Unstructured);
    EXPECT_FALSE(judge(*corners));
}

TEST_F(DataSize, CannotTellPlanesFromWholeInPlainBinary) {
    auto file = whole(FileBytes().integers({2, 3, 5}).equalReals(3 * points));
    EXPECT_TRUE(judge(*file));
    file->dataStructure = Plot3DDataStructure_3DPlanes;
    EXPECT_TRUE(judge(*file));
}

TEST_F(DataSize, Has4ByteIntegersInDoublePrecisionToo) {
    auto file = whole(FileBytes().integers({2, 3, 5}).equalDoubles(3 * points).equalReals(points));
    EXPECT_TRUE(judgeAs(*file, true, true));
}

// ---- Fortran ------------------------------------------------------------------------------------

TEST_F(DataSize, TellsPrecisionAndIBlankOfFortranByTheFirstRecord) {
    auto file = whole(fortranGrid(28 * points));
    EXPECT_TRUE(judgeAs(*file, true, true));
    EXPECT_FALSE(judgeAs(*file, true, false));
    EXPECT_FALSE(judgeAs(*file, false, true));
    file->relaxedChecks = true;
    EXPECT_TRUE(judgeAs(*file, false, true));
}

TEST_F(DataSize, TellsPlanesFromWholeInFortran) {
    FileBytes bytes = FileBytes().record(FileBytes().integers({2, 3, 5}));
    for (int plane = 0; plane < 5; ++plane)
        bytes.record(FileBytes().equalReals(3 * 6));
    auto file = whole(bytes);
    EXPECT_FALSE(judge(*file));
    file->dataStructure = Plot3DDataStructure_3DPlanes;
    EXPECT_TRUE(judge(*file));
}

TEST_F(DataSize, LooksAtTheFirstGridOfFortranOnly) {
    const FileBytes trailing = fortranGrid(12 * points).record(FileBytes().equalReals(7));
    EXPECT_TRUE(judge(*whole(trailing)));
    // The second grid, of 7 x 2 x 3 points, has no record at all.
    FileBytes missing;
    missing.record(FileBytes().integers({2}));
    missing.record(FileBytes().integers({2, 3, 5, 7, 2, 3}));
    missing.record(FileBytes().equalReals(3 * points));
    auto file = whole(missing);
    file->isMultiGrid = true;
    EXPECT_TRUE(judge(*file));
}

TEST_F(DataSize, WantsTheRecordsOfTheFirstGrid) {
    EXPECT_FALSE(judge(*whole(FileBytes().record(FileBytes().integers({2, 3, 5})))));
    const FileBytes noVariables =
        FileBytes().record(FileBytes().integers({2, 3, 5})).record(FileBytes().equalReals(4));
    EXPECT_FALSE(judge(*whole(noVariables, solutionOrFunction)));
}

TEST_F(DataSize, WantsTheScalarRecordOfFortranToBeExact) {
    for (const std::int32_t scalars : {4, 5}) {
        auto file = whole(FileBytes()
                              .record(FileBytes().integers({2, 3, 5}))
                              .record(FileBytes().equalReals(scalars))
                              .record(FileBytes().equalReals(5 * points)),
                          solutionOrFunction);
        EXPECT_EQ(judge(*file), scalars == 4);
        file->relaxedChecks = true;
        EXPECT_TRUE(judge(*file));
        file->style = Plot3DStyle_Swift;
        EXPECT_EQ(judge(*file), scalars == 5);
    }
}

TEST_F(DataSize, TakesALongerScalarRecordOfOverflow) {
    for (const std::int32_t scalars : {12, 13, 17}) {
        auto file = whole(FileBytes()
                              .record(FileBytes().integers({2, 3, 5, 2, 0}))
                              .record(FileBytes().equalReals(scalars))
                              .record(FileBytes().equalReals(2 * points)),
                          solutionOrFunction, Plot3DStyle_Overflow);
        EXPECT_EQ(judge(*file), scalars >= 13);
    }
}

TEST_F(DataSize, AllowsFourBytesLessInADoublePrecisionScalarRecordOfOverflow) {
    for (const std::int32_t words : {24, 25, 26}) {
        auto file = whole(FileBytes()
                              .record(FileBytes().integers({2, 3, 5, 2, 0}))
                              .record(FileBytes().equalReals(words))
                              .record(FileBytes().equalDoubles(2 * points)),
                          solutionOrFunction, Plot3DStyle_Overflow);
        EXPECT_EQ(judgeAs(*file, true, false), words >= 25);
    }
}

TEST_F(DataSize, CountsConnectivityInTheRecordOfItsGrid) {
    auto file = openRecord(FileBytes()
                               .record(FileBytes().integers({5, 2, 0}))
                               .record(FileBytes().equalReals(15 + 4 * 2))
                               .str(),
                           Plot3DDataStructure_Unstructured);
    EXPECT_TRUE(judge(*file));
}

// ---- Text ---------------------------------------------------------------------------------------

TEST_F(DataSize, DoesNotTestTheDataOfText) {
    EXPECT_TRUE(judge(*openRecord("1 2 3\n* no numbers\n", Plot3DDataStructure_3DPlanes)));
}

TEST_F(DataSize, PassesOverBillionsOfRepeatedScalarsAtOnce) {
    // 2000000011 scalars, promised by one token.
    auto file = openRecord("2 3 5\n1 2000000000\n2000000011*0.5\n" + std::string(60, '1'),
                           Plot3DDataStructure_3DWhole, solutionOrFunction, Plot3DStyle_Overflow);
    EXPECT_TRUE(judge(*file));
}

} // namespace
} // namespace quorvia::quorutildataio
