#include "plot3dfile/bytes/FileStream.h"

#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/FakeDisk.h"

namespace quorvia::quorutildataio {
namespace {

std::string numberedBytes(std::size_t count) {
    std::string bytes(count, '\0');
    for (std::size_t index = 0; index < count; ++index)
        bytes[index] = static_cast<char>((index * 7 + index / 251) % 256);
    return bytes;
}

class Stream : public ::testing::Test {
protected:
    FileStream& open(const std::string& bytes) {
        disk.put("f", bytes);
        stream = FileStream::open("f");
        return *stream;
    }
    std::string read(std::int64_t count) {
        std::string bytes(static_cast<std::size_t>(count), '\0');
        bytes.resize(static_cast<std::size_t>(stream->read(bytes.data(), count)));
        return bytes;
    }

    testsupport::FakeDisk disk;
    std::unique_ptr<FileStream> stream;
};

TEST_F(Stream, ReadsNothingBeforeItIsAsked) {
    ASSERT_TRUE(open("0123456789").seek(5));
    EXPECT_EQ(disk.readCount, 0);
}

TEST_F(Stream, DeliversTheSameBytesInPiecesOfAnySize) {
    const std::string bytes = numberedBytes(200003);
    for (const std::int64_t piece : {1, 3, 255, 256, 257, 1025, 4097, 65537, 199999, 300000}) {
        open(bytes);
        std::string all;
        for (std::string part = read(piece); !part.empty(); part = read(piece))
            all += part;
        EXPECT_EQ(all, bytes) << "in pieces of " << piece;
    }
}

TEST_F(Stream, TellsItsPositionAcrossBufferedAndDirectReads) {
    open(numberedBytes(200003));
    read(7);
    EXPECT_EQ(stream->tell(), 7);
    read(150000);
    EXPECT_EQ(stream->tell(), 150007);
    stream->readCharacter();
    EXPECT_EQ(stream->tell(), 150008);
}

TEST_F(Stream, SeeksInsideTheBufferWithoutReadingAgain) {
    open(numberedBytes(200003));
    read(100);
    ASSERT_TRUE(stream->seek(0));
    read(256);
    ASSERT_TRUE(stream->seek(11));
    EXPECT_EQ(read(5), numberedBytes(16).substr(11));
    EXPECT_EQ(disk.readCount, 1);
}

TEST_F(Stream, BeginsSmallAndAsksForMoreWhenReadingGoesOn) {
    open(numberedBytes(200003));
    read(1);
    EXPECT_EQ(disk.largestRead, 256);
    for (int index = 0; index < 150000; ++index)
        stream->readCharacter();
    EXPECT_EQ(disk.largestRead, 65536);
    EXPECT_LE(disk.readCount, 7);
}

TEST_F(Stream, BeginsSmallAgainBehindAJump) {
    open(numberedBytes(200003));
    while (stream->tell() < 100000)
        stream->readCharacter();
    disk.largestRead = 0;
    ASSERT_TRUE(stream->seek(3));
    read(1);
    EXPECT_EQ(disk.largestRead, 256);
}

TEST_F(Stream, ReadsBigBlocksStraightToTheirDestination) {
    open(numberedBytes(200003));
    read(150000);
    EXPECT_EQ(disk.readCount, 1);
    EXPECT_EQ(disk.bytesRead, 150000);
}

TEST_F(Stream, GivesWhatIsThereAtTheEnd) {
    ASSERT_TRUE(open("0123456789").seek(7));
    EXPECT_EQ(read(5), "789");
    EXPECT_EQ(stream->readCharacter(), -1);
    EXPECT_FALSE(stream->hadReadError());
}

TEST_F(Stream, MayStandBehindTheEnd) {
    EXPECT_TRUE(open("0123456789").seek(std::int64_t{1} << 40));
    EXPECT_EQ(stream->tell(), std::int64_t{1} << 40);
    EXPECT_EQ(read(5), "");
    EXPECT_EQ(stream->readCharacter(), -1);
}

TEST_F(Stream, ReadsUpToTheLastPositionThereIs) {
    constexpr std::int64_t last = std::numeric_limits<std::int64_t>::max();
    EXPECT_TRUE(open("0123456789").seek(last));
    EXPECT_EQ(stream->readCharacter(), -1);
    EXPECT_EQ(read(5000), "");
}

TEST_F(Stream, RefusesNegativePosition) {
    EXPECT_FALSE(open("0123456789").seek(-1));
    EXPECT_FALSE(stream->skip(-1));
    EXPECT_EQ(stream->tell(), 0);
}

TEST_F(Stream, RefusesSkipPast64Bits) {
    ASSERT_TRUE(open("0123456789").seek(2));
    EXPECT_FALSE(stream->skip(std::numeric_limits<std::int64_t>::max()));
    EXPECT_TRUE(stream->skip(std::numeric_limits<std::int64_t>::max() - 2));
}

TEST_F(Stream, SkipsBackwards) {
    ASSERT_TRUE(open("0123456789").seek(7));
    EXPECT_TRUE(stream->skip(-5));
    EXPECT_EQ(read(2), "23");
}

TEST_F(Stream, TellsReadErrorFromEndOfFile) {
    open("0123456789");
    disk.failingRead = 1;
    EXPECT_EQ(stream->readCharacter(), -1);
    EXPECT_TRUE(stream->hadReadError());
}

TEST_F(Stream, TellsErrorOfADirectRead) {
    open(numberedBytes(200003));
    disk.failingRead = 1;
    EXPECT_EQ(read(150000), "");
    EXPECT_TRUE(stream->hadReadError());
    EXPECT_EQ(stream->tell(), 0);
}

TEST_F(Stream, WindowShowsTheBufferAndConsumeMovesOn) {
    open("0123456789");
    const FileStream::Window_s window = stream->window();
    EXPECT_EQ(std::string(window.begin, window.end), "0123456789");
    stream->consume(4);
    EXPECT_EQ(read(2), "45");
}

TEST_F(Stream, WindowIsEmptyAtTheEnd) {
    ASSERT_TRUE(open("0123456789").seek(10));
    const FileStream::Window_s window = stream->window();
    EXPECT_EQ(window.begin, window.end);
}

TEST_F(Stream, BytesAbove127AreNoNegativeCharacters) {
    open("\xff\x80");
    EXPECT_EQ(stream->readCharacter(), 255);
    EXPECT_EQ(stream->readCharacter(), 128);
}

TEST_F(Stream, MissingFileDoesNotOpen) {
    EXPECT_EQ(FileStream::open("missing"), nullptr);
}

// ---- Watched

constexpr std::int64_t mebibyte = 1024 * 1024;

class Watch : public ReadWatch {
public:
    bool goesOn(std::int64_t byteCount) override {
        asked.push_back(byteCount);
        return std::ssize(asked) < stopsAt;
    }
    std::vector<std::int64_t> asked;
    std::int64_t stopsAt = 1'000'000;
};

class WatchedStream : public Stream {
protected:
    /// A file of zeros, with a mark at its end.
    FileStream& openBig(std::int64_t byteCount) {
        disk.place("f", byteCount, byteCount - 4, "mark");
        stream = FileStream::open("f");
        stream->watchWith(&watch);
        return *stream;
    }
    Watch watch;
};

TEST_F(WatchedStream, AsksNothingOfUpTo64MiB) {
    openBig(64 * mebibyte);
    EXPECT_EQ(read(64 * mebibyte).substr(64 * mebibyte - 4), "mark");
    EXPECT_EQ(watch.asked, std::vector<std::int64_t>());
    EXPECT_EQ(disk.readCount, 1);
}

TEST_F(WatchedStream, AsksBehind64MiBAndThenEvery8) {
    openBig(81 * mebibyte);
    EXPECT_EQ(read(81 * mebibyte).substr(81 * mebibyte - 4), "mark");
    EXPECT_EQ(watch.asked, std::vector<std::int64_t>({64 * mebibyte, 8 * mebibyte, 8 * mebibyte}));
    EXPECT_EQ(stream->tell(), 81 * mebibyte);
}

TEST_F(WatchedStream, CountsSmallReadsToo) {
    openBig(90 * mebibyte);
    std::string part(1000, '\0');
    while (stream->readExactly(part.data(), 1000))
        continue;
    ASSERT_EQ(watch.asked.size(), 4U);
    EXPECT_GE(watch.asked[0], 64 * mebibyte);
    EXPECT_LT(watch.asked[0] + watch.asked[1], 73 * mebibyte);
}

TEST_F(WatchedStream, EndsForGoodOnceItIsStopped) {
    watch.stopsAt = 2;
    openBig(90 * mebibyte);
    EXPECT_EQ(std::ssize(read(90 * mebibyte)), 72 * mebibyte);
    EXPECT_TRUE(stream->wasStopped() && stream->hadReadError());
    ASSERT_TRUE(stream->seek(0));
    EXPECT_EQ(read(1), "");
    EXPECT_EQ(stream->readCharacter(), -1);
    EXPECT_EQ(watch.asked.size(), 2U);
}

TEST_F(WatchedStream, AsksNobodyOnceTheWatchIsOver) {
    openBig(90 * mebibyte).watchWith(nullptr);
    EXPECT_EQ(std::ssize(read(90 * mebibyte)), 90 * mebibyte);
    EXPECT_EQ(watch.asked, std::vector<std::int64_t>());
}

TEST_F(WatchedStream, BeginsToCountWhenTheWatchBegins) {
    openBig(120 * mebibyte).watchWith(nullptr);
    read(60 * mebibyte);
    stream->watchWith(&watch);
    read(60 * mebibyte);
    EXPECT_EQ(watch.asked, std::vector<std::int64_t>());
}

} // namespace
} // namespace quorvia::quorutildataio
