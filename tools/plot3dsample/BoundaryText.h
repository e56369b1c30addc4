// The boundary file that a case writes beside its grid file.
#pragma once

#include <string_view>
#include <vector>

#include "plot3dsample/Sample.h"

namespace quorvia::plot3dsample {

/// A face of a grid, or any other range of its points.
struct SampleBoundary_s {
    std::string_view name;
    int gridNumber;          ///< from 1
    std::string_view ranges; ///< first and last index in I, J, K, from 1; "$" is the last
};

/// The file `stem`.x.fvbnd.
SampleFile_s boundaryFile(std::string_view stem, const std::vector<SampleBoundary_s>& boundaries);

} // namespace quorvia::plot3dsample
