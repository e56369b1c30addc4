// Records that are cut into segments, each with markers of its own.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <sys/stat.h>

#include "support/HexBytes.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3dwriter;

FileForm_s segmentsOf(std::int64_t byteCount, ByteOrder_e byteOrder = ByteOrder_e::Little) {
    FileForm_s result = formOf(Encoding_e::Fortran, byteOrder, Precision_e::Single);
    result.maxSegmentBytes = byteCount;
    return result;
}

FileDescription_s lineOf(std::int32_t points) {
    return describe(FileKind_e::Grid, {{points, 1, 1}}, Layout_e::OneD);
}

TEST(FortranSegments, NegativeMarkersStandBetweenTheSegmentsOnly) {
    EXPECT_EQ(toHex(bytesOf(lineOf(4), segmentsOf(6))), hexOf("04000000 04000000 04000000"
                                                              "FAFFFFFF 00000000 0000 06000000"
                                                              "FAFFFFFF 803F 00000040 FAFFFFFF"
                                                              "04000000 00004040 FCFFFFFF"));
}

TEST(FortranSegments, RecordOfExactlyOneSegmentIsNotCut) {
    EXPECT_EQ(toHex(bytesOf(lineOf(2), segmentsOf(8))),
              hexOf("04000000 02000000 04000000 08000000 00000000 0000803F 08000000"));
}

TEST(FortranSegments, RecordOfExactlyTwoSegmentsHasNoEmptyThird) {
    EXPECT_EQ(toHex(bytesOf(lineOf(4), segmentsOf(8, ByteOrder_e::Big))),
              hexOf("00000004 00000004 00000004"
                    "FFFFFFF8 00000000 3F800000 00000008"
                    "00000008 40000000 40400000 FFFFFFF8"));
}

TEST(FortranSegments, WideMarkersNeedNone) {
    FileForm_s wide = segmentsOf(8);
    wide.markerBytes = 8;
    EXPECT_EQ(bytesOf(lineOf(4), wide).size(), (8U + 4U + 8U) + (8U + 16U + 8U));
}

TEST(FortranSegments, HoleIsCutLikeValues) {
    FileDescription_s holes = lineOf(4);
    holes.isHole = [](auto...) { return true; };
    EXPECT_EQ(toHex(bytesOf(holes, segmentsOf(12))),
              hexOf("04000000 04000000 04000000"
                    "F4FFFFFF 00000000 00000000 00000000 0C000000"
                    "04000000 00000000 FCFFFFFF"));
}

/// Three blocks of 1.6e9 bytes in one record, which passes the true limit twice.
FileDescription_s hugeGrid() {
    FileDescription_s huge = describe(FileKind_e::Grid, {{20000, 20000, 1}});
    huge.isHole = [](auto...) { return true; };
    return huge;
}

std::string bytesAt(const std::string& path, std::int64_t position, std::size_t count) {
    std::ifstream file(path, std::ios::binary);
    file.seekg(position);
    std::string bytes(count, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(count));
    return toHex(bytes);
}

TEST(FortranSegments, TrueLimitIsKeptInASparseFile) {
    const testsupport::TemporaryDirectory directory;
    const std::string path = directory.file("huge.x");
    const WriteOutcome_s outcome = writePlot3DFile(path, hugeGrid(), formOf(Encoding_e::Fortran));
    ASSERT_EQ(outcome.problem, "");
    EXPECT_EQ(outcome.byteCount, 20 + 4800000000 + 3 * 8);
    EXPECT_EQ(bytesAt(path, 20, 4), "09000080");
    EXPECT_EQ(bytesAt(path, 24 + longestFortranSegment, 8), "F7FFFF7F 09000080");
    EXPECT_EQ(bytesAt(path, outcome.byteCount - 4, 4), "EECFE5E1"); // -505032722
}

TEST(Holes, TakeNoSpaceOnDisk) {
    const testsupport::TemporaryDirectory directory;
    const std::string path = directory.file("huge.x");
    const WriteOutcome_s outcome = writePlot3DFile(path, hugeGrid(), formOf(Encoding_e::Binary));
    EXPECT_EQ(std::filesystem::file_size(path), 12U + 4800000000U);
    EXPECT_EQ(outcome.byteCount, 12 + 4800000000);
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_LT(status.st_blocks * 512, 1 << 20);
}

TEST(Holes, LieBetweenRealPlanes) {
    FileDescription_s grid = describe(FileKind_e::Function, {{1, 1, 3}});
    grid.numVars = 1;
    grid.value = [](auto...) { return 1; };
    grid.isHole = [](std::int32_t, std::int32_t, std::int32_t k) { return k == 1; };
    const testsupport::TemporaryDirectory directory;
    const std::string path = directory.file("f.fun");
    ASSERT_EQ(writePlot3DFile(path, grid, formOf(Encoding_e::Binary)).problem, "");
    EXPECT_EQ(bytesAt(path, 16, 12), "0000803F 00000000 0000803F");
}

} // namespace
} // namespace quorvia::testsupport
