#include "plot3dsample/Doubt.h"

#include <algorithm>

namespace quorvia::plot3dsample {

namespace {

using plot3dwriter::Encoding_e;
using plot3dwriter::FileDescription_s;
using plot3dwriter::Precision_e;

/// X, Y and I-blank take as many bytes as X, Y and Z; two long reals as many as three short ones
/// and I-blank. A function file says itself how many variables it has.
bool hasDataOf3D(const FileDescription_s& file, const FileForm_s& form) {
    if (file.kind == FileKind_e::Function)
        return true;
    return file.kind == FileKind_e::Grid &&
           file.hasIBlank != (form.precision == Precision_e::Double);
}

/// In plain binary a count of one grid and two dimensions are three dimensions.
bool passesFor3D(const FileDescription_s& file, const FileForm_s& form) {
    return file.layout == Layout_e::TwoD && form.encoding == Encoding_e::Binary &&
           file.isMultiGrid && file.grids.size() == 1 && hasDataOf3D(file, form);
}

/// In text a count of grids on a line of its own is a 1-D header.
bool passesFor1D(const FileDescription_s& file, const FileForm_s& form) {
    return file.layout == Layout_e::Unstructured && form.encoding == Encoding_e::Text &&
           file.isMultiGrid;
}

bool hasPlanes(const FileDescription_s& file) {
    return file.layout == Layout_e::ThreeDPlanes &&
           std::any_of(file.grids.begin(), file.grids.end(),
                       [](const plot3dwriter::GridDims_s& grid) { return grid.k > 1; });
}

/// Only records show where a plane ends.
bool passesForWhole(const FileDescription_s& file, const FileForm_s& form) {
    return hasPlanes(file) && form.encoding != Encoding_e::Fortran;
}

/// The record of one plane of long reals is as long as that of two planes of short ones. Scalars
/// and I-blank tell the precision.
bool passesForShortReals(const FileDescription_s& file, const FileForm_s& form) {
    const bool isRealsAlone =
        file.kind == FileKind_e::Function || (file.kind == FileKind_e::Grid && !file.hasIBlank);
    return isRealsAlone && hasPlanes(file) && form.encoding == Encoding_e::Fortran &&
           form.precision == Precision_e::Double && file.grids.front().k == 2;
}

} // namespace

std::optional<Doubt_s> doubtAbout(const SampleFile_s& file, const FileForm_s& form) {
    if (!file.text.empty())
        return std::nullopt;
    if (passesFor3D(file.description, form))
        return Doubt_s{"a 3-D file", "--single"};
    if (passesFor1D(file.description, form))
        return Doubt_s{"a 1-D file", "--single"};
    if (passesForWhole(file.description, form))
        return Doubt_s{"a 3-D Whole file", "--encoding fortran4"};
    if (passesForShortReals(file.description, form))
        return Doubt_s{"a 3-D Whole file of 32-bit reals", "another --size"};
    return std::nullopt;
}

} // namespace quorvia::plot3dsample
