// Every layout in every form: what was written is what is told.
#include "InspectFixture.h"

namespace plot3d {
namespace {

using quorvia::testsupport::contentsOf;
using quorvia::testsupport::isDouble;
using quorvia::testsupport::isSolution;
using writer::Encoding_e;
using writer::FileKind_e;
using writer::Layout_e;

class MatrixInspect : public InspectTest, public testing::WithParamInterface<MatrixCase_s> {
protected:
    static const LayoutCase_s& layout() { return GetParam().layout; }
    static const writer::FileForm_s& form() { return GetParam().form; }
    static bool isText() { return form().encoding == Encoding_e::Text; }

    static const char* name() {
        if (layout().kind == FileKind_e::Grid)
            return "wing.x";
        return layout().kind == FileKind_e::Function ? "wing.f" : "wing.q";
    }

    static FileKind kind() {
        if (layout().kind == FileKind_e::Grid)
            return FileKind::Grid;
        return layout().kind == FileKind_e::Function ? FileKind::Function : FileKind::Solution;
    }

    /// Without records only the integers of I-blank tell planes from whole fields, and nothing
    /// tells what belongs to unstructured grids.
    static Layout toldLayout() {
        const bool tellsPlanes =
            form().encoding == Encoding_e::Fortran || (isText() && layout().hasIBlank);
        switch (layout().layout) {
        case Layout_e::OneD:
            return Layout::OneD;
        case Layout_e::TwoD:
            return Layout::TwoD;
        case Layout_e::ThreeDPlanes:
            return tellsPlanes ? Layout::ThreeDPlanes : Layout::ThreeDWhole;
        case Layout_e::Unstructured:
            return kind() == FileKind::Grid ? Layout::Unstructured : Layout::ThreeDWhole;
        case Layout_e::ThreeDWhole:
            break;
        }
        return Layout::ThreeDWhole;
    }

    /// All 1-D solutions are alike.
    static std::optional<Style> toldStyle() {
        switch (layout().kind) {
        case FileKind_e::Grid:
            return std::nullopt;
        case FileKind_e::Function:
            return Style::Function;
        case FileKind_e::OverflowSolution:
            return Style::Overflow;
        case FileKind_e::SwiftSolution:
            return layout().layout == Layout_e::OneD ? Style::Classic : Style::Swift;
        case FileKind_e::ClassicSolution:
            break;
        }
        return Style::Classic;
    }

    static std::vector<GridSize> toldGrids() {
        std::vector<GridSize> sizes;
        const bool isNodesAlone =
            layout().layout == Layout_e::Unstructured && kind() != FileKind::Grid;
        for (const writer::GridDims_s& grid : contentsOf(layout()).grids)
            sizes.push_back(isNodesAlone ? GridSize{grid.i, 1, 1}
                                         : GridSize{grid.i, grid.j, grid.k});
        return sizes;
    }

    /// A 1-D function of 64-bit reals: i points, 2 variables; as a 2-D grid of 32-bit reals i x 2
    /// points take as many bytes.
    static bool isGridToo() {
        return layout().kind == FileKind_e::Function && layout().layout == Layout_e::OneD &&
               isDouble(form());
    }

    static void expectForm(const FileInfo& info) {
        const auto order =
            form().byteOrder == writer::ByteOrder_e::Big ? ByteOrder::Big : ByteOrder::Little;
        const bool isFortran = form().encoding == Encoding_e::Fortran;
        EXPECT_EQ(info.encoding, isText()    ? Encoding::Text
                                 : isFortran ? Encoding::Fortran
                                             : Encoding::Binary);
        EXPECT_EQ(info.markerBytes,
                  isFortran ? std::optional<int>(form().markerBytes) : std::nullopt);
        EXPECT_EQ(info.byteOrder, isText() ? std::nullopt : std::optional(order));
        EXPECT_EQ(info.precision,
                  isText() ? std::nullopt : std::optional<int>(isDouble(form()) ? 64 : 32));
    }

    static void expectScalars(const FileInfo& info) {
        const auto written = contentsOf(layout()).scalars;
        ASSERT_EQ(info.scalars.size(), written.size());
        for (std::size_t grid = 0; grid < written.size(); ++grid) {
            EXPECT_EQ(info.scalars[grid].mach, written[grid][0]);
            EXPECT_EQ(info.scalars[grid].alpha, written[grid][1]);
            EXPECT_EQ(info.scalars[grid].reynolds, written[grid][2]);
            EXPECT_EQ(info.scalars[grid].time, written[grid][3]);
        }
    }
};

TEST_P(MatrixInspect, TellsWhatWasWritten) {
    const FileInfo info = inspectBytes(name(), bytesOf(layout(), form()));
    ASSERT_TRUE(info.ok) << problemOf(info);
    EXPECT_EQ(info.kind, kind());
    EXPECT_EQ(info.layout, toldLayout());
    EXPECT_EQ(info.style, toldStyle());
    EXPECT_EQ(info.multiGrid, layout().isMultiGrid);
    EXPECT_EQ(info.iBlank, layout().hasIBlank);
    EXPECT_EQ(info.grids, toldGrids());
    EXPECT_EQ(info.variables, writer::variableCount(contentsOf(layout())));
    expectForm(info);
    expectScalars(info);
}

TEST_P(MatrixInspect, UsesAllBytes) {
    const std::string bytes = bytesOf(layout(), form());
    const FileInfo info = inspectBytes(name(), bytes);
    EXPECT_EQ(info.bytes.size, std::ssize(bytes));
    EXPECT_EQ(info.bytes.used, std::ssize(bytes));
    EXPECT_EQ(info.bytes.missing, 0);
    EXPECT_EQ(info.bytes.surplus, 0);
}

TEST_P(MatrixInspect, TellsTheKindWithoutAName) {
    const FileInfo info = inspectBytes("mesh.dat", bytesOf(layout(), form()));
    EXPECT_TRUE(info.ok) << problemOf(info);
    const bool isSecond = info.alsoFits == std::vector{kind()};
    EXPECT_EQ(info.kind, isSecond ? FileKind::Grid : kind());
    EXPECT_LE(isSecond, isGridToo());
}

/// A load takes it as it is told, or a warning says what to type.
TEST_P(MatrixInspect, WarnsOnlyWhereALoadNeedsToBeTold) {
    const FileInfo info = inspectBytes(name(), bytesOf(layout(), form()));
    const bool isLine = layout().layout == Layout_e::Unstructured && layout().isMultiGrid &&
                        layout().kind == FileKind_e::Grid;
    const bool needsWords = isText() && (layout().hasIBlank || isLine);
    EXPECT_EQ(info.warnings.size(), needsWords ? 1U : 0U) << warningOf(info);
}

INSTANTIATE_TEST_SUITE_P(Every, MatrixInspect, testing::ValuesIn(quorvia::testsupport::everyCase()),
                         [](const auto& tested) {
                             return quorvia::testsupport::nameOf(tested.param);
                         });

} // namespace
} // namespace plot3d
