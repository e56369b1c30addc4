// The words in which the looks at a file are told.
#pragma once

#include <cstddef>
#include <string>

#include <plot3d/FileInfo.h>

#include "console/counts/Counts.h"
#include "inspect/reading/Reading.h"

namespace plot3dlib {

using console::counted;
using console::grouped;

const char* wordOf(plot3d::FileKind kind);
const char* wordOf(plot3d::Layout layout);
const char* wordOf(plot3d::Style style);

/// "3-D whole, one grid, 32-bit", as far as it means something for the encoding.
std::string wordsOf(const io::Plot3DFileStructure_s& structure);
/// "2 x 3 x 5".
std::string sizeWords(const Reading_s& reading, std::size_t gridIndex);
/// "in Y of grid 2".
std::string wordsOf(const Place_s& place, const Reading_s& reading);

/// A misfit of which nothing is known but what it is.
plot3d::Misfit misfitOf(std::string what);

} // namespace plot3dlib
