// The PLOT3D files that the program writes are those of the independent writer, to the byte.

#include <algorithm>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "acceptance/matrix/MatrixCase.h"
#include "convert/plot3d/Plot3DWriter.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "program/convert/DescribedContents.h"
#include "support/BytesOfFile.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3d;
using namespace plot3d::program;
using plot3dwriter::Encoding_e;
using plot3dwriter::FileDescription_s;
using plot3dwriter::FileKind_e;

/// Integers that mean nothing are not kept.
FileDescription_s described(const LayoutCase_s& layout) {
    FileDescription_s contents = contentsOf(layout);
    contents.triangleTag = nullptr;
    return contents;
}

Layout layoutOf(plot3dwriter::Layout_e layout) {
    switch (layout) {
    case plot3dwriter::Layout_e::OneD:
        return Layout::OneD;
    case plot3dwriter::Layout_e::TwoD:
        return Layout::TwoD;
    case plot3dwriter::Layout_e::ThreeDWhole:
        return Layout::ThreeDWhole;
    case plot3dwriter::Layout_e::ThreeDPlanes:
        return Layout::ThreeDPlanes;
    case plot3dwriter::Layout_e::Unstructured:
        return Layout::Unstructured;
    }
    return Layout::ThreeDWhole;
}

FormWishes_s wishesFor(const LayoutCase_s& layout, const plot3dwriter::FileForm_s& form) {
    FormWishes_s wishes;
    wishes.encoding = form.encoding == Encoding_e::Text     ? Encoding::Text
                      : form.encoding == Encoding_e::Binary ? Encoding::Binary
                                                            : Encoding::Fortran;
    wishes.markerBytes = form.markerBytes;
    wishes.order =
        form.byteOrder == plot3dwriter::ByteOrder_e::Little ? ByteOrder::Little : ByteOrder::Big;
    wishes.precision = isDouble(form) ? ValueType::Float64 : ValueType::Float32;
    wishes.layout = layoutOf(layout.layout);
    wishes.multiGrid = layout.isMultiGrid;
    wishes.original.segmentBytes = form.maxSegmentBytes;
    return wishes;
}

class Plot3DFiles : public ::testing::TestWithParam<MatrixCase_s> {
protected:
    const TemporaryDirectory directory_;
};

TEST_P(Plot3DFiles, AreThoseOfTheWitness) {
    const auto& [layout, form] = GetParam();
    const bool isGrid = layout.kind == FileKind_e::Grid;
    const FileDescription_s grid = described(isGrid ? layout : companionGrid(layout));
    const auto other = isGrid ? std::nullopt : std::optional(described(layout));
    DescribedContents contents(grid, other, ValueType::Float64);
    const Written_s written =
        Plot3DWriter().write(contents, {directory_.file("out.x"), false, wishesFor(layout, form)});
    ASSERT_EQ(written.files.size(), isGrid ? 1U : 2U);
    EXPECT_EQ(bytesOfFile(written.files[0]), bytesOf(grid, form));
    if (other) {
        EXPECT_EQ(bytesOfFile(written.files[1]), bytesOf(*other, form));
    }
}

INSTANTIATE_TEST_SUITE_P(Every, Plot3DFiles, ::testing::ValuesIn(everyCase()),
                         [](const auto& tested) { return nameOf(tested.param); });

TEST(Plot3DFilesInSegments, AreCutAsTheWitnessCutsThem) {
    const TemporaryDirectory directory;
    const LayoutCase_s layout = {FileKind_e::Grid, plot3dwriter::Layout_e::ThreeDWhole, true, true};
    plot3dwriter::FileForm_s form = fortran();
    for (const std::int64_t segmentBytes : {1, 7, 64, 241}) {
        form.maxSegmentBytes = segmentBytes;
        DescribedContents contents(described(layout), std::nullopt, ValueType::Float32);
        const std::string path = directory.file("out.x");
        Plot3DWriter().write(contents, {path, true, wishesFor(layout, form)});
        EXPECT_EQ(bytesOfFile(path), bytesOf(described(layout), form)) << segmentBytes;
    }
}

/// Whether it is noted that functions of that name will lose it.
bool isNoted(const std::string& name) {
    const TemporaryDirectory directory;
    const LayoutCase_s layout = {FileKind_e::Function, plot3dwriter::Layout_e::ThreeDWhole, false,
                                 false};
    DescribedContents contents(described(companionGrid(layout)), described(layout),
                               ValueType::Float64);
    contents.nameFunctions(name);
    const std::vector<std::string> notes =
        Plot3DWriter()
            .write(contents, {directory.file("out.x"), false, wishesFor(layout, fortran())})
            .notes;
    return std::any_of(notes.begin(), notes.end(), [](const std::string& note) {
        return note.starts_with("PLOT3D files hold no names; ");
    });
}

TEST(Plot3DFunctionNames, AreNotNotedWhereReadersGiveTheSame) {
    for (const char* name : {"F1V1", "F0V0", "F12V345", "F01V007"})
        EXPECT_FALSE(isNoted(name)) << name;
}

TEST(Plot3DFunctionNames, AreNotedWhereReadersGiveOthers) {
    for (const char* name :
         {"",      "F",     "V",      "FV",    "F1",     "F1V",     "FV1",   "V1F1",
          "f1v1",  "F1v1",  " F1V1",  "F1V1 ", "F1V1\n", "F1V1V1",  "F1VV1", "FF1V1",
          "F-1V1", "F1V+1", "F1.0V1", "F1V1x", "xF1V1",  "pressure"})
        EXPECT_TRUE(isNoted(name)) << name;
}

} // namespace
} // namespace quorvia::testsupport
