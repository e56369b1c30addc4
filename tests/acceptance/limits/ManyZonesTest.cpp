// What `quorhost load --json` needs of memory for a file of many small grids, from the opening of
// the library to the last byte of the JSON. Counted by allocations, so that neither machine nor
// allocator has a say.
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include "AddOnMemory.h"
#include "app/Program.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

/// Grids of 2 x 2 x 2 points with three coordinates and five variables.
class ManyZones : public ::testing::Test {
protected:
    void writeFiles(std::size_t zones) const {
        SmallFiles files(directory_.path().string());
        files.grids.assign(zones, {2, 2, 2});
        EXPECT_EQ(files.grid("many.x"), grid());
        EXPECT_EQ(files.solution("many.q", 0.25), solution());
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
