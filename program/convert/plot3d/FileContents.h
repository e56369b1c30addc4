// One PLOT3D file from its first byte to its last: header, then grid after grid, as docs/format.md
// tells it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "convert/contents/Contents.h"
#include "convert/contents/FileForm.h"
#include "convert/output/ByteOutput.h"

namespace plot3d::program {

struct FilePlan_s {
    std::string path;
    FileKind kind = FileKind::Grid;     // Grid, Solution or Function
    Style style = Style::Classic;       // of a solution
    int speciesCount = 0;               // of an Overflow solution
    std::vector<std::size_t> zones;     // indices, one grid each
    std::vector<std::size_t> variables; // indices, I-blank apart
    std::optional<std::size_t> iBlank;  // of a grid file
    FileForm_s form;
};

/// Scalars ahead of the variables of each grid.
int scalarCount(const FilePlan_s& plan);

/// Writes the whole file. The plan must fit.
void writeFileContents(Contents& contents, const FilePlan_s& plan, ByteOutput& out);

} // namespace plot3d::program
