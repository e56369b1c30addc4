// Words for what a file is: short ones that JSON and command lines use, and those for people.
#pragma once

#include <string>

#include <plot3d/FileInfo.h>

namespace plot3d::analysis {

/// Static texts, as the schema plot3d.info/1 has them: "grid", "fortran", "3DWhole", "little".
const char* wordOf(FileKind kind);
const char* wordOf(Encoding encoding);
const char* wordOf(Layout layout);
const char* wordOf(Style style);
const char* wordOf(ByteOrder order);

/// "3-D whole", "unstructured".
const char* captionOf(Layout layout);

/// "57 x 33 x 25", "57 x 33", "57"; of an unstructured grid "812 nodes, 0 triangles, 3,120
/// tetrahedra".
std::string sizeText(const GridSize& size, Layout layout);

/// Points of a structured grid, nodes of an unstructured one.
std::int64_t pointCount(const GridSize& size, Layout layout);

/// "all 940,528 bytes used", or what is missing or left over, and where.
std::string accountText(const ByteAccount& bytes);

/// "Mach 0.5, alpha 2 degrees, Reynolds 1e+06, time 0", as far as there are any.
std::string scalarsText(const Scalars& scalars);

/// "What (at byte 819,228, expected ..., found ...)", as far as it is known.
std::string misfitText(const Misfit& misfit);

} // namespace plot3d::analysis
