// A field behind 4 GiB of a file, and longer than that: the file is sparse.
#include <fstream>

#include <gtest/gtest.h>

#include "FieldFile.h"

namespace quorvia::testsupport {
namespace {

using plot3d::Extent;
using plot3d::ValueType;

constexpr std::int64_t gibibyte = std::int64_t{1} << 30;

/// 64-bit reals of 5 GiB from byte 3 on, in three pieces; the second one begins inside a value.
class BigField : public ::testing::Test {
protected:
    void SetUp() override {
        name_ = directory_.write("big.bin", "");
        std::filesystem::resize_file(name_, 5 * gibibyte + 3 + 16);
        place(size.count() - 1);
        place(cutValue);
        place(cutValue + 1);
    }
    /// Writes value number `index` where it belongs.
    void place(std::int64_t index) {
        const std::string bytes = bytesOfValue(ValueType::Float64, otherOrder(), index);
        for (std::int64_t n = 0; n < 8; ++n)
            placeByte(index * 8 + n, bytes[static_cast<std::size_t>(n)]);
    }
    void placeByte(std::int64_t at, char byte) {
        std::fstream file(name_, std::ios::binary | std::ios::in | std::ios::out);
        const std::int64_t markers = at < cutByte ? 0 : at < 5 * gibibyte - 8 ? 8 : 16;
        file.seekp(3 + at + markers);
        file.put(byte);
    }
    plot3d::FieldReader reader() const {
        return {{name_,
                 ValueType::Float64,
                 otherOrder(),
                 {{3, cutByte},
                  {3 + cutByte + 8, 5 * gibibyte - 8 - cutByte},
                  {3 + 5 * gibibyte - 8 + 16, 8}}},
                size};
    }
    double valueOf(std::int64_t index) const {
        const std::int64_t i = index % size.i;
        const std::int64_t j = index / size.i % size.j;
        const std::int64_t k = index / size.i / size.j;
        return readReals(reader(), {{i, i, 1}, {j, j, 1}, {k, k, 1}}).front();
    }

    static constexpr Extent size{1 << 10, 1 << 10, 640};
    static constexpr std::int64_t cutValue = (4 * gibibyte + 1'000'000) / 8;
    static constexpr std::int64_t cutByte = cutValue * 8 + 5;
    TemporaryDirectory directory_;
    std::string name_;
};

TEST_F(BigField, GivesItsLastValue) {
    EXPECT_EQ(valueOf(size.count() - 1), valueAt(size.count() - 1));
}

TEST_F(BigField, GivesTheValueThatAPieceCutsBehind4GiB) {
    EXPECT_EQ(valueOf(cutValue), valueAt(cutValue));
    EXPECT_EQ(valueOf(cutValue + 1), valueAt(cutValue + 1));
    EXPECT_EQ(valueOf(cutValue + 2), 0.0);
}

TEST_F(BigField, GivesItsLastPlane) {
    const auto plane = readReals(reader(), {{0, size.i - 1, 1}, {0, size.j - 1, 1}, {639, 639, 1}});
    EXPECT_EQ(plane.front(), 0.0);
    EXPECT_EQ(plane.back(), valueAt(size.count() - 1));
}

} // namespace
} // namespace quorvia::testsupport
