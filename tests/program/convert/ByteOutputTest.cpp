// Bytes come out in the order in which they were written, however many at a time.
#include "convert/output/ByteOutput.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace plot3d::program {
namespace {

class ByteOutputTest : public ::testing::Test {
protected:
    std::string written() const {
        std::ifstream in(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    const quorvia::testsupport::TemporaryDirectory directory_;
    const std::string path_ = directory_.file("out");
};

TEST_F(ByteOutputTest, KeepsTheOrderOfShortAndLongWrites) {
    constexpr std::size_t kibibyte = 1024;
    for (const std::size_t length :
         {1 * kibibyte, 127 * kibibyte, 129 * kibibyte, 200 * kibibyte, 256 * kibibyte - 3,
          256 * kibibyte, 300 * kibibyte, 600 * kibibyte}) {
        std::string wanted;
        ByteOutput out(path_, "out");
        for (char letter = 'a'; letter <= 'f'; ++letter) {
            const std::string text = letter + std::string(length, '.') + letter;
            out.write(letter % 2 == 0 ? "short" : "");
            out.write(text);
            wanted += (letter % 2 == 0 ? "short" : "") + text;
        }
        EXPECT_EQ(out.position(), std::ssize(wanted));
        out.finish();
        EXPECT_TRUE(written() == wanted) << length << " bytes at a time";
    }
}

TEST_F(ByteOutputTest, WritesOverWhatIsThere) {
    ByteOutput out(path_, "out");
    out.write(std::string(200'000, '.'));
    out.patch(3, "abc", 3);
    out.write("end");
    out.finish();
    EXPECT_EQ(written(), "...abc" + std::string(199'994, '.') + "end");
}

} // namespace
} // namespace plot3d::program
