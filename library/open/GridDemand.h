// Values need the grid on which they stand.
#pragma once

#include <string>

#include <plot3d/DataSet.h>

namespace plot3dlib {

/// The file in the folder of `file` that is a grid file by its name, of several the one whose name
/// begins most like that of `file`; as the user would type it. Empty if there is none.
std::string gridFileBeside(const std::string& file);

/// Throws Error (Refused) if there are solution or function files, and no grid file.
void demandGrid(const plot3d::FileLists& files);

} // namespace plot3dlib
