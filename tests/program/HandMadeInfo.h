// Records of files as plot3d::inspect gives them, made by hand.
#pragma once

#include <plot3d/FileInfo.h>

namespace plot3d::program {

/// A solution of one grid in plain binary, every byte used.
inline FileInfo wholeSolution() {
    FileInfo info;
    info.file = "comb.q";
    info.ok = true;
    info.kind = FileKind::Solution;
    info.encoding = Encoding::Binary;
    info.byteOrder = ByteOrder::Big;
    info.precision = 32;
    info.layout = Layout::ThreeDWhole;
    info.style = Style::Classic;
    info.grids = {{57, 33, 25}};
    info.variables = 5;
    info.scalars = {{0.5, 2.0, 1e6, 0.0}};
    info.bytes = {940528, 940528, 0, 0};
    return info;
}

/// Grids of three sizes in Fortran records.
inline FileInfo multiGrid() {
    FileInfo info;
    info.file = "multi.x";
    info.ok = true;
    info.kind = FileKind::Grid;
    info.encoding = Encoding::Fortran;
    info.markerBytes = 4;
    info.byteOrder = ByteOrder::Little;
    info.precision = 64;
    info.layout = Layout::ThreeDWhole;
    info.multiGrid = true;
    info.iBlank = true;
    info.grids = {{2, 3, 5}, {2, 3, 5}, {7, 3, 5}};
    info.variables = 3;
    info.bytes = {5000, 5000, 0, 0};
    return info;
}

/// A file that no reading fits, with four trials.
inline FileInfo refused() {
    FileInfo info;
    info.file = "my blunt.q";
    info.encoding = Encoding::Binary;
    info.byteOrder = ByteOrder::Big;
    info.bytes = {819712, 0, 0, 819712};
    Misfit misfit;
    misfit.what = "484 bytes too many";
    misfit.byte = 819228;
    misfit.expected = "the file's end";
    misfit.found = "484 bytes";
    info.problem = {misfit, {"plot3d", "info", "--why", "my blunt.q"}};
    Candidate solution;
    solution.kind = FileKind::Solution;
    solution.style = Style::Classic;
    solution.byteOrder = ByteOrder::Big;
    Candidate blanked = solution;
    blanked.iBlank = true;
    Misfit impossible;
    impossible.what = "there is no I-blank in such a file";
    info.trials = {{solution, misfit}, {blanked, misfit}, {blanked, impossible}, {solution, {}}};
    return info;
}

} // namespace plot3d::program
