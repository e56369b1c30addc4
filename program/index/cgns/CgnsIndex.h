// Index as a CGNS file: HDF5 whose fields are external data sets, in the original files.
#pragma once

#include "index/contents/IndexFormat.h"

namespace plot3d::program {

class CgnsIndex final : public IndexFormat {
public:
    void write(const IndexedData& data, Originals& originals, const std::filesystem::path& file,
               const Watch& watch) const override;
    std::vector<OriginalMark_s> readMarks(const std::filesystem::path& file) const override;
};

} // namespace plot3d::program
