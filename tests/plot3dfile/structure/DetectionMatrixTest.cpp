// Every combination of properties that a file can have, written and detected. What is found equals
// what was written, save for files that have the same bytes whichever way they were meant.
#include "RecordingReceiver.h"
#include "StructureTest.h"
#include "support/SmallFiles.h"

namespace quorvia::quorutildataio {
namespace {

using namespace plot3dwriter;

struct Combination_s {
    FileDescription_s description;
    FileForm_s form;
};

/// Unequal primes, and an odd size ahead of a larger one, so that no two readings have the same
/// size.
std::vector<GridDims_s> gridsOf(Layout_e layout, bool isMultiGrid) {
    const auto choose = [&](GridDims_s first, GridDims_s second) {
        return isMultiGrid ? std::vector<GridDims_s>{first, second}
                           : std::vector<GridDims_s>{first};
    };
    switch (layout) {
    case Layout_e::OneD:
        return {{23, 1, 1}};
    case Layout_e::TwoD:
        return choose({5, 7, 1}, {3, 11, 1});
    case Layout_e::Unstructured:
        return choose({13, 11, 0}, {7, 0, 5});
    default:
        return choose({2, 3, 5}, {7, 3, 2});
    }
}

/// Never whole, so that no value of a text can be taken for a count.
double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) {
    return 0.5 + i + 100.0 * j + 10000.0 * k + 1e6 * variable + 1e7 * grid;
}

FileDescription_s describeFile(FileKind_e kind, Layout_e layout, bool isMultiGrid, bool hasIBlank) {
    FileDescription_s description =
        testsupport::describe(kind, gridsOf(layout, isMultiGrid), layout, placeValue);
    description.isMultiGrid = isMultiGrid;
    description.hasIBlank = hasIBlank;
    description.numVars = 7;
    description.numSpecies = 3;
    testsupport::Numbers scalars(14, 1.25);
    scalars[overflowIntegerIndex] = 2.0;
    testsupport::setScalars(description, scalars);
    return description;
}

std::vector<FileForm_s> allForms() {
    std::vector<FileForm_s> forms = testsupport::everyForm();
    for (FileForm_s& form : forms)
        form.text.tokensPerLine = 7; // lines of 4 or 5 numbers can be taken for a grid's scalars
    return forms;
}

std::vector<Combination_s> allCombinations() {
    std::vector<Combination_s> combinations;
    for (const FileKind_e kind : testsupport::everyKind)
        for (const Layout_e layout : testsupport::everyDimension)
            for (const bool isMultiGrid : {false, true})
                for (const bool hasIBlank : {false, true})
                    for (const FileForm_s& form : allForms())
                        combinations.push_back(
                            {describeFile(kind, layout, isMultiGrid, hasIBlank), form});
    std::erase_if(combinations, [](const Combination_s& combination) {
        return !findFault(combination.description, combination.form).empty();
    });
    return combinations;
}

std::string nameOf(const Combination_s& combination) {
    const FileDescription_s& description = combination.description;
    const FileForm_s& form = combination.form;
    const char* const kinds[] = {"grid", "classic", "swift", "overflow", "function"};
    const char* const layouts[] = {"1-D", "2-D", "whole", "planes", "unstructured"};
    const char* const encodings[] = {"text", "binary", "fortran"};
    return std::string(kinds[static_cast<int>(description.kind)]) + " " +
           layouts[static_cast<int>(description.layout)] +
           (description.isMultiGrid ? " multi" : " single") +
           (description.hasIBlank ? " iblank " : " ") + encodings[static_cast<int>(form.encoding)] +
           std::to_string(form.markerBytes) +
           (form.byteOrder == ByteOrder_e::Big ? " big" : " little") +
           (form.precision == Precision_e::Double ? " double" : " single");
}

/// A text whose first line holds one number is a 1-D file, unless 2-D or 3-D dimensions follow it.
bool isTakenFor1D(const Combination_s& combination) {
    const FileDescription_s& description = combination.description;
    return description.kind == FileKind_e::Grid && description.layout == Layout_e::Unstructured &&
           description.isMultiGrid && combination.form.encoding == Encoding_e::Text;
}

/// The structure of a file, as far as it can be found in its bytes.
Plot3DDataStructure_e expectedDataStructure(const Combination_s& combination) {
    const FileDescription_s& description = combination.description;
    switch (description.layout) {
    case Layout_e::OneD:
        return Plot3DDataStructure_1D;
    case Layout_e::TwoD:
        return Plot3DDataStructure_2D;
    case Layout_e::ThreeDPlanes:
        // Planes and whole fields differ in their Fortran records alone.
        return combination.form.encoding == Encoding_e::Fortran ? Plot3DDataStructure_3DPlanes
                                                                : Plot3DDataStructure_3DWhole;
    case Layout_e::Unstructured:
        // Beside a grid file, n nodes have the bytes of a structured grid of n x 1 x 1 points.
        if (description.kind != FileKind_e::Grid)
            return Plot3DDataStructure_3DWhole;
        return isTakenFor1D(combination) ? Plot3DDataStructure_1D
                                         : Plot3DDataStructure_Unstructured;
    default:
        return Plot3DDataStructure_3DWhole;
    }
}

Plot3DStyle_e expectedStyle(const FileDescription_s& description) {
    switch (description.kind) {
    case FileKind_e::SwiftSolution:
        // All 1-D solutions have the same bytes.
        return description.layout == Layout_e::OneD ? Plot3DStyle_Classic : Plot3DStyle_Swift;
    case FileKind_e::OverflowSolution:
        return Plot3DStyle_Overflow;
    case FileKind_e::Function:
        return Plot3DStyle_Function;
    default:
        return Plot3DStyle_Classic;
    }
}

Plot3DEncoding_e expectedEncoding(Encoding_e encoding) {
    if (encoding == Encoding_e::Text)
        return Plot3DEncoding_Ascii;
    return encoding == Encoding_e::Binary ? Plot3DEncoding_Binary
                                          : Plot3DEncoding_FortranUnformatted;
}

bool isBigEndian(const FileForm_s& form) {
    return form.encoding != Encoding_e::Text && form.byteOrder == ByteOrder_e::Big;
}

std::uint32_t expectedMarkerSize(const FileForm_s& form) {
    return form.encoding == Encoding_e::Fortran && form.markerBytes == 8 ? 8 : 4;
}

Plot3DGridDims_s expectedDims(const FileDescription_s& description, std::size_t grid) {
    const GridDims_s dims = description.grids[grid];
    if (description.layout == Layout_e::Unstructured && description.kind != FileKind_e::Grid)
        return {dims.i, 1, 1};
    return {dims.i, dims.j, dims.k};
}

class DetectionMatrix : public StructureTest {
protected:
    Plot3DFilePtr detectWritten(const Combination_s& combination) {
        const auto& [description, form] = combination;
        std::string bytes;
        written = writePlot3DBytes(bytes, description, form);
        EXPECT_EQ(written.problem, "");
        setLoadOptionDefaults(options);
        options.asciiIsDouble = form.precision == Precision_e::Double; // can't be told in text
        options.asciiHasIBlank = description.hasIBlank;
        return detect(bytes, description.kind != FileKind_e::Grid);
    }

    static void expectStructure(const Plot3DFile_s& file, const Combination_s& combination) {
        const auto& [description, form] = combination;
        EXPECT_EQ(file.encoding, expectedEncoding(form.encoding));
        EXPECT_EQ(file.dataStructure, expectedDataStructure(combination));
        EXPECT_EQ(file.style, expectedStyle(description));
        EXPECT_EQ(file.isMultiGrid, description.isMultiGrid && !isTakenFor1D(combination));
        EXPECT_EQ(file.hasIBlank, description.hasIBlank);
        EXPECT_EQ(file.isDoublePrecision, form.precision == Precision_e::Double);
        EXPECT_EQ(file.byteSwap, isBigEndian(form));
        EXPECT_EQ(file.markerSize, expectedMarkerSize(form));
        EXPECT_FALSE(file.relaxedChecks);
        EXPECT_EQ(file.stream, nullptr);
    }

    static void expectCounts(const Plot3DFile_s& file, const FileDescription_s& description) {
        ASSERT_EQ(file.numGrids, std::ssize(description.grids));
        for (std::size_t grid = 0; grid < description.grids.size(); ++grid)
            EXPECT_EQ(file.gridDims[grid], expectedDims(description, grid));
        EXPECT_EQ(file.numVars, variableCount(description));
        EXPECT_EQ(file.numScalars, scalarCount(description));
    }

    /// The walk finds every block where the writer has put it.
    void expectPositions(Plot3DFile_s& file) {
        RecordingReceiver recording;
        recording.takesTimes = false;
        const Plot3DItemReceiver_s receiver = recording.receiver();
        ASSERT_TRUE(openPlot3DFile(file));
        EXPECT_TRUE(parseLayout(file, true, nullptr, &receiver));
        closePlot3DFile(file);
        if (file.encoding == Plot3DEncoding_Ascii)
            return;
        std::vector<std::int64_t> found;
        std::vector<std::int64_t> expected;
        for (const RecordingReceiver::Item_s& item : recording.items)
            found.push_back(item.position);
        for (const BlockPosition_s& block : written.blocks)
            expected.push_back(block.position);
        EXPECT_EQ(found, expected);
    }

    WriteOutcome_s written;
};

TEST_F(DetectionMatrix, FindsWhatWasWritten) {
    for (const Combination_s& combination : allCombinations()) {
        SCOPED_TRACE(nameOf(combination));
        auto file = detectWritten(combination);
        ASSERT_NE(file, nullptr);
        expectStructure(*file, combination);
        if (!isTakenFor1D(combination))
            expectCounts(*file, combination.description);
    }
}

TEST_F(DetectionMatrix, WalksOverEveryBlockOfWhatItFound) {
    for (const Combination_s& combination : allCombinations()) {
        SCOPED_TRACE(nameOf(combination));
        const bool readsAsWhole = combination.description.layout == Layout_e::ThreeDPlanes &&
                                  combination.form.encoding != Encoding_e::Fortran;
        auto file = detectWritten(combination);
        ASSERT_NE(file, nullptr);
        if (readsAsWhole) // unless it is told
            file->dataStructure = Plot3DDataStructure_3DPlanes;
        expectPositions(*file);
    }
}

TEST_F(DetectionMatrix, TakesTheSameStructureDescribedByHand) {
    for (const Combination_s& combination : allCombinations()) {
        SCOPED_TRACE(nameOf(combination));
        const auto& [description, form] = combination;
        auto found = detectWritten(combination);
        ASSERT_NE(found, nullptr);
        const bool isSolutionOrFunction = description.kind != FileKind_e::Grid;
        describe(found->dataStructure, found->style, found->isMultiGrid);
        Plot3DFileBuilder builder(options);
        auto file = buildPlot3DFile(builder, "file", isSolutionOrFunction);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(file->gridDims[0], found->gridDims[0]);
        EXPECT_EQ(file->byteSwap, found->byteSwap);
        // Of plain binary the shortest reading that the size allows is taken, hence the first one.
        const bool mayBeDouble = form.encoding != Encoding_e::Binary;
        EXPECT_EQ(file->isDoublePrecision, mayBeDouble && found->isDoublePrecision);
    }
}

} // namespace
} // namespace quorvia::quorutildataio
