#include "plot3dfile/bytes/ByteOrder.h"

#include <algorithm>
#include <numeric>
#include <string>

#include <gtest/gtest.h>

namespace quorvia::quorutildataio {
namespace {

std::string letters(std::size_t count) {
    std::string bytes(count, '\0');
    std::iota(bytes.begin(), bytes.end(), '\1');
    return bytes;
}

TEST(ReverseBytes, WorksInAnyWidth) {
    for (const std::size_t width : {1U, 2U, 3U, 4U, 5U, 8U, 12U, 16U}) {
        std::string value = letters(width + 1);
        std::string expected = value;
        std::reverse(expected.begin(), expected.end() - 1);
        reverseBytes(value.data(), static_cast<std::int64_t>(width));
        EXPECT_EQ(value, expected) << width;
    }
}

// All counts up to a few blocks, at an odd address, with a guard behind.
TEST(ReverseEach, ReversesEveryValueAndNothingBehind) {
    for (const std::size_t width : {2U, 4U, 8U}) {
        for (std::size_t count = 0; count < 23; ++count) {
            std::string bytes = letters(1 + width * count + 1);
            std::string expected = bytes;
            for (std::size_t index = 0; index < count; ++index) {
                const auto value =
                    expected.begin() + static_cast<std::ptrdiff_t>(1 + width * index);
                std::reverse(value, value + static_cast<std::ptrdiff_t>(width));
            }
            reverseEach(bytes.data() + 1, static_cast<std::int64_t>(width),
                        static_cast<std::int64_t>(count));
            EXPECT_EQ(bytes, expected) << count << " values of " << width << " bytes";
        }
    }
}

} // namespace
} // namespace quorvia::quorutildataio
