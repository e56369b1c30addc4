// A file as the model of sessions knows it: what was written into it, so that every value which a
// load makes of it is known beforehand. Written by tools/plot3dwriter; docs/format.md.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::sessions {

using plot3dwriter::Encoding_e;
using plot3dwriter::FileForm_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::GridDims_s;
using plot3dwriter::Layout_e;
using plot3dwriter::Precision_e;

/// One boundary of the boundary file beside a grid file; indices from 1, ends included.
struct Boundary_s {
    std::string name;
    std::int32_t gridNumber = 1;
    GridDims_s first;
    GridDims_s last;
};

struct FileModel_s {
    std::string name;        ///< in the folder of the session
    std::int32_t serial = 0; ///< no other file of the session has it; tells its values from theirs
    FileKind_e kind = FileKind_e::Grid;
    Layout_e layout = Layout_e::ThreeDWhole;
    FileForm_s form;
    bool isMultiGrid = true;
    bool hasIBlank = false;
    std::vector<GridDims_s> grids;
    std::int32_t functionCount = 0;     ///< variables of a function file
    double time = 0;                    ///< of a solution file, the same in each grid
    std::vector<Boundary_s> boundaries; ///< of a grid file; none: no boundary file beside it

    std::int32_t gridCount() const { return static_cast<std::int32_t>(grids.size()); }
    std::int32_t variableCount() const; ///< I-blank not counted
    bool isText() const { return form.encoding == Encoding_e::Text; }
    bool isDouble() const { return form.precision == Precision_e::Double; }
    bool isFunction() const { return kind == FileKind_e::Function; }
};

/// Coordinates of the layout: 1, 2 or 3.
std::int32_t coordinateCount(Layout_e layout);

/// Grid, variable and indices from 0; the value as it comes back from the file's precision.
double valueAt(const FileModel_s& file, std::int32_t grid, std::int32_t variable, std::int32_t i,
               std::int32_t j, std::int32_t k);
std::int32_t iBlankAt(const FileModel_s& file, std::int32_t grid, std::int32_t i, std::int32_t j,
                      std::int32_t k);

/// Corner of an element, from 0; the node from 1.
std::int32_t nodeAt(const FileModel_s& file, std::int32_t grid, std::int64_t element,
                    std::int32_t corner);

/// Writes the file, and its boundary file if it has one, into the folder. Throws
/// std::runtime_error.
void write(const FileModel_s& file, const std::string& folder);

/// The file in one line, for people.
std::string describe(const FileModel_s& file);

} // namespace quorvia::sessions
