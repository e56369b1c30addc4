// Every file of the matrix through the library: each field has its values, bit for bit.
#include "OpenFixture.h"

namespace plot3dtest {
namespace {

using namespace writer;
using quorvia::testsupport::everyCase;
using quorvia::testsupport::isDouble;
using quorvia::testsupport::isSolution;
using quorvia::testsupport::MatrixCase_s;

class LibraryMatrix : public OpenTest, public ::testing::WithParamInterface<MatrixCase_s> {
protected:
    /// Without records nothing tells planes from whole fields, and whole fields are tried first.
    static FileReading detected(const WrittenFile_s& file) {
        const bool hasNoRecords = file.form.encoding != Encoding_e::Fortran;
        return file.layout.layout == Layout_e::ThreeDPlanes && hasNoRecords
                   ? FileReading::planesAsWhole(file)
                   : FileReading::asMeant(file);
    }
    static bool isText(const WrittenFile_s& file) { return file.form.encoding == Encoding_e::Text; }
    /// Text that no trial takes for what it is (docs/detection.md): it is described by hand.
    static bool needsDescription(const WrittenFile_s& grid) {
        const LayoutCase_s& layout = grid.layout;
        return isText(grid) && ((layout.layout == Layout_e::ThreeDPlanes && layout.hasIBlank) ||
                                (layout.layout == Layout_e::Unstructured && layout.isMultiGrid));
    }
    static plot3d::OpenOptions optionsFor(const WrittenFile_s& grid, FileKind_e kind) {
        plot3d::OpenOptions options;
        options.instructions = {{"ASCIIISDOUBLE", isDouble(grid.form) ? "Yes" : "No"},
                                {"ASCIIHASIBLANK", grid.layout.hasIBlank ? "Yes" : "No"}};
        if (!needsDescription(grid))
            return options;
        const bool isPlanes = grid.layout.layout == Layout_e::ThreeDPlanes;
        const bool isFunction = kind == FileKind_e::Function;
        options.instructions.insert(options.instructions.end(),
                                    {{"AUTODETECT", "No"},
                                     {"STYLE", isFunction ? "PLOT3DFUNCTION" : "PLOT3DCLASSIC"},
                                     {"DATASTRUCTURE", isPlanes ? "3DP" : "UNSTRUCTURED"},
                                     {"ISMULTIGRID", grid.layout.isMultiGrid ? "Yes" : "No"}});
        return options;
    }
    static plot3d::FieldKind expectedKind(const FileReading& file) {
        return file.state() == quorvia::host::FieldState_e::Deferred ? plot3d::FieldKind::InFile
                                                                     : plot3d::FieldKind::InMemory;
    }
};

TEST_P(LibraryMatrix, HasEveryValue) {
    const auto& [layout, form] = GetParam();
    const bool isGrid = layout.kind == FileKind_e::Grid;
    const WrittenFile_s grid = write("case.x", isGrid ? layout : companionGrid(layout), form);
    const FileReading gridReading =
        needsDescription(grid) ? FileReading::asMeant(grid) : detected(grid);
    const plot3d::OpenOptions options = optionsFor(grid, layout.kind);
    const std::size_t gridVariables =
        static_cast<std::size_t>(gridReading.variableCount()) + (gridReading.hasIBlank() ? 1 : 0);
    if (isGrid) {
        const auto data = plot3d::DataSet::open({grid.path}, options);
        ASSERT_EQ(data.zones().size(), grid.contents.grids.size());
        EXPECT_EQ(data.kind(0, 0), expectedKind(gridReading));
        return expectFields(data, gridReading, 0);
    }
    const WrittenFile_s other = write(isSolution(layout.kind) ? "case.q" : "case.f", layout, form);
    const auto data = plot3d::DataSet::open({other.path, grid.path}, options);
    ASSERT_EQ(data.zones().size(), grid.contents.grids.size());
    expectFields(data, gridReading, 0);
    expectFields(data, detected(other), gridVariables);
}

INSTANTIATE_TEST_SUITE_P(Every, LibraryMatrix, ::testing::ValuesIn(everyCase()),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace
} // namespace plot3dtest
