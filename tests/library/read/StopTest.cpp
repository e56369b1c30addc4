// A read that is stopped while it is under way.
#include <cstring>
#include <memory>
#include <stop_token>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "FieldFile.h"
#include "plot3dfile/bytes/FileSystem.h"

namespace quorvia::testsupport {
namespace {

using plot3d::Box;
using plot3d::Extent;

/// Endless zeros; the stop comes while its first bytes are read.
class StoppingFile : public quorutildataio::RandomAccessFile {
public:
    explicit StoppingFile(std::stop_source& stop) : stop_(stop) {}
    std::int64_t readAt(std::int64_t, void* destination, std::int64_t byteCount) override {
        stop_.request_stop();
        std::memset(destination, 0, static_cast<std::size_t>(byteCount));
        return byteCount;
    }
    std::int64_t size() override { return -1; }

private:
    std::stop_source& stop_;
};

class StoppingDisk : public quorutildataio::FileSystem {
public:
    StoppingDisk() { quorutildataio::setFileSystem(this); }
    ~StoppingDisk() override { quorutildataio::setFileSystem(nullptr); }
    StoppingDisk(const StoppingDisk&) = delete;
    StoppingDisk& operator=(const StoppingDisk&) = delete;
    std::unique_ptr<quorutildataio::RandomAccessFile> open(const std::string&) override {
        return std::make_unique<StoppingFile>(stop);
    }
    std::stop_source stop;
};

class StopTest : public ::testing::Test {
protected:
    static constexpr Extent size{1000, 1000, 8}; // 64 MB
    /// Bytes that are read when it has ended.
    std::int64_t bytesOf(const Box& box, plot3d::ByteOrder order) {
        const plot3d::FieldReader reader(
            {"any", plot3d::ValueType::Float64, order, {{0, size.count() * 8}}}, size);
        const auto room =
            std::make_unique_for_overwrite<double[]>(static_cast<std::size_t>(box.count()));
        EXPECT_THROW(reader.read(box, room.get(), disk_.stop.get_token()), plot3d::Error);
        return reader.bytesRead();
    }
    StoppingDisk disk_;
};

constexpr std::int64_t aPiece = 8 * 1024 * 1024;

TEST_F(StopTest, EndsBehindAPieceOfAWholeField) {
    EXPECT_LE(bytesOf(Box::whole(size), machineOrder()), aPiece);
}

TEST_F(StopTest, EndsBehindAPieceOfASwappedField) {
    EXPECT_LE(bytesOf(Box::whole(size), otherOrder()), aPiece);
}

TEST_F(StopTest, EndsBehindAJoinedRead) {
    EXPECT_LE(bytesOf({{5, 5, 1}, {0, 999, 1}, {0, 7, 1}}, machineOrder()), aPiece);
}

} // namespace
} // namespace quorvia::testsupport
