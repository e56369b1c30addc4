// Every file of the matrix through each index that can tell of it, read by readers of others, bit
// for bit; the others are refused with the command that makes a copy.
#include <filesystem>

#include "IndexFixture.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::Encoding_e;
using plot3dwriter::FileKind_e;
using plot3dwriter::Layout_e;

/// Text, and records that tell planes from whole fields.
bool isInFile(const MatrixCase_s& tested) {
    const bool hasPlanes = tested.layout.layout == Layout_e::ThreeDPlanes;
    return tested.form.encoding != Encoding_e::Text &&
           !(hasPlanes && tested.form.encoding == Encoding_e::Fortran);
}

/// What ParaView's and VisIt's readers of PLOT3D read.
bool isPlain(const MatrixCase_s& tested) {
    const auto& [layout, form] = tested;
    const bool isOtherStyle =
        layout.kind == FileKind_e::SwiftSolution || layout.kind == FileKind_e::OverflowSolution;
    const bool hasWideMarkers = form.encoding == Encoding_e::Fortran && form.markerBytes == 8;
    // The grids of these files have a time each, which other readers have for a file.
    const bool hasTimes = layout.kind == FileKind_e::ClassicSolution && layout.isMultiGrid;
    return !hasTimes && layout.layout != Layout_e::OneD &&
           layout.layout != Layout_e::Unstructured && !isOtherStyle && !hasWideMarkers;
}

bool canSay(const std::string& ending, const MatrixCase_s& tested) {
    if (!isInFile(tested))
        return false;
    if (ending == "xmf2")
        return tested.layout.layout != Layout_e::OneD;
    if (ending == "vp3d" && tested.layout.kind == FileKind_e::Function)
        return false;
    return (ending != "p3d" && ending != "vp3d") || isPlain(tested);
}

class IndexMatrix : public IndexTest {
protected:
    static void expectRefused(const std::vector<std::string>& arguments,
                              const std::string& output) {
        std::string err;
        EXPECT_EQ(index(arguments, output, &err), 1) << output;
        EXPECT_NE(err.find("\ntry: plot3d convert "), std::string::npos) << err;
        EXPECT_FALSE(std::filesystem::exists(output));
    }
};

TEST_F(IndexMatrix, HoldsEveryValueOrRefuses) {
    int count = 0;
    for (const MatrixCase_s& tested : everyCase()) {
        const std::string where = folder(nameOf(tested));
        const OpenedCase_s opened = writeCase(where, tested);
        for (const std::string ending : {"cgns", "json", "xmf2", "p3d", "vp3d"}) {
            const std::string output = where + "/out." + ending;
            if (!canSay(ending, tested)) {
                expectRefused(arguments(opened), output);
                continue;
            }
            EXPECT_EQ(index(arguments(opened), output), 0) << output;
            ++count;
        }
        writeExpected(where, opened);
    }
    expectReadBack(count);
}

} // namespace
} // namespace quorvia::testsupport
