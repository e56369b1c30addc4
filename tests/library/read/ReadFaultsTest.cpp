// Files that are shorter than their pieces say, and reads that fail.
#include <optional>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "FieldFile.h"
#include "support/FakeDisk.h"

namespace quorvia::testsupport {
namespace {

using plot3d::Box;
using plot3d::Error;
using plot3d::ErrorKind;
using plot3d::FieldReader;
using plot3d::ValueType;

std::optional<Error> errorOfRead(const FieldReader& reader, const Box& box) {
    try {
        readBytes(reader, box);
    } catch (const Error& error) {
        return error;
    }
    return std::nullopt;
}

TEST(TruncatedFile, IsToldWithTheByteThatIsMissing) {
    const TemporaryDirectory directory;
    const plot3d::Source source =
        FieldFile_s{smallField, ValueType::Float32, otherOrder(), {}, false}.write(directory);
    std::filesystem::resize_file(source.file, 300);
    const auto error = errorOfRead(FieldReader(source, smallField), Box::whole(smallField));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind(), ErrorKind::Unreadable);
    EXPECT_EQ(error->facts().file, source.file);
    EXPECT_EQ(error->facts().byte, 300);
    EXPECT_EQ(error->facts().expected, "at least 427 bytes"); // 7 ahead of 105 values
    EXPECT_EQ(error->facts().found, "300 bytes");
}

TEST(TruncatedFile, StillGivesTheValuesThatItHas) {
    const TemporaryDirectory directory;
    const plot3d::Source source =
        FieldFile_s{smallField, ValueType::Float32, otherOrder(), {}, false}.write(directory);
    std::filesystem::resize_file(source.file, 300);
    const Box box{{0, 6, 1}, {0, 4, 1}, {0, 1, 1}};
    EXPECT_EQ(readReals(FieldReader(source, smallField), box), expectedReals(smallField, box));
}

TEST(TruncatedFile, ThatEndsAtAPieceIsTold) {
    const TemporaryDirectory directory;
    const plot3d::Source source =
        FieldFile_s{smallField, ValueType::Float64, machineOrder(), {400, 0, 37}, false}.write(
            directory);
    std::filesystem::resize_file(source.file, 407); // all of the first piece
    const auto error = errorOfRead(FieldReader(source, smallField), Box::whole(smallField));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->facts().byte, 421); // where the next one is to begin
    EXPECT_EQ(error->facts().found, "407 bytes");
}

/// Three pieces, of which the box touches each.
class FailingReads : public ::testing::Test {
protected:
    FailingReads() {
        const std::string values =
            bytesOfValues(ValueType::Float32, otherOrder(), smallField.count());
        disk_.put("field.bin", values);
    }
    FieldReader reader() {
        return {{"field.bin", ValueType::Float32, otherOrder(), {{0, 101}, {101, 99}, {200, 220}}},
                smallField};
    }
    FakeDisk disk_;
};

TEST_F(FailingReads, AreToldEachWithItsPlace) {
    const std::int64_t places[] = {0, 101, 200};
    for (std::int64_t n = 1; n <= 3; ++n) {
        const FieldReader failing = reader();
        disk_.failingRead = n;
        const auto error = errorOfRead(failing, Box::whole(smallField));
        ASSERT_TRUE(error);
        EXPECT_EQ(error->kind(), ErrorKind::Unreadable);
        EXPECT_EQ(error->facts().byte, places[n - 1]);
        EXPECT_EQ(error->facts().found, "a read error");
        EXPECT_EQ(readReals(failing, Box::whole(smallField)),
                  expectedReals(smallField, Box::whole(smallField)));
    }
}

TEST_F(FailingReads, ThatComeUpShortAreTold) {
    const FieldReader failing = reader();
    disk_.halvedRead = 2;
    const auto error = errorOfRead(failing, Box::whole(smallField));
    ASSERT_TRUE(error);
    EXPECT_EQ(error->facts().byte, 101 + 48);
}

TEST_F(FailingReads, LeaveNoFileOpen) {
    {
        const FieldReader failing = reader();
        disk_.failingRead = 1;
        EXPECT_TRUE(errorOfRead(failing, Box::whole(smallField)));
        EXPECT_EQ(disk_.openFiles, 1);
    }
    EXPECT_EQ(disk_.openFiles, 0);
}

} // namespace
} // namespace quorvia::testsupport
