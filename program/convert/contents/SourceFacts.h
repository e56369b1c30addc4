// What the files of a data set say of themselves and the data set does not keep: which variables
// stand in which file, the form of the numbers, the scalars to the bit. Needed to write the same
// files again.
#pragma once

#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/FileInfo.h>
#include <plot3d/Watch.h>

#include "convert/contents/FileForm.h"

namespace plot3d::program {

struct SourceFacts_s {
    FileForm_s form; // of the first grid file, without one of the first solution or function file
    Style style = Style::Classic;
    int speciesCount = 0;
    int solutionVariables = 0;          // of the data set, that come of a solution file
    std::vector<int> functionVariables; // likewise, of each function file of a time
    /// Both by zone of the data set, and empty where the files were not looked at. Zones of one
    /// file may have different times, so that these don't tell the files apart.
    std::vector<std::size_t> zoneFiles; // from 0, in the order of time
    std::vector<std::vector<double>> zoneScalars;
};

/// Looks at the files again. Throws Error.
SourceFacts_s readSourceFacts(const DataSet& data, const Watch& watch);

} // namespace plot3d::program
