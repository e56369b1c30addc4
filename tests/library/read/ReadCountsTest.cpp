// What is read from the file for a box, in bytes and reads. The file is sparse: its values are
// zeros, and what they are is tested elsewhere.
#include <memory>

#include <gtest/gtest.h>

#include "FieldFile.h"

namespace quorvia::testsupport {
namespace {

using plot3d::Box;
using plot3d::Extent;
using plot3d::ValueType;

constexpr std::int64_t kibibyte = 1024;
constexpr std::int64_t headBytes = 12;

struct Counts_s {
    std::int64_t bytes;
    std::int64_t reads;
};

class ReadCounts : public ::testing::Test {
protected:
    /// Of a field of 64-bit reals.
    Counts_s countsOf(const Extent& size, const Box& box,
                      plot3d::ByteOrder order = machineOrder()) {
        const std::string name = directory_.write("sparse.bin", "");
        std::filesystem::resize_file(name,
                                     static_cast<std::uintmax_t>(headBytes + size.count() * 8));
        const plot3d::FieldReader reader(
            {name, ValueType::Float64, order, {{headBytes, size.count() * 8}}}, size);
        const auto room =
            std::make_unique_for_overwrite<double[]>(static_cast<std::size_t>(box.count()));
        reader.read(box, room.get());
        return {reader.bytesRead(), reader.readCount()};
    }

    TemporaryDirectory directory_;
};

// A field of 1 GB: 134,217,728 values.
constexpr Extent gigabyte{512, 512, 512};
constexpr std::int64_t planeBytes = 512 * 512 * 8;

TEST_F(ReadCounts, OfAPlaneOfConstantKAreItsBytes) {
    const Counts_s counts = countsOf(gigabyte, {{0, 511, 1}, {0, 511, 1}, {300, 300, 1}});
    EXPECT_EQ(counts.bytes, planeBytes);
    EXPECT_EQ(counts.reads, 1);
}

TEST_F(ReadCounts, OfAPlaneOfConstantIAreAtMostTwoReadsForEachPlaneOfConstantK) {
    const Counts_s counts = countsOf(gigabyte, {{511, 511, 1}, {0, 511, 1}, {100, 163, 1}});
    EXPECT_LE(counts.reads, 2 * 64);
    EXPECT_LE(counts.bytes, 64 * planeBytes);
    const Counts_s wide = countsOf({1024, 2000, 65}, {{0, 0, 1}, {0, 1999, 1}, {60, 64, 1}});
    EXPECT_LE(wide.reads, 2 * 5);
}

TEST_F(ReadCounts, OfAPlaneOfConstantJAreItsRows) {
    const Counts_s counts = countsOf(gigabyte, {{0, 511, 1}, {7, 7, 1}, {0, 511, 1}});
    EXPECT_EQ(counts.bytes, 512 * 512 * 8);
    EXPECT_EQ(counts.reads, 512);
}

TEST_F(ReadCounts, OfAPointAreOneValue) {
    const Counts_s counts = countsOf(gigabyte, {{9, 9, 1}, {8, 8, 1}, {511, 511, 1}});
    EXPECT_EQ(counts.bytes, 8);
    EXPECT_EQ(counts.reads, 1);
}

TEST_F(ReadCounts, OfAWholeFieldAreItsBytesInPiecesOfSomeMebibytes) {
    const Extent size{1000, 1000, 9};
    const Counts_s counts = countsOf(size, Box::whole(size));
    EXPECT_EQ(counts.bytes, size.count() * 8);
    EXPECT_LE(counts.reads, 9);
    EXPECT_EQ(countsOf(size, Box::whole(size), otherOrder()).bytes, size.count() * 8);
}

TEST_F(ReadCounts, OfEmptyPiecesAreNone) {
    const FieldFile_s file{{7, 5, 3}, ValueType::Int32, machineOrder(), {0, 100, 0, 0}, false};
    const plot3d::FieldReader reader(file.write(directory_), file.size);
    EXPECT_EQ(readBytes(reader, Box::whole(file.size)),
              expectedBytes(file.type, file.size, Box::whole(file.size)));
    EXPECT_EQ(reader.readCount(), 2);
}

TEST_F(ReadCounts, OfASmallBoxAreOneReadFromItsFirstValueToItsLast) {
    const Counts_s counts = countsOf({50, 40, 30}, {{5, 9, 1}, {10, 12, 1}, {20, 21, 1}});
    EXPECT_EQ(counts.reads, 1);
    EXPECT_EQ(counts.bytes, (1 * 40 * 50 + 2 * 50 + 5) * 8);
}

TEST_F(ReadCounts, OfLongRowsFarApartAreOneReadEach) {
    const Counts_s counts =
        countsOf({40'000, 6, 1}, {{0, 8999, 1}, {0, 5, 1}, {0, 0, 1}}); // 72,000 of 320,000 bytes
    EXPECT_EQ(counts.reads, 6);
    EXPECT_EQ(counts.bytes, 6 * 9000 * 8);
}

TEST_F(ReadCounts, OfPointsFarApartAreOneReadEach) {
    const Counts_s counts = countsOf({40'000, 6, 1}, {{3, 3, 1}, {0, 5, 1}, {0, 0, 1}});
    EXPECT_EQ(counts.reads, 6);
    EXPECT_EQ(counts.bytes, 6 * 8);
}

TEST_F(ReadCounts, OfEveryOtherPointAreReadsOfAtLeast64KiB) {
    const Extent size{1001, 1001, 3};
    const Counts_s counts = countsOf(size, {{0, 1000, 2}, {0, 1000, 1}, {0, 2, 1}});
    EXPECT_LE(counts.reads, counts.bytes / (64 * kibibyte));
    EXPECT_LE(counts.bytes, size.count() * 8);
}

} // namespace
} // namespace quorvia::testsupport
