// From files as a user names them to lists by kind: by the rule of names that the add-on's own
// selection has, and where a name tells nothing, by a look into the file.
#pragma once

#include <string>
#include <vector>

#include <plot3d/DataSet.h>

namespace plot3dlib {

struct SortedFiles_s {
    plot3d::FileLists lists;                // each in natural order
    std::vector<std::string> boundaryFiles; // *.fvbnd
};

/// Throws plot3d::Error for a file that is not there, or of which no kind can be told, and for a
/// second name file. Files are looked into where names don't tell. The host lock must be held.
SortedFiles_s sortByKind(std::vector<std::string> files, const plot3d::Watch& watch);

/// Throws plot3d::Error (NotFound) if one of the files can't be opened for reading.
void demandFiles(const plot3d::FileLists& lists);

} // namespace plot3dlib
