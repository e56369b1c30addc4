// A file's structure by trial: what comes first, what second chances there are, what the user is
// told.
#include "StructureTest.h"

namespace quorvia::quorutildataio {
namespace {

using Detection = StructureTest;
using Texts = std::vector<std::string>;

constexpr std::int64_t pointCount = 30; // of 2 x 3 x 5

const char* const noGridFound =
    "Auto Detect cannot determine the Plot 3D grid Please manually describe the file on the File "
    "Structure tab of the advanced load dialog.\nFile: file";
const char* const noSolutionFound =
    "Auto Detect cannot determine the Plot 3D solution/function file structure.\nPlease manually "
    "describe the file on the File Structure tab of the advanced load dialog.\nFile: file";

FileBytes fortranGrid(std::int64_t bytesOfData) {
    return FileBytes()
        .record(FileBytes().integers({2, 3, 5}))
        .record(FileBytes().equalReals(bytesOfData / 4));
}

// ---- Order of trials ----------------------------------------------------------------------------

TEST_F(Detection, TakesPlanesOfPlainBinaryForWhole) {
    auto file = detect(FileBytes().integers({2, 3, 5}).equalReals(3 * pointCount).str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_3DWhole);
}

TEST_F(Detection, TellsPlanesOfFortranByTheirRecords) {
    FileBytes bytes = FileBytes().record(FileBytes().integers({2, 3, 5}));
    for (int plane = 0; plane < 5; ++plane)
        bytes.record(FileBytes().equalReals(3 * 6));
    auto file = detect(bytes.str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_3DPlanes);
}

// Only the first grid's records are compared, and one plane is a whole field.
TEST_F(Detection, TakesPlanesOfFortranForWholeIfTheFirstGridHasOnePlane) {
    FileBytes bytes;
    bytes.record(FileBytes().integers({2})).record(FileBytes().integers({5, 7, 1, 2, 3, 2}));
    bytes.record(FileBytes().equalReals(3 * 35));
    bytes.record(FileBytes().equalReals(3 * 6)).record(FileBytes().equalReals(3 * 6));
    auto file = detect(bytes.str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_3DWhole);
}

TEST_F(Detection, TakesTextFor3DWholeIfAny3DReadingFits) {
    auto file = detect("2 3 5\n" + std::string(60, '1'));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_3DWhole);
}

// A 2-D grid of one point in double precision. The low half of its X, the smallest number above 0,
// stands where 3-D has its K, and then 1 x 1 x 1 points in single precision fill the file.
TEST_F(Detection, Takes2DFor3DIfItsHeaderFits) {
    const std::string bytes =
        FileBytes().integers({1, 1}).equalDoubles(1, 4.9406564584124654e-324).equalDoubles(1).str();
    auto file = openRecord(bytes, Plot3DDataStructure_2D);
    file->isDoublePrecision = true;
    EXPECT_TRUE(judge(*file));
    auto found = detect(bytes);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_FALSE(found->isDoublePrecision);
}

// n x 1 x 1 points have the bytes of n nodes.
TEST_F(Detection, TakesSolutionsOfUnstructuredDataFor3DWhole) {
    auto file =
        detect(FileBytes().integers({7, 1, 1}).equalReals(4 + 5 * 7).str(), solutionOrFunction);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_EQ(file->gridDims[0], (Plot3DGridDims_s{7, 1, 1}));
}

// The dimensions and the number of variables of a 2-D function file look like 3-D dimensions, and
// the first line of its values like scalars, if it happens to have 4 or 5 of them.
TEST_F(Detection, TakesShortLinesOfATextFunctionFileForScalars) {
    const std::pair<const char*, Plot3DStyle_e> lines[] = {
        {"0.5 0.5 0.5\n", Plot3DStyle_Function},
        {"0.5 0.5 0.5 0.5\n", Plot3DStyle_Classic},
        {"0.5 0.5 0.5 0.5 0.5\n", Plot3DStyle_Swift},
        {"0.5 0.5 0.5 0.5 0.5 0.5\n", Plot3DStyle_Function}};
    for (const auto& [line, style] : lines) {
        std::string text = "5 7 2\n";
        for (int count = 0; count < 15; ++count)
            text += line;
        auto file = detect(text, solutionOrFunction);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(file->style, style);
        EXPECT_EQ(file->dataStructure, style == Plot3DStyle_Function ? Plot3DDataStructure_2D
                                                                     : Plot3DDataStructure_3DWhole);
    }
}

TEST_F(Detection, TakesTheTokensOfOneLineForASingleGrid) {
    auto file = detect("2 3 4\n" + std::string(60, '1'));
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(file->isMultiGrid);
    EXPECT_EQ(file->gridDims[0], (Plot3DGridDims_s{2, 3, 4}));
}

TEST_F(Detection, GivesA1DFileOneGrid) {
    auto file = detect(FileBytes().integers({7}).equalReals(7).str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_1D);
    EXPECT_EQ(file->numGrids, 1);
}

TEST_F(Detection, ForgetsTheStructureOfAFileThatFitsNone) {
    disk.put("file", FileBytes().integers({2, 3, 5}).equalReals(7).str());
    auto file = createPlot3DFile("file", false);
    ASSERT_TRUE(openPlot3DFile(*file));
    EXPECT_FALSE(searchStructure(*file));
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_Unknown);
}

TEST_F(Detection, TriesNoIBlankInSolutions) {
    auto file = openRecord(FileBytes().integers({2, 3, 5}).equalReals(4 + 6 * pointCount).str(),
                           Plot3DDataStructure_3DWhole, solutionOrFunction);
    EXPECT_FALSE(tryIBlank(*file, true));
    EXPECT_TRUE(file->hasIBlank);
    EXPECT_FALSE(tryPrecision(*file, false));
}

// ---- Second chances -----------------------------------------------------------------------------

TEST_F(Detection, FindsTheOtherByteOrderOfPlainBinaryInASecondSearch) {
    FileBytes reversed(Order_e::Swapped);
    auto file = detect(reversed.integers({2, 3, 5}).equalReals(3 * pointCount).str());
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(file->byteSwap);
    EXPECT_FALSE(file->relaxedChecks);
}

// The record behind the header is longer than any reading of it.
TEST_F(Detection, RelaxesItsChecksForLongerFortranRecords) {
    const struct {
        std::int64_t bytesPerPoint;
        bool isDoublePrecision;
        bool hasIBlank;
    } readings[] = {{36, true, true}, {26, true, false}, {20, false, true}, {14, false, false}};
    for (const auto& reading : readings) {
        auto file = detect(fortranGrid(reading.bytesPerPoint * pointCount).str());
        ASSERT_NE(file, nullptr);
        EXPECT_TRUE(file->relaxedChecks);
        EXPECT_EQ(file->isDoublePrecision, reading.isDoublePrecision);
        EXPECT_EQ(file->hasIBlank, reading.hasIBlank);
    }
}

// Relaxed checks would take the dimensions over three lines.
TEST_F(Detection, GivesTextNoSecondChance) {
    const std::string text = "2\n3\n4\n1 1 1 1\n" + std::string(60, ' ');
    EXPECT_EQ(detect(text, solutionOrFunction), nullptr);
    EXPECT_EQ(messages(), Texts{noSolutionFound});
}

// ---- Text takes its precision and I-blank from the options --------------------------------------

TEST_F(Detection, TakesPrecisionAndIBlankOfTextFromTheOptions) {
    const std::string text = "2 3 4\n" + std::string(60, '1');
    for (const bool isDouble : {false, true})
        for (const bool hasIBlank : {false, true}) {
            options.asciiIsDouble = isDouble;
            options.asciiHasIBlank = hasIBlank;
            auto file = detect(text);
            ASSERT_NE(file, nullptr);
            EXPECT_EQ(file->isDoublePrecision, isDouble);
            EXPECT_EQ(file->hasIBlank, hasIBlank);
        }
}

TEST_F(Detection, GivesTextSolutionsNoIBlank) {
    options.asciiHasIBlank = true;
    auto file = detect("2 3 4\n1 2 3 4\n" + std::string(60, '1'), solutionOrFunction);
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(file->hasIBlank);
}

// ---- Refusals -----------------------------------------------------------------------------------

TEST_F(Detection, AsksForADescriptionOfAFileThatFitsNone) {
    const std::string bytes = FileBytes().integers({2, 3, 5}).equalReals(7).str();
    EXPECT_EQ(detect(bytes), nullptr);
    EXPECT_EQ(detect(bytes, solutionOrFunction), nullptr);
    EXPECT_EQ(messages(), (Texts{noGridFound, noSolutionFound}));
}

TEST_F(Detection, RefusesAnEmptyFile) {
    EXPECT_EQ(detect(""), nullptr);
    EXPECT_EQ(messages(), Texts{noGridFound});
}

// Once when the file is to be measured, once when it is to be read.
TEST_F(Detection, TellsOfEachTryToOpenAFileThatIsNotThere) {
    Plot3DFileBuilder builder(options);
    EXPECT_EQ(buildPlot3DFile(builder, "missing", gridFile), nullptr);
    EXPECT_EQ(messages(), Texts(2, "The file missing could not be opened."));
    EXPECT_EQ(builder.firstFile, nullptr);
}

TEST_F(Detection, RefusesAFileThatVanishesBehindItsMeasuring) {
    disk.vanishAfterOpens("file", 1);
    EXPECT_EQ(detect(FileBytes().integers({2, 3, 5}).equalReals(3 * pointCount).str()), nullptr);
    EXPECT_EQ(messages(), Texts{"The file file could not be opened."});
}

// ---- Manual description -------------------------------------------------------------------------

TEST_F(Detection, RefusesAFileThatDoesNotFitItsDescription) {
    describe(Plot3DDataStructure_3DWhole, Plot3DStyle_Classic, true);
    const std::string bytes = FileBytes().integers({2, 3, 5}).equalReals(3 * pointCount).str();
    EXPECT_EQ(detect(bytes), nullptr);
    EXPECT_EQ(detect(bytes, solutionOrFunction), nullptr);
    EXPECT_EQ(messages(),
              (Texts{"Plot3D grid file format is inconsistent with manually supplied "
                     "description.\nFile: file",
                     "Plot3D solution/function file format is inconsistent with manually supplied "
                     "description.\nFile: file"}));
}

TEST_F(Detection, TakesPlanesOfPlainBinaryIfTheyAreDescribed) {
    describe(Plot3DDataStructure_3DPlanes, Plot3DStyle_Classic, false);
    auto file = detect(FileBytes().integers({2, 3, 5}).equalReals(3 * pointCount).str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_3DPlanes);
    EXPECT_TRUE(file->relaxedChecks);
}

TEST_F(Detection, FindsTheByteOrderOfADescribedFile) {
    describe(Plot3DDataStructure_3DWhole, Plot3DStyle_Classic, false);
    FileBytes reversed(Order_e::Swapped);
    auto file = detect(reversed.integers({2, 3, 5}).equalReals(3 * pointCount).str());
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(file->byteSwap);
}

TEST_F(Detection, TakesTheShortestReadingOfDescribedPlainBinary) {
    describe(Plot3DDataStructure_3DWhole, Plot3DStyle_Classic, false);
    auto file = detect(FileBytes().integers({2, 3, 5}).equalDoubles(3 * pointCount).str());
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(file->isDoublePrecision);
}

TEST_F(Detection, TakesTheLongestReadingOfDescribedFortran) {
    describe(Plot3DDataStructure_3DWhole, Plot3DStyle_Classic, false);
    auto file = detect(fortranGrid(28 * pointCount).str());
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(file->isDoublePrecision);
    EXPECT_TRUE(file->hasIBlank);
}

TEST_F(Detection, TakesDescribedTextOverLooseLines) {
    describe(Plot3DDataStructure_3DWhole, Plot3DStyle_Classic, false);
    EXPECT_NE(detect("2\n3\n4\n" + std::string(60, '1')), nullptr);
}

TEST_F(Detection, GivesADescribed1DFileNoGrids) {
    describe(Plot3DDataStructure_1D, Plot3DStyle_Classic, false);
    auto file = detect(FileBytes().integers({7}).equalReals(7).str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->numGrids, 0);
}

TEST_F(Detection, TakesAGridFileWhateverStyleItsCompanionsHave) {
    describe(Plot3DDataStructure_3DWhole, Plot3DStyle_Overflow, false);
    EXPECT_NE(detect(FileBytes().integers({2, 3, 5}).equalReals(3 * pointCount).str()), nullptr);
    describe(Plot3DDataStructure_3DWhole, Plot3DStyle_Function, false);
    EXPECT_NE(detect(FileBytes().integers({2, 3, 5}).equalReals(3 * pointCount).str()), nullptr);
}

} // namespace
} // namespace quorvia::quorutildataio
