// Fields as they come out of whole files: deferred or read at once, and every value in its place.
#include <filesystem>

#include "DatasetFixture.h"
#include "dataset/items/ItemDispatch.h"
#include "dataset/items/VariableItem.h"
#include "plot3dfile/layout/LayoutParsers.h"
#include "support/FakeDisk.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;
using host::FieldState_e;

namespace {

const GridList twoGrids = {{2, 3, 5}, {7, 2, 3}};

class FieldsOfFiles : public DatasetTest {
protected:
    /// Every n-th point of a field of oneGrid in I, J and K, the last one always.
    static Numbers everySecondI(const Numbers& whole, std::size_t iMax) {
        Numbers chosen;
        for (std::size_t row = 0; row < whole.size(); row += iMax)
            for (std::size_t i = 0; i < iMax; ++i)
                if (i % 2 == 0 || i + 1 == iMax)
                    chosen.push_back(whole[row + i]);
        return chosen;
    }
    static std::int64_t deferredCount() { return host().callCount("QuorUtilDataValueCustomLOD"); }
};

struct FormOfFile_s {
    const char* name;
    FileForm_s form;
    FieldState_e state;
};

class FieldsInEveryForm : public FieldsOfFiles,
                          public ::testing::WithParamInterface<FormOfFile_s> {};

TEST_P(FieldsInEveryForm, HaveTheirValues) {
    FileDescription_s grid = describeGrid(twoGrids);
    grid.hasIBlank = true;
    const FileDescription_s solution = describeSolution(twoGrids, 0.5);
    const FormOfFile_s& row = GetParam();
    ASSERT_TRUE(load({step(&write("x", grid, row.form), &write("q", solution, row.form))}));
    EXPECT_EQ(state(2, 4), row.state);
    for (std::int32_t g = 0; g < 2; ++g) {
        for (std::int32_t v = 0; v < 3; ++v)
            EXPECT_EQ(values(g + 1, v + 1), fieldOf(grid, g, v));
        EXPECT_EQ(values(g + 1, 4), iblankOf(grid, g));
        for (std::int32_t v = 0; v < 5; ++v)
            EXPECT_EQ(values(g + 1, v + 5), fieldOf(solution, g, v));
    }
}

const FormOfFile_s formsOfFields[] = {
    {"Text", text(), FieldState_e::Stored},
    {"Binary", binary(), FieldState_e::Deferred},
    {"BinaryBigDouble", binary(ByteOrder_e::Big, Precision_e::Double), FieldState_e::Deferred},
    {"Fortran", fortran(), FieldState_e::Deferred},
    {"FortranBig", fortran(ByteOrder_e::Big), FieldState_e::Deferred},
    {"FortranDouble", fortran(ByteOrder_e::Little, Precision_e::Double), FieldState_e::Deferred},
};

INSTANTIATE_TEST_SUITE_P(All, FieldsInEveryForm, ::testing::ValuesIn(formsOfFields),
                         [](const auto& row) { return row.param.name; });

TEST_F(FieldsOfFiles, OfTextAreReadInFullWithoutARecord) {
    ASSERT_TRUE(load({step(&write("x", describeGrid(oneGrid), text()))}));
    EXPECT_EQ(deferredCount(), 0);
    EXPECT_EQ(state(1, 3), FieldState_e::Stored);
}

TEST_F(FieldsOfFiles, OfBinaryFilesAreNotReadByTheLoad) {
    Plot3DFile_s& grid = write("x", describeGrid({{41, 43, 47}}));
    const FakeDisk files(FakeDisk::Behind_e::Platform);
    ASSERT_TRUE(load({step(&grid)}));
    EXPECT_LT(files.bytesRead, 8192);
    EXPECT_EQ(deferredCount(), 3);
}

TEST_F(FieldsOfFiles, OfASubsetAreReadAtOnceAndHoldTheSubset) {
    const FileDescription_s grid = describeGrid({{7, 3, 2}});
    options.iRange = {1, 0, 2};
    ASSERT_TRUE(load({step(&write("x", grid))}));
    EXPECT_EQ(deferredCount(), 0);
    EXPECT_EQ(zone(1).i, 4);
    EXPECT_EQ(values(1, 2), everySecondI(fieldOf(grid, 0, 1), 7));
}

TEST_F(FieldsOfFiles, WithARangeThatLeavesNothingOutStayInTheFile) {
    options.iRange = {1, 0, 1};
    options.jRange = {1, 3, 1};
    options.kRange = {1, 99, 1};
    ASSERT_TRUE(load({step(&write("x", describeGrid(oneGrid)))}));
    EXPECT_EQ(state(1, 1), FieldState_e::Deferred);
}

TEST_F(FieldsOfFiles, OfPlanesAreReadAtOnce) {
    FileDescription_s grid = describeGrid(twoGrids, Layout_e::ThreeDPlanes);
    grid.hasIBlank = true;
    for (const FileForm_s& form : {fortran(), text()}) {
        ASSERT_TRUE(load({step(&write("x", grid, form))}));
        EXPECT_EQ(values(2, 3), fieldOf(grid, 1, 2));
        EXPECT_EQ(values(2, 4), iblankOf(grid, 1));
    }
    EXPECT_EQ(deferredCount(), 0);
}

TEST_F(FieldsOfFiles, OfPlanesHoldASubsetToo) {
    const FileDescription_s grid = describeGrid({{7, 3, 2}}, Layout_e::ThreeDPlanes);
    options.iRange = {1, 0, 2};
    ASSERT_TRUE(load({step(&write("x", grid, fortran()))}));
    EXPECT_EQ(values(1, 1), everySecondI(fieldOf(grid, 0, 0), 7));
}

TEST_F(FieldsOfFiles, GoThroughTheSetFunctionOfAHostWithoutPlainArrays) {
    host().settings().plainArrays = false;
    FileDescription_s grid = describeGrid(oneGrid);
    grid.hasIBlank = true;
    ASSERT_TRUE(load({step(&write("x", grid, text()))}));
    EXPECT_EQ(values(1, 3), fieldOf(grid, 0, 2));
    EXPECT_EQ(values(1, 4), iblankOf(grid, 0));
}

TEST_F(FieldsOfFiles, OfGridsThatAreNotLoadedArePassedOver) {
    const GridList grids = {{2, 3, 5}, {3, 2, 2}, {2, 2, 7}, {5, 2, 3}};
    const FileDescription_s grid = describeGrid(grids);
    selectGrids({2, 4});
    for (const FileForm_s& form : {binary(), fortran(), text()}) {
        ASSERT_TRUE(load({step(&write("x", grid, form))}));
        EXPECT_EQ(values(1, 1), fieldOf(grid, 1, 0));
        EXPECT_EQ(values(2, 3), fieldOf(grid, 3, 2));
    }
}

// A rule of old: the length of what is passed over goes by the ends of the ranges.
TEST_F(FieldsOfFiles, OfGridsThatAreNotLoadedArePassedOverUpToTheEndsOfTheRanges) {
    Plot3DFile_s& grid = write("x", describeGrid(twoGrids));
    options.kRange = {1, 2, 1};
    selectGrids({2});
    ASSERT_TRUE(load({step(&grid)}));
    const std::int64_t shortField = 4 * 2 * 3 * 2;
    EXPECT_EQ(grid.varOffsets[1] - grid.varOffsets[0], shortField);
    EXPECT_EQ(grid.varOffsets[3] - grid.varOffsets[0], 3 * shortField);
}

TEST_F(FieldsOfFiles, OfUnstructuredGridsTakeNoRange) {
    const FileDescription_s grid = describeGrid({{11, 5, 0}}, Layout_e::Unstructured);
    options.iRange = {2, 3, 1};
    ASSERT_TRUE(load({step(&write("x", grid))}));
    EXPECT_EQ(state(1, 1), FieldState_e::Deferred);
    EXPECT_EQ(values(1, 3), fieldOf(grid, 0, 2));
}

TEST_F(FieldsOfFiles, AreAnnouncedWithTheTailOfTheFilesName) {
    const std::string name = std::string(150, 'n') + "0123456789.abcdef";
    ASSERT_TRUE(load({step(&write(name, describeGrid(oneGrid)))}));
    EXPECT_EQ(host().log().progress.texts(),
              (Texts{"Setting up Zone=001, Var=001 from Grid 001 in ...0123456789.abcdef",
                     "Setting up Zone=001, Var=002 from Grid 001 in ...0123456789.abcdef",
                     "Setting up Zone=001, Var=003 from Grid 001 in ...0123456789.abcdef"}));
}

TEST_F(FieldsOfFiles, AreAnnouncedWithWholeCharactersOfTheFilesName) {
    const std::string tail = "\xC3\xA9\xE7\xBF\xBC"
                             "0123456789.abcd";
    ASSERT_TRUE(load({step(&write("wing-" + tail, describeGrid(oneGrid)))}));
    EXPECT_EQ(host().log().progress.texts().front(),
              "Setting up Zone=001, Var=001 from Grid 001 in ..." + tail);
}

TEST_F(FieldsOfFiles, AreSetUpNoFurtherAfterAnInterruption) {
    Plot3DFile_s& grid = write("x", describeGrid(twoGrids));
    host().interruptAtStep(2);
    EXPECT_FALSE(load({step(&grid)}));
    EXPECT_EQ(deferredCount(), 1);
    EXPECT_EQ(grid.varOffsets[5], -1);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FieldsOfFiles, WithoutMemoryAtTheHostAreTold) {
    Plot3DFile_s& grid = write("x", describeGrid(oneGrid), text());
    host().failCall("QuorUtilDataValueAlloc", 2);
    EXPECT_FALSE(load({step(&grid)}));
    EXPECT_EQ(messages(), Texts{"Unable to allocate memory for variable."});
}

// A host that gives neither an array nor a handle has no type for the field; that of I-blank is not
// asked for.
TEST_F(FieldsOfFiles, WithoutAWayToWriteThemAreTold) {
    host().settings().plainArrays = false;
    FileDescription_s grid = describeGrid(oneGrid);
    grid.hasIBlank = true;
    Plot3DFile_s& file = write("x", grid, text());
    for (const int field : {2, 4}) {
        host().clearFaults();
        host().failCall("QuorUtilDataValueGetWritableRef", field);
        EXPECT_FALSE(load({step(&file)}));
    }
    EXPECT_EQ(messages(), (Texts{"Datatype mismatch while attempting to replace a solution var.",
                                 "Error loading IBlank Variable."}));
}

TEST_F(FieldsOfFiles, ThatTheHostDoesNotTakeAreToldTwice) {
    Plot3DFile_s& grid = write("x", describeGrid(oneGrid));
    host().failCall("QuorUtilDataValueCustomLOD", 1);
    EXPECT_FALSE(load({step(&grid)}));
    EXPECT_EQ(messages(), (Texts{"Failed to set up the variable.", "Error loading Variable."}));
}

TEST_F(FieldsOfFiles, OfIBlankThatTheHostDoesNotTakeAreToldTwice) {
    FileDescription_s grid = describeGrid(oneGrid);
    grid.hasIBlank = true;
    Plot3DFile_s& file = write("x", grid);
    host().failCall("QuorUtilDataValueCustomLOD", 4);
    EXPECT_FALSE(load({step(&file)}));
    EXPECT_EQ(messages(),
              (Texts{"Failed to set up the variable.", "Error loading IBlank Variable."}));
}

// A text of 30 points that ends after its third variable, in the middle of I-blank.
TEST_F(FieldsOfFiles, ThatTheFileBreaksOffAreTold) {
    FileDescription_s grid = describeGrid(oneGrid);
    grid.hasIBlank = true;
    Plot3DFile_s& file = write("x", grid, text());
    const auto path = std::filesystem::path(file.fileName.str());
    std::filesystem::resize_file(path, std::filesystem::file_size(path) - 7);
    EXPECT_FALSE(load({step(&file)}));
    std::filesystem::resize_file(path, 40);
    EXPECT_FALSE(load({step(&file)}));
    EXPECT_EQ(messages(), (Texts{"Error loading IBlank Variable.", "Error loading Variable."}));
}

// The same of a grid that is not loaded: its text has to be read past all the same.
TEST_F(FieldsOfFiles, OfGridsThatAreNotLoadedMustBeWhole) {
    Plot3DFile_s& file = write("x", describeGrid(twoGrids), text());
    std::filesystem::resize_file(file.fileName.str(), 60);
    selectGrids({2});
    EXPECT_FALSE(load({step(&file)}));
    EXPECT_EQ(messages(), Texts{"Error loading Variable."});
}

TEST_F(FieldsOfFiles, OfOtherPrecisionThanTheZonesAreTold) {
    makeDataSet({"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"});
    makeZone(oneGrid[0], 8);
    existingZoneCount = 1;
    shape.numSolutionVars = 5;
    for (const FileForm_s& form : {binary(ByteOrder_e::Little, Precision_e::Double), text()}) {
        Plot3DFile_s& solution = write("q", describeSolution(oneGrid, 0.0), form);
        solution.isDoublePrecision = true;
        TimeSteps steps = {step(nullptr, &solution)};
        EXPECT_FALSE(addZones(steps));
    }
    const std::string told = "Datatype mismatch while attempting to replace a solution var.";
    EXPECT_EQ(messages(), (Texts{told, told}));
}

// A stretch that a segment boundary cuts: the walk goes on behind the markers of both segments.
TEST_F(FieldsOfFiles, AcrossASegmentBoundaryArePassedOverWithItsMarkers) {
    makeDataSet({"X"});
    makeZone({7, 1, 1}, 1);
    Plot3DFile_s& file = writeBytes("x", std::string(100, '\0'));
    file.encoding = Plot3DEncoding_FortranUnformatted;
    file.dataStructure = Plot3DDataStructure_1D;
    file.numVars = 1;
    file.gridDims = {{7, 1, 1}};
    file.segmentBoundaries = {24, 60};
    ASSERT_TRUE(openPlot3DFile(file) && file.stream->seek(16));
    const Plot3DItemContext_s context = makeItemContext(options, 1, 1);
    EXPECT_TRUE(setUpVariableItem(file, 0, 0, true, 0, wholeField, false, true, context));
    EXPECT_EQ(file.stream->tell(), 16 + 4 * 7 + 2 * 4);
}

TEST_F(FieldsOfFiles, OfUnknownKindAreDone) {
    Plot3DFile_s& file = recordOf("x");
    Plot3DItemContext_s context = makeItemContext(options, 1, 1);
    const auto unknown = static_cast<Plot3DItemKind_e>(7);
    EXPECT_TRUE(dispatchItem(file, unknown, 0, 0, true, 0, 0, true, &context));
}

TEST_F(FieldsOfFiles, OfASolutionWithIBlankAreRefused) {
    Plot3DFile_s& solution = write("q", describeSolution(oneGrid, 0.0));
    solution.hasIBlank = true;
    ASSERT_TRUE(openPlot3DFile(solution));
    Plot3DItemContext_s context = makeItemContext(options, 1, 1);
    EXPECT_FALSE(scanFile(solution, nullptr, context));
    EXPECT_EQ(messages(), Texts());
}

} // namespace
