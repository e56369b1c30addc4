// Which boundary file a load uses: the one that lies beside the first grid file, under its name.
#pragma once

#include <string>
#include <vector>

#include <plot3d/DataSet.h>

namespace plot3dlib {

struct BoundaryUse_s {
    bool isLoaded = false;
    std::vector<std::string> notes; // of boundary files that were named and are not used
};

/// `named`: boundary files among those that the user named. `isWanted`: OpenOptions::boundaries.
BoundaryUse_s boundaryUse(const plot3d::FileLists& files, const std::vector<std::string>& named,
                          bool isWanted);

} // namespace plot3dlib
