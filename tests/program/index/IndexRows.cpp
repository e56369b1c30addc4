#include "IndexRows.h"

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

} // namespace

bool canSay(const std::string& ending, const MatrixCase_s& tested) {
    if (!isInFile(tested))
        return false;
    if (ending == "xmf2")
        return tested.layout.layout != Layout_e::OneD;
    if (ending == "vp3d" && tested.layout.kind == FileKind_e::Function)
        return false;
    return (ending != "p3d" && ending != "vp3d") || isPlain(tested);
}

} // namespace quorvia::testsupport
