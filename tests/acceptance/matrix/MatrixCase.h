// The whole matrix of PLOT3D files: every layout that the format allows, in every form that its
// numbers can have on disk. Each case also says what the test files of it hold.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "support/SmallFiles.h"

namespace quorvia::testsupport {

/// One kind of file in one layout.
struct LayoutCase_s {
    plot3dwriter::FileKind_e kind = plot3dwriter::FileKind_e::Grid;
    plot3dwriter::Layout_e layout = plot3dwriter::Layout_e::ThreeDWhole;
    bool isMultiGrid = false;
    bool hasIBlank = false;
};

struct MatrixCase_s {
    LayoutCase_s layout;
    plot3dwriter::FileForm_s form;
};

/// 15 grid files and 29 solution and function files.
std::vector<LayoutCase_s> everyLayout();
/// Every layout in every form of SmallFiles.
std::vector<MatrixCase_s> everyCase();

/// Of letters, digits and underscores.
std::string nameOf(const LayoutCase_s& layout);
std::string nameOf(const plot3dwriter::FileForm_s& form);
std::string nameOf(const MatrixCase_s& matrixCase);
void PrintTo(const MatrixCase_s& matrixCase, std::ostream* out);

bool isSolution(plot3dwriter::FileKind_e kind);
bool isDouble(const plot3dwriter::FileForm_s& form);

/// The grid file that a solution or function file is loaded with. Some have I-blank, so that the
/// numbers of the variables behind it are tested both ways.
LayoutCase_s companionGrid(const LayoutCase_s& layout);

/// What the test file of a layout holds; values name their place.
plot3dwriter::FileDescription_s contentsOf(const LayoutCase_s& layout);

/// The file of a time step from 0 of two grids in 3-D, whole, with I-blank: each value is that of
/// its case, and seven more for each step. The times are 0.25 apart.
plot3dwriter::FileDescription_s contentsOfStep(plot3dwriter::FileKind_e kind, int step);

/// A value of the file of a case: indices from 0; narrowed by the file if it is of single
/// precision.
double valueAt(plot3dwriter::FileKind_e kind, std::int32_t grid, std::int32_t variable,
               std::int64_t i, std::int64_t j, std::int64_t k);
std::int32_t iblankAt(std::int32_t grid, std::int64_t i, std::int64_t j, std::int64_t k);
std::int32_t cornerAt(std::int32_t grid, std::int64_t element, std::int32_t corner);

} // namespace quorvia::testsupport
