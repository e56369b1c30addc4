// The scalars ahead of each grid of a solution file, to the bit: what a data set keeps of them has
// six digits. docs/format.md tells where they stand.
#pragma once

#include <stop_token>
#include <vector>

#include <plot3d/FileInfo.h>

namespace plot3d::program {

struct SolutionScalars_s {
    int speciesCount = 0;                    // of an Overflow solution
    std::vector<std::vector<double>> ofGrid; // by grid, from 0
};

/// `info` is what the file was found to be: a solution file that is ok. A text file is read up to
/// the scalars of its last grid. Throws Error (Unreadable, Interrupted).
SolutionScalars_s readSolutionScalars(const FileInfo& info, const std::stop_token& stop);

} // namespace plot3d::program
