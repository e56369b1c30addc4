// Index for VisIt's reader of PLOT3D files: a line for each thing, the solutions as a pattern.
// Notes on originals stand ahead of it, as comments.
#pragma once

#include "index/contents/IndexFormat.h"

namespace plot3d::program {

class Vp3dIndex final : public IndexFormat {
public:
    void write(const IndexedData& data, Originals& originals, const std::filesystem::path& file,
               const Watch& watch) const override;
    std::vector<OriginalMark_s> readMarks(const std::filesystem::path& file) const override;
};

} // namespace plot3d::program
