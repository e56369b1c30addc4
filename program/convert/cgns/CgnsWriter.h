// CGNS with HDF5 inside, through libcgns, with all values in the file: a base for each dimension of
// cells, zones with coordinates and solutions at the vertices, times as iterative data.
#pragma once

#include "convert/Writer.h"

namespace plot3d::program {

class CgnsWriter final : public Writer {
public:
    Written_s write(Contents& contents, const Target_s& target) override;
};

} // namespace plot3d::program
