// Index as an XDMF file of version 2, whose data items seek in the original files. Readers of
// version 3 don't honour that, hence its own ending.
#pragma once

#include "index/contents/IndexFormat.h"

namespace plot3d::program {

class XdmfIndex final : public IndexFormat {
public:
    void write(const IndexedData& data, Originals& originals, const std::filesystem::path& file,
               const Watch& watch) const override;
    std::vector<OriginalMark_s> readMarks(const std::filesystem::path& file) const override;
};

} // namespace plot3d::program
