#include "plot3dfile/bytes/FileSystem.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "support/TemporaryDirectory.h"

namespace quorvia::quorutildataio {
namespace {

class PlatformFileSystem : public ::testing::Test {
protected:
    testsupport::TemporaryDirectory directory;
};

TEST_F(PlatformFileSystem, ReadsAtAnyPosition) {
    const auto file = fileSystem().open(directory.write("f", "0123456789"));
    char bytes[4] = {};
    EXPECT_EQ(file->readAt(3, bytes, 4), 4);
    EXPECT_EQ(std::string(bytes, 4), "3456");
    EXPECT_EQ(file->size(), 10);
}

TEST_F(PlatformFileSystem, GivesFewerBytesAtTheEndAndNoneBehindIt) {
    const auto file = fileSystem().open(directory.write("f", "0123456789"));
    char bytes[4] = {};
    EXPECT_EQ(file->readAt(8, bytes, 4), 2);
    EXPECT_EQ(file->readAt(10, bytes, 4), 0);
    EXPECT_EQ(file->readAt(std::int64_t{1} << 40, bytes, 4), 0);
}

TEST_F(PlatformFileSystem, TakesUtf8Names) {
    EXPECT_NE(fileSystem().open(directory.write("Flügel κ.x", "1")), nullptr);
}

TEST_F(PlatformFileSystem, RefusesMissingFile) {
    EXPECT_EQ(fileSystem().open(directory.file("missing")), nullptr);
    EXPECT_EQ(fileSystem().open(""), nullptr);
}

TEST_F(PlatformFileSystem, RefusesDirectory) {
    EXPECT_EQ(fileSystem().open(directory.path().string()), nullptr);
}

// Nobody ever writes to the pipe: a plain open would wait for ever.
TEST_F(PlatformFileSystem, RefusesPipeWithoutWaiting) {
    const std::string name = directory.file("pipe");
    ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
    EXPECT_EQ(fileSystem().open(name), nullptr);
}

TEST_F(PlatformFileSystem, TellsReadErrorFromEndOfFile) {
    const auto file = fileSystem().open(directory.write("f", "0123456789"));
    EXPECT_EQ(file->readAt(0, nullptr, 4), -1);
}

} // namespace
} // namespace quorvia::quorutildataio
