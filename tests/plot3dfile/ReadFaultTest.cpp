// Every read of the disk fails once, or brings half of what it should: the result is right or
// false, never something else, and nothing is told that isn't so.
#include <algorithm>
#include <functional>

#include "RecordFixture.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "plot3dfile/numbers/NumberStream.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;
using testsupport::Texts;

constexpr std::int64_t valueCount = 10007;

std::string manyNumbers() {
    std::string text;
    for (std::int64_t index = 0; index < valueCount; ++index)
        text += std::to_string(index) + (index % 5 == 4 ? "\n" : " ");
    return text;
}

std::vector<float> numbered() {
    std::vector<float> values;
    for (std::int64_t index = 0; index < valueCount; ++index)
        values.push_back(static_cast<float>(index));
    return values;
}

class ReadFault : public testsupport::RecordFixture {
protected:
    using Reading = std::function<bool()>; // says whether it succeeded

    /// Runs `reading` from the start of the file, opened anew.
    bool run(const Reading& reading) {
        file->stream = FileStream::open("wing.x");
        rewindPlot3DFile(*file);
        return reading();
    }
    std::int64_t countReads(const Reading& reading) {
        disk.readCount = 0;
        EXPECT_TRUE(run(reading));
        return disk.readCount;
    }
    /// Lets each read of the disk fail in turn; `reading` must notice.
    void failEveryRead(const Reading& reading) {
        const std::int64_t reads = countReads(reading);
        for (std::int64_t read = 1; read <= reads; ++read) {
            disk.failingRead = read;
            EXPECT_FALSE(run(reading)) << "read " << read;
            EXPECT_EQ(disk.failingRead, 0);
        }
        EXPECT_TRUE(run(reading));
    }
    /// Lets each read bring half of its bytes. A later read may make that good.
    void halveEveryRead(const Reading& reading) {
        const std::int64_t reads = countReads(reading);
        for (std::int64_t read = 1; read <= reads; ++read) {
            disk.halvedRead = read;
            run(reading);
            EXPECT_EQ(disk.halvedRead, 0);
        }
        EXPECT_TRUE(run(reading));
    }

    /// Reads the values by `count` at a time; those that come must be right.
    bool readInBlocksOf(std::int64_t count) {
        std::vector<float> values(valueCount, -1.0F);
        bool isRead = true;
        for (std::int64_t first = 0; isRead && first < valueCount; first += count)
            isRead = readReals(*file, true, first, std::min(count, valueCount - first),
                               values.data(), nullptr);
        std::int64_t index = 0;
        while (index < valueCount && values[static_cast<std::size_t>(index)] != -1.0F) {
            EXPECT_EQ(values[static_cast<std::size_t>(index)], static_cast<float>(index));
            ++index;
        }
        EXPECT_TRUE(index == valueCount || !isRead);
        return isRead;
    }
};

TEST_F(ReadFault, InABlockIsFalse) {
    openBinary(FileBytes().reals(numbered()).str());
    for (const std::int64_t count : {valueCount, std::int64_t{5003}, std::int64_t{7}}) {
        failEveryRead([&] { return readInBlocksOf(count); });
        halveEveryRead([&] { return readInBlocksOf(count); });
    }
}

TEST_F(ReadFault, InTextIsFalse) {
    openText(manyNumbers());
    for (const std::int64_t count : {valueCount, std::int64_t{7}})
        failEveryRead([&] { return readInBlocksOf(count); });
}

// The digits that came before the fault are no number.
TEST_F(ReadFault, InsideATokenIsNoNumber) {
    openText(std::string(4093, ' ') + "12345");
    file->stream->readCharacter();
    disk.failingRead = 1;
    double value = -1.0;
    EXPECT_FALSE(readReal(*file, value));
    EXPECT_EQ(value, 0.0);
}

TEST_F(ReadFault, InsideAnIntegerIsNoNumber) {
    openText(std::string(4093, ' ') + "12345");
    file->stream->readCharacter();
    disk.failingRead = 1;
    std::int32_t value = -1;
    EXPECT_FALSE(readInteger(*file, value));
    EXPECT_EQ(value, 0);
}

TEST_F(ReadFault, InRecordsIsFalse) {
    const std::string numbers = FileBytes().reals(numbered()).str();
    openFortran(FileBytes().record(numbers).record("").record(numbers).record("ab").str());
    failEveryRead([&] { return checkFortranRecords(*file); });
    failEveryRead([&] {
        for (int record = 0; record < 4; ++record)
            if (!nextRecord(*file, false, nullptr))
                return false;
        return file->recordLength == 2;
    });
}

TEST_F(ReadFault, FileThatVanishedBetweenTwoOpensIsTold) {
    sniff("2 3 5");
    disk.remove("wing.x");
    EXPECT_FALSE(openPlot3DFile(*file));
    EXPECT_EQ(messages(), Texts({"The file wing.x could not be opened."}));
}

} // namespace
} // namespace quorvia::quorutildataio
