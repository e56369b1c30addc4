// Detection where the disk or the memory fails. Neither may pass for a file that does not fit: the
// search ends, the user is told what it was, and nobody is asked to describe a file by hand.
#include <functional>
#include <utility>

#include "RecordFixture.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/detection/StructureDetection.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "support/AllocationFaults.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::cancelAllocationFault;
using testsupport::failNextAllocation;
using testsupport::FileBytes;
using testsupport::Order_e;
using testsupport::Texts;

constexpr bool solution = true;
constexpr std::int64_t enough = 1000000;
const std::vector<float> field(30, 0.5F); // of 2 x 3 x 5 points

std::string binaryGrid(Order_e order = Order_e::Native) {
    return FileBytes(order).integers({2, 3, 5}).reals(field).reals(field).reals(field).str();
}
std::string binarySolution() {
    FileBytes bytes = FileBytes().integers({2, 3, 5}).reals({0.5F, 0.5F, 0.5F, 0.5F});
    for (int variable = 0; variable < 5; ++variable)
        bytes.reals(field);
    return bytes.str();
}
std::string fortranGrid(int markerWidth) {
    return FileBytes(Order_e::Swapped, markerWidth)
        .record(FileBytes(Order_e::Swapped).integers({2, 3, 5}).str())
        .record(std::string(360, '\1'))
        .str();
}
std::string textSolution() {
    return std::string(300, ' ') + "2 3 5\n1 2 3 4\n" + std::string(1500, '1');
}

struct Sample_s {
    const char* name;
    std::string bytes;
    bool isSolution;
};

void PrintTo(const Sample_s& sample, std::ostream* out) {
    *out << sample.name;
}

class DetectionFaults : public testsupport::RecordFixture {
protected:
    DetectionFaults() { setLoadOptionDefaults(options); }

    Plot3DFilePtr detect(const std::string& bytes, bool isSolution = false) {
        disk.put("wing.x", bytes);
        Plot3DFileBuilder builder(options);
        return buildPlot3DFile(builder, "wing.x", isSolution);
    }
    /// A later file of a list, whose first is sound and by the options just like it.
    Plot3DFilePtr detectLater(const std::string& bytes, bool isSolution,
                              const std::function<void()>& arm) {
        options.uniformGridStructure = true;
        options.solutionsShareStructure = true;
        disk.put("first.x", bytes);
        disk.put("wing.x", bytes);
        Plot3DFileBuilder builder(options);
        const Plot3DFilePtr first = buildPlot3DFile(builder, "first.x", isSolution);
        arm();
        return buildPlot3DFile(builder, "wing.x", isSolution);
    }
    static std::string unreadable() { return "The file could not be read.\nFile: wing.x"; }
    static std::string outOfMemory() { return "Out of memory.\nFile: wing.x"; }

    Plot3DLoadOptions_s options;
};

class EachDetection : public DetectionFaults, public ::testing::WithParamInterface<Sample_s> {
protected:
    Plot3DFilePtr detectSample() { return detect(GetParam().bytes, GetParam().isSolution); }

    /// Lets each read go wrong in turn. It must be told, or make no difference.
    void spoilEachRead(std::int64_t& countdown, const std::function<Plot3DFilePtr()>& run) {
        const Plot3DFilePtr sound = run();
        ASSERT_NE(sound, nullptr);
        for (std::int64_t read = 1; read < enough; ++read) {
            host().clearLog();
            countdown = read;
            const Plot3DFilePtr found = run();
            if (countdown != 0)
                return void(countdown = 0); // there is no such read
            EXPECT_EQ(messages(), found != nullptr ? Texts() : Texts{unreadable()}) << read;
            if (found != nullptr)
                expectSame(*found, *sound, read);
        }
    }
    static void expectSame(const Plot3DFile_s& found, const Plot3DFile_s& sound,
                           std::int64_t read) {
        EXPECT_EQ(found.encoding, sound.encoding) << read;
        EXPECT_EQ(found.dataStructure, sound.dataStructure) << read;
        EXPECT_EQ(found.style, sound.style) << read;
        EXPECT_EQ(found.gridDims, sound.gridDims) << read;
        EXPECT_EQ(found.numGrids, sound.numGrids) << read;
        EXPECT_EQ(found.byteSwap, sound.byteSwap) << read;
        EXPECT_EQ(found.isDoublePrecision, sound.isDoublePrecision) << read;
        EXPECT_EQ(found.hasIBlank, sound.hasIBlank) << read;
    }
};

TEST_P(EachDetection, IsRefusedWhereAReadFails) {
    spoilEachRead(disk.failingRead, [this] { return detectSample(); });
}

TEST_P(EachDetection, OfADescribedFileIsRefusedWhereAReadFails) {
    options.autoDetect = false;
    options.dataStructure = Plot3DDataStructure_3DWhole;
    options.style = Plot3DStyle_Classic;
    options.isMultiGrid = false;
    spoilEachRead(disk.failingRead, [this] { return detectSample(); });
}

TEST_P(EachDetection, OfALaterFileIsRefusedWhereAReadFails) {
    std::int64_t read = 0;
    spoilEachRead(read, [&] {
        Plot3DFilePtr later =
            detectLater(GetParam().bytes, GetParam().isSolution, [&] { disk.failingRead = read; });
        read = std::exchange(disk.failingRead, 0);
        return later;
    });
}

// The trial that would have fitted must not lose to the next one.
TEST_P(EachDetection, IsRefusedWithoutMemoryForTheDimensions) {
    failNextAllocation(1000 * sizeof(Plot3DGridDims_s));
    EXPECT_EQ(detectSample(), nullptr);
    EXPECT_FALSE(cancelAllocationFault());
    EXPECT_EQ(messages(), Texts{outOfMemory()});
}

INSTANTIATE_TEST_SUITE_P(
    OfAFile, EachDetection,
    ::testing::Values(Sample_s{"Binary", binaryGrid(), false},
                      Sample_s{"BinaryInTheOtherOrder", binaryGrid(Order_e::Swapped), false},
                      Sample_s{"BinarySolution", binarySolution(), solution},
                      Sample_s{"Fortran4", fortranGrid(4), false},
                      Sample_s{"Fortran8", fortranGrid(8), false},
                      Sample_s{"Text", textSolution(), solution}),
    [](const ::testing::TestParamInfo<Sample_s>& row) { return std::string(row.param.name); });

TEST_F(DetectionFaults, WithoutASizeAreTold) {
    disk.tellsNoSize = true;
    EXPECT_EQ(detect(binaryGrid()), nullptr);
    EXPECT_EQ(messages(), Texts{unreadable()});
}

TEST_F(DetectionFaults, WithoutMemoryForTheNameAreTold) {
    host().failCall("QuorUtilStringAlloc", 1);
    EXPECT_EQ(detect(binaryGrid()), nullptr);
    EXPECT_EQ(messages(), Texts{outOfMemory()});
}

TEST_F(DetectionFaults, WithoutMemoryForTheNameOfALaterFileAreTold) {
    const auto failName = [] { host().failCall("QuorUtilStringAlloc", 1); };
    EXPECT_EQ(detectLater(binaryGrid(), false, failName), nullptr);
    EXPECT_EQ(messages(), Texts{outOfMemory()});
}

TEST_F(DetectionFaults, WithoutMemoryForACopyOfTheDimensionsAreTold) {
    FileBytes grids = FileBytes().integers({900});
    for (int grid = 0; grid < 900; ++grid)
        grids.integers({1, 1, 1});
    grids.zeros(900 * 3 * 4);
    const auto failDimensions = [] { failNextAllocation(900 * sizeof(Plot3DGridDims_s)); };
    EXPECT_EQ(detectLater(grids.str(), false, failDimensions), nullptr);
    EXPECT_FALSE(cancelAllocationFault());
    EXPECT_EQ(messages(), Texts{outOfMemory()});
}

// The buffer of a file that grows is the largest that the sniffing of one takes.
TEST_F(DetectionFaults, WithoutMemoryToSniffAreTold) {
    failNextAllocation(256);
    EXPECT_EQ(detect(std::string(2, '\0')), nullptr);
    EXPECT_FALSE(cancelAllocationFault());
    EXPECT_EQ(messages(), Texts{outOfMemory()});
}

// ---- Interruption -------------------------------------------------------------------------------

constexpr std::int64_t mebibyte = std::int64_t{1} << 20;

TEST_F(DetectionFaults, LetAWalkBeInterruptedAfter64Mebibytes) {
    host().requestInterrupt();
    for (const std::int64_t size : {64 * mebibyte, 65 * mebibyte}) {
        disk.place("wing.x", size, 0, "");
        sniffStored();
        EXPECT_EQ(file->encoding, size > 64 * mebibyte ? Plot3DEncoding_Unknown
                                                       : Plot3DEncoding_FortranUnformatted);
    }
    EXPECT_EQ(messages(), Texts());
}

TEST_F(DetectionFaults, TellNothingOfAnInterruptedWalk) {
    disk.place("wing.x", 200 * mebibyte, 0, "");
    host().requestInterrupt();
    Plot3DFileBuilder builder(options);
    EXPECT_EQ(buildPlot3DFile(builder, "wing.x", false), nullptr);
    EXPECT_LT(disk.bytesRead, 66 * mebibyte);
    EXPECT_EQ(messages(), Texts());
}

} // namespace
} // namespace quorvia::quorutildataio
