// What `quorhost load --json` needs of memory for a file of many small grids, from the opening of
// the library to the last byte of the JSON. Counted by allocations, so that neither machine nor
// allocator has a say.
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "AddOnMemory.h"
#include "app/Program.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

/// Grids of 2 x 2 x 2 points with three coordinates and five variables.
class ManyZones : public ::testing::Test {
protected:
    void writeFiles(std::size_t zones) const {
        for (const FileKind_e kind : {FileKind_e::Grid, FileKind_e::ClassicSolution}) {
            FileDescription_s description;
            description.kind = kind;
            description.isMultiGrid = true;
            description.grids.assign(zones, {2, 2, 2});
            if (kind == FileKind_e::ClassicSolution)
                description.scalars.assign(zones, {0.5, 0, 1e6, 0.25});
            description.value = [](auto...) { return 0.5; };
            const std::string file = kind == FileKind_e::Grid ? grid() : solution();
            ASSERT_EQ(writePlot3DFile(file, description, {}).problem, "");
        }
    }
    /// The most that the load held at one moment, in bytes.
    std::int64_t peakOfLoad() const {
        std::ostringstream out;
        std::ostringstream err;
        restartMemoryCount();
        EXPECT_EQ(host::run({"load", "--no-values", "--json", json(), "--addon", PLOT3D_ADDON_PATH,
                             grid(), solution()},
                            {out, err, 0}),
                  0)
            << err.str();
        return peakMemoryBytes();
    }

    std::string grid() const { return directory_.file("many.x"); }
    std::string solution() const { return directory_.file("many.q"); }
    std::string json() const { return directory_.file("outcome.json"); }

    TemporaryDirectory directory_;
};

// The rest of the 4 KiB that a zone may take is the allocator's, about 8 bytes for each block.
TEST_F(ManyZones, LoadAndJsonTakeLessThanFourKilobytesForEachZone) {
    constexpr std::int64_t zones = 20'000;
    constexpr std::int64_t mostBytes = 3'400;
    writeFiles(zones);
    EXPECT_LT(peakOfLoad() / zones, mostBytes);
    EXPECT_GT(std::filesystem::file_size(json()), 2000U * zones);
}

} // namespace
} // namespace quorvia::testsupport
