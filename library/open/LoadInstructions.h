// What the add-on is told to load.
#pragma once

#include <string>
#include <vector>

#include <plot3d/DataSet.h>

namespace plot3dlib {

/// Load instructions in the standard syntax (docs/instructions.md): each file is looked at by
/// itself unless the options say otherwise, zones are tied into strands, and times come from the
/// names of files where they hold none. `withBoundary`: a boundary file lies beside the first grid
/// file. What the options say by key and value comes last, and so has the last word.
std::vector<std::string> composeInstructions(const plot3d::FileLists& files,
                                             const plot3d::OpenOptions& options, bool withBoundary);

} // namespace plot3dlib
