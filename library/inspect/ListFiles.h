// Files that list words beside the data: name files and boundary files.
#pragma once

#include <plot3d/FileInfo.h>

#include "inspect/reading/ExaminedFile.h"

namespace plot3dlib {

/// Whether the file begins as a boundary file does.
bool beginsAsBoundaryFile(ExaminedFile& file);

/// Fill kind, names, account, and what is wrong.
void inspectNameFile(ExaminedFile& file, plot3d::FileInfo& info);
void inspectBoundaryFile(ExaminedFile& file, plot3d::FileInfo& info);

} // namespace plot3dlib
