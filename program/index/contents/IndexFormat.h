// What writes one format of index, and reads back what it noted of the originals. Each format has a
// folder with one of these, and one row in the table of IndexFormats.h.
#pragma once

#include <filesystem>
#include <vector>

#include <plot3d/Watch.h>

#include "index/contents/IndexedData.h"
#include "index/contents/Originals.h"

namespace plot3d::program {

class IndexFormat {
public:
    virtual ~IndexFormat() = default;

    /// Fills the empty file `file`, which takes its place as the index when it is whole; it names
    /// originals by the paths that `originals` gives, and notes their marks. Throws Error:
    /// Unsupported for what the format can't say.
    virtual void write(const IndexedData& data, Originals& originals,
                       const std::filesystem::path& file, const Watch& watch) const = 0;

    /// What an index noted. Throws Error (NotFound, Unreadable).
    virtual std::vector<OriginalMark_s> readMarks(const std::filesystem::path& file) const = 0;
};

} // namespace plot3d::program
