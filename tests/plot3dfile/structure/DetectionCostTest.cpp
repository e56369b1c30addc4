// What detection asks of the disk, and that no file whatsoever can hurt it.
#include <cstdlib>
#include <random>

#include "StructureTest.h"

namespace quorvia::quorutildataio {
namespace {

class DetectionCost : public StructureTest {
protected:
    static constexpr std::int64_t mostBytesRead = 64 * 1024;
    static constexpr std::int64_t mostCalls = 200;

    /// Detects a sparse file with this header, and holds what it costs against the limits.
    Plot3DFilePtr detectSparse(const FileBytes& header, std::int64_t size,
                               bool isSolutionOrFunction) {
        disk.putSparse("huge", header.str(), size);
        disk.resetCounts();
        Plot3DFileBuilder builder(options);
        auto file = buildPlot3DFile(builder, "huge", isSolutionOrFunction);
        EXPECT_LE(disk.bytesRead, mostBytesRead);
        // Beside its reads each opening costs at most an open, two looks at the size, and a close.
        EXPECT_LE(disk.readCount + 4 * std::ssize(disk.opened), mostCalls);
        return file;
    }
};

TEST_F(DetectionCost, IsTheSameForAMegabyteAndForEightGigabytes) {
    for (const std::int32_t k : {7, 66000}) {
        const std::int64_t size = 12 + std::int64_t{12} * 101 * 103 * k;
        auto file = detectSparse(FileBytes().integers({101, 103, k}), size, gridFile);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(file->gridDims[0], (Plot3DGridDims_s{101, 103, k}));
    }
}

TEST_F(DetectionCost, IsBoundedForTheLastCandidateOfTheSecondSearch) {
    // An unstructured grid of a billion nodes, in double precision and the other byte order.
    FileBytes header(Order_e::Swapped);
    header.integers({1000000007, 0, 100000007});
    const std::int64_t size = 12 + std::int64_t{24} * 1000000007 + std::int64_t{16} * 100000007;
    auto file = detectSparse(header, size, gridFile);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->dataStructure, Plot3DDataStructure_Unstructured);
}

TEST_F(DetectionCost, IsBoundedForAFileThatFitsNothing) {
    const std::int64_t size = std::int64_t{8} << 30;
    EXPECT_EQ(detectSparse(FileBytes().integers({101, 103, 66000}), size, gridFile), nullptr);
    EXPECT_EQ(detectSparse(FileBytes().integers({101, 103, 66000}), size, solutionOrFunction),
              nullptr);
}

TEST_F(DetectionCost, IsBoundedForAnAbsurdCountOfGrids) {
    const std::int64_t size = std::int64_t{8} << 30;
    const FileBytes header = FileBytes().integers({500000000, 1, 1, 1});
    EXPECT_EQ(detectSparse(header, size, gridFile), nullptr);
}

// ---- Random files -------------------------------------------------------------------------------

/// Detection of files that nobody would write. The seed is printed, and taken from
/// PLOT3D_TEST_SEED.
class DetectionOfNoise : public StructureTest {
protected:
    DetectionOfNoise() : seed(chooseSeed()), random(seed) {
        RecordProperty("seed", std::to_string(seed));
    }

    static std::uint32_t chooseSeed() {
        const char* chosen = std::getenv("PLOT3D_TEST_SEED");
        return chosen != nullptr ? static_cast<std::uint32_t>(std::strtoul(chosen, nullptr, 10))
                                 : std::random_device()();
    }

    std::int32_t below(std::int32_t limit) {
        return std::uniform_int_distribution<std::int32_t>(0, limit - 1)(random);
    }

    std::string noise(std::int32_t length) {
        std::string bytes;
        for (std::int32_t index = 0; index < length; ++index)
            bytes.push_back(static_cast<char>(below(256)));
        return bytes;
    }

    std::string tokens(std::int32_t count) {
        const char* const words[] = {"1", "2",  "3",      "\n",   "\n",  "0",   "-1", "2147483647",
                                     "7", "3*", "99*0.5", "4*\n", "0*5", "1.5", "*",  "1e3"};
        std::string text;
        for (std::int32_t index = 0; index < count; ++index)
            text += std::string(words[below(std::size(words))]) + " ";
        return text;
    }

    /// Small counts, as headers have them, then noise.
    std::string plausibleHeader() {
        FileBytes bytes(below(2) == 0 ? Order_e::Native : Order_e::Swapped);
        for (std::int32_t count = below(12); count >= 0; --count)
            bytes.integers({below(20) == 0 ? 2147483647 - below(3) : below(6) - 1});
        return bytes.str() + noise(below(300));
    }

    /// A good file with a few bytes changed, cut short or padded.
    std::string mutatedFile() {
        std::string bytes =
            below(2) == 0 ? FileBytes().integers({2, 2, 3, 5, 7, 3, 2}).equalReals(3 * 72).str()
                          : FileBytes()
                                .record(FileBytes().integers({2, 3, 5, 2, 3}))
                                .record(FileBytes().equalReals(14))
                                .record(FileBytes().equalReals(60))
                                .str();
        for (std::int32_t count = below(4); count >= 0; --count)
            bytes[static_cast<std::size_t>(below(40))] = static_cast<char>(below(256));
        bytes.resize(bytes.size() - static_cast<std::size_t>(below(2) * below(20)) +
                     static_cast<std::size_t>(below(2) * below(20)));
        return bytes;
    }

    void expectBounded(const std::string& bytes) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const auto size = static_cast<std::int64_t>(bytes.size());
        for (const bool isSolutionOrFunction : {gridFile, solutionOrFunction})
            for (const bool autoDetect : {true, false}) {
                options.autoDetect = autoDetect;
                options.dataStructure = static_cast<Plot3DDataStructure_e>(below(5));
                options.style = static_cast<Plot3DStyle_e>(below(4));
                options.isMultiGrid = below(2) == 0;
                disk.resetCounts();
                detect(bytes, isSolutionOrFunction);
                // Each trial may read its header, which the file can't exceed, and two searches
                // make at most 160 trials.
                EXPECT_LE(disk.bytesRead, 164 * size);
            }
    }

    std::uint32_t seed;
    std::mt19937 random;
};

TEST_F(DetectionOfNoise, ReadsABoundedNumberOfBytes) {
    for (int round = 0; round < 300; ++round) {
        expectBounded(noise(below(200)));
        expectBounded(tokens(below(60)));
        expectBounded(plausibleHeader());
        expectBounded(mutatedFile());
    }
}

} // namespace
} // namespace quorvia::quorutildataio
