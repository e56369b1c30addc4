#include "support/FakeDisk.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using quorutildataio::fileSystem;

class FakeDiskTest : public ::testing::Test {
protected:
    /// What one read brings; "error" for a read error, "gone" if the file can't be opened.
    static std::string read(const std::string& name, std::int64_t position, std::int64_t count) {
        const auto file = fileSystem().open(name);
        if (!file)
            return "gone";
        std::string bytes(static_cast<std::size_t>(count), '?');
        const std::int64_t done = file->readAt(position, bytes.data(), count);
        return done < 0 ? "error" : bytes.substr(0, static_cast<std::size_t>(done));
    }

    FakeDisk disk;
};

TEST_F(FakeDiskTest, DeliversWhatWasPutUpToTheEndOfTheFile) {
    disk.put("f", "0123456789");
    EXPECT_EQ(read("f", 3, 4), "3456");
    EXPECT_EQ(read("f", 8, 4), "89");
    EXPECT_EQ(read("f", 10, 4), "");
    EXPECT_EQ(read("f", 11, 4), "");
    EXPECT_EQ(fileSystem().open("f")->size(), 10);
}

TEST_F(FakeDiskTest, HasNoOtherFiles) {
    const TemporaryDirectory directory;
    EXPECT_EQ(read(directory.write("f", "real"), 0, 4), "gone");
    disk.put("f", "1");
    disk.remove("f");
    EXPECT_EQ(read("f", 0, 1), "gone");
}

TEST_F(FakeDiskTest, ReadsZerosWhereNothingWasWritten) {
    constexpr std::int64_t tebibyte = std::int64_t{1} << 40;
    disk.putSparse("f", "ab", tebibyte);
    disk.place("f", tebibyte, tebibyte - 2, "yz");
    EXPECT_EQ(read("f", 1, 3), std::string("b\0\0", 3));
    EXPECT_EQ(read("f", tebibyte - 3, 9), std::string("\0yz", 3));
    EXPECT_EQ(fileSystem().open("f")->size(), tebibyte);
}

TEST_F(FakeDiskTest, ReplacesTheWholeFileButNotUnderOneThatIsOpen) {
    disk.putSparse("f", "old", 9);
    const auto older = fileSystem().open("f");
    disk.put("f", "n");
    EXPECT_EQ(read("f", 0, 9), "n");
    EXPECT_EQ(older->size(), 9);
}

TEST_F(FakeDiskTest, CountsWhatIsAskedOfIt) {
    disk.put("f", "0123456789");
    read("f", 0, 4);
    read("f", 8, 7);
    read("none", 0, 1);
    EXPECT_EQ(disk.opened, (std::vector<std::string>{"f", "f", "none"}));
    EXPECT_EQ(disk.readCount, 2);
    EXPECT_EQ(disk.bytesRead, 6);
    EXPECT_EQ(disk.largestRead, 7);
    disk.resetCounts();
    EXPECT_EQ(disk.opened.size() + static_cast<std::size_t>(disk.readCount + disk.bytesRead), 0U);
}

TEST_F(FakeDiskTest, KnowsHowManyFilesAreOpen) {
    disk.put("f", "1");
    auto first = fileSystem().open("f");
    const auto second = fileSystem().open("f");
    EXPECT_EQ(disk.openFiles, 2);
    first = nullptr;
    EXPECT_EQ(disk.openFiles, 1);
}

TEST_F(FakeDiskTest, FailsTheReadThatItIsTold) {
    disk.put("f", "0123456789");
    disk.failingRead = 2;
    EXPECT_EQ(read("f", 0, 2), "01");
    EXPECT_EQ(read("f", 0, 2), "error");
    EXPECT_EQ(read("f", 0, 2), "01");
    EXPECT_EQ(disk.bytesRead, 4);
}

TEST_F(FakeDiskTest, HalvesTheReadThatItIsToldToWholeValues) {
    disk.put("f", std::string(40, 'x'));
    disk.halvedRead = 1;
    EXPECT_EQ(read("f", 0, 40).size(), 16U);
    EXPECT_EQ(read("f", 0, 40).size(), 40U);
}

TEST_F(FakeDiskTest, ThrowsFromAReadWhatItIsTold) {
    disk.put("f", "1");
    disk.onRead = [] { throw std::runtime_error("the disk is on fire"); };
    EXPECT_THROW(read("f", 0, 1), std::runtime_error);
    EXPECT_EQ(disk.readCount, 0);
}

TEST_F(FakeDiskTest, TellsNoSizeIfAskedNotTo) {
    disk.put("f", "1");
    disk.tellsNoSize = true;
    EXPECT_EQ(fileSystem().open("f")->size(), -1);
    EXPECT_EQ(read("f", 0, 1), "1");
}

TEST_F(FakeDiskTest, LosesAFileAfterSoManyOpens) {
    disk.put("f", "1");
    disk.vanishAfterOpens("f", 2);
    EXPECT_EQ(read("f", 0, 1), "1");
    EXPECT_EQ(read("f", 0, 1), "1");
    EXPECT_EQ(read("f", 0, 1), "gone");
}

TEST(FakeDiskBeforeThePlatform, CountsAndFailsItsReadsToo) {
    const TemporaryDirectory directory;
    const std::string name = directory.write("f", "0123456789");
    FakeDisk disk(FakeDisk::Behind_e::Platform);
    disk.failingRead = 2;
    const auto file = fileSystem().open(name);
    char bytes[8] = {};
    EXPECT_EQ(file->readAt(5, bytes, 8), 5);
    EXPECT_EQ(std::string(bytes, 5), "56789");
    EXPECT_EQ(disk.bytesRead, 5);
    EXPECT_EQ(file->readAt(0, bytes, 8), -1);
    EXPECT_EQ(file->size(), 10);
    EXPECT_EQ(fileSystem().open(directory.file("none")), nullptr);
}

TEST(FakeDiskBeforeThePlatform, HidesTheFileOfTheSameName) {
    const TemporaryDirectory directory;
    const std::string name = directory.write("f", "real");
    FakeDisk disk(FakeDisk::Behind_e::Platform);
    disk.put(name, "fake one");
    EXPECT_EQ(fileSystem().open(name)->size(), 8);
}

TEST(FakeDiskBeforeThePlatform, GivesThePlatformItsPlaceBack) {
    const TemporaryDirectory directory;
    const std::string name = directory.write("f", "real");
    { const FakeDisk disk; }
    EXPECT_NE(fileSystem().open(name), nullptr);
}

} // namespace
} // namespace quorvia::testsupport
