// One zone as a file of VTK: .vts (StructuredGrid) for an ordered zone, .vtu (UnstructuredGrid) for
// an unstructured one.
#pragma once

#include <string>

#include "convert/contents/Contents.h"
#include "convert/output/ByteOutput.h"

namespace plot3d::program {

/// ".vts" or ".vtu".
const char* pieceExtension(const ContentZone_s& zone);

/// Throws Error (Unsupported) if a zone has no coordinates, which VTK can't do without.
void refuseWithoutCoordinates(const Contents& contents);

/// Missing coordinates of 1-D and 2-D data are zeros. Where there is I-blank, the cell array
/// vtkGhostType is 32 (hidden) for cells with a corner whose I-blank is 0, and 0 for others.
void writeZonePiece(Contents& contents, std::size_t zone, ByteOutput& out);

} // namespace plot3d::program
