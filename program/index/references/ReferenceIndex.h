// Index as references in JSON, by which fsspec shows the originals as a zarr store: an array for
// each field, with one chunk, of shape (k, j, i), called "<zone number>/<variable>".
#pragma once

#include "index/contents/IndexFormat.h"

namespace plot3d::program {

class ReferenceIndex final : public IndexFormat {
public:
    void write(const IndexedData& data, Originals& originals, const std::filesystem::path& file,
               const Watch& watch) const override;
    std::vector<OriginalMark_s> readMarks(const std::filesystem::path& file) const override;
};

} // namespace plot3d::program
