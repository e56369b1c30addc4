// Loads with boundary files, linked in with the reference host: files whose values name their
// places, and the sub-blocks that boundary zones must show.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "boundary/BoundaryFile.h"
#include "loader/LoaderFixture.h"

namespace quorvia::testsupport {

inline const GridList parentGrids = {{2, 3, 5}, {5, 3, 7}};

/// Points of a boundary, ends included, from 1.
struct Part_s {
    std::int32_t iStart, iEnd, jStart, jEnd, kStart, kEnd;
};

class BoundaryTest : public LoaderTest {
protected:
    BoundaryTest() { options.loadBoundary = true; }

    /// Writes the boundary file of the first grid file: each line a name and its numbers.
    void writeBoundaries(const std::string& gridFile, const Texts& names, const Texts& lines);
    /// A load that must succeed without a message.
    void loadWell();

    /// 0 for none.
    static std::int32_t parentOf(std::int32_t zone);

    /// The part of another zone's field, with a stride that never leaves out the last point.
    static Numbers partOf(std::int32_t zone, std::int32_t var, const Part_s& part,
                          std::int32_t skipI = 1, std::int32_t skipJ = 1, std::int32_t skipK = 1);
    /// All fields of a boundary zone are the part of its parent's.
    static void expectShows(std::int32_t boundaryZone, std::int32_t parent, const Part_s& part);
};

} // namespace quorvia::testsupport
