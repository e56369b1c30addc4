// Index for ParaView's own reader of PLOT3D files, which VTK has too: JSON that names the files and
// their form. Notes on originals stand ahead of it, as comments.
#pragma once

#include "index/contents/IndexFormat.h"

namespace plot3d::program {

class P3dIndex final : public IndexFormat {
public:
    void write(const IndexedData& data, Originals& originals, const std::filesystem::path& file,
               const Watch& watch) const override;
    std::vector<OriginalMark_s> readMarks(const std::filesystem::path& file) const override;
};

} // namespace plot3d::program
