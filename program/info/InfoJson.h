// Files for programs: JSON in the schema "plot3d.info/1", whose names are fixed and may only grow.
// Every key is always there; null stands where a thing has no meaning or is not known.
#pragma once

#include <plot3d/FileInfo.h>

#include "console/JsonStream.h"

namespace plot3d::program {

/// The object of one file, as a value of the list "files".
void writeFile(console::JsonStream& json, const FileInfo& info);

} // namespace plot3d::program
