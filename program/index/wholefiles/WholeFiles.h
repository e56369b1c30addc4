// A data set as some readers want it told: not where its fields lie, but its files as a whole and
// the one form that all of them have.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <plot3d/FileInfo.h>

#include "index/contents/IndexedData.h"

namespace plot3d::program {

struct WholeFilesStep_s {
    double time = 0.0;
    std::string grid;
    std::string solution; // empty: none
    std::string function; // empty: none
};

struct WholeFiles_s {
    FileInfo form;         // of the first grid file
    FileInfo function;     // of the first function file, if there is one
    bool isSeries = false; // several times
    std::vector<WholeFilesStep_s> steps;
};

/// Throws Error (Unsupported) for what readers of whole PLOT3D files don't read: text (their
/// numbers are simpler than PLOT3D's), planes, 1-D, unstructured, markers of 8 bytes, styles other
/// than Classic and Function, files of several forms or described by hand, boundaries, and a part
/// of the zones or variables.
WholeFiles_s wholeFilesOf(const IndexedData& data);

} // namespace plot3d::program
