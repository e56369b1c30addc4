#include "plot3dfile/numbers/TypedArrays.h"

#include <limits>
#include <map>

#include "RecordFixture.h"
#include "plot3dfile/numbers/NumberStream.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;

constexpr bool store = true;
constexpr bool passOver = false;

// A field at the host that gives no array: it only takes values.
std::map<std::int64_t, double> gTaken;
int gFieldTag = 0;
QuorFieldHandle gFieldHandle = reinterpret_cast<QuorFieldHandle>(&gFieldTag);

void take(QuorFieldHandle field, std::int64_t index, double value) {
    EXPECT_EQ(field, gFieldHandle);
    gTaken[index] = value;
}

class Block : public testsupport::RecordFixture {
protected:
    void SetUp() override {
        RecordFixture::SetUp();
        gTaken.clear();
    }

    bool takeReals(std::int64_t first, std::int64_t count) {
        return readReals(*file, store, first, count, gFieldHandle, take);
    }
    bool takeIntegers(std::int64_t first, std::int64_t count) {
        return readIntegers(*file, store, first, count, gFieldHandle, take);
    }

    using Taken = std::map<std::int64_t, double>;
};

TEST_F(Block, OfRealsLandsFromTheFirstIndexOn) {
    openBinary(FileBytes().reals({1.5F, -2.5F, 3.5F}).str());
    std::vector<float> values(5, 9.0F);
    EXPECT_TRUE(readReals(*file, store, 1, 3, values.data(), nullptr));
    EXPECT_EQ(values, std::vector<float>({9.0F, 1.5F, -2.5F, 3.5F, 9.0F}));
    EXPECT_EQ(file->stream->tell(), 12);
}

TEST_F(Block, OfDoublesLandsFromTheFirstIndexOn) {
    openBinary(FileBytes().doubles({1.5, -2.5, 3.5}).str()).isDoublePrecision = true;
    std::vector<double> values(4, 9.0);
    EXPECT_TRUE(readReals(*file, store, 1, 3, values.data(), nullptr));
    EXPECT_EQ(values, std::vector<double>({9.0, 1.5, -2.5, 3.5}));
}

TEST_F(Block, OfIntegersHas4BytesEachEvenInDoublePrecision) {
    openBinary(FileBytes().integers({17, -19, 23}).str()).isDoublePrecision = true;
    std::vector<std::int32_t> values(4, 9);
    EXPECT_TRUE(readIntegers(*file, store, 1, 3, values.data(), nullptr));
    EXPECT_EQ(values, std::vector<std::int32_t>({9, 17, -19, 23}));
}

// One boundary behind the first integer; markers of 8 bytes.
TEST_F(Block, IsReadByThePartsOfItsForm) {
    constexpr auto fortran = Plot3DEncoding_FortranUnformatted;
    constexpr bool byteSwap = true, isDoublePrecision = true;
    FileBytes bytes(Order_e::Swapped);
    openFortran(bytes.integers({17}).raw("MARKERS-markers-").integers({-19}).doubles({1.5}).str());
    std::vector<std::int32_t> integers(2);
    double real = 0.0;
    EXPECT_TRUE(
        readIntegerBlock(*file->stream, byteSwap, 8, {4}, fortran, store, 2, integers.data()));
    EXPECT_TRUE(readRealBlock(*file->stream, byteSwap, 8, {4}, fortran, isDoublePrecision, store, 1,
                              &real));
    EXPECT_EQ(integers, std::vector<std::int32_t>({17, -19}));
    EXPECT_EQ(real, 1.5);
}

TEST_F(Block, IsPassedOverByThePartsOfItsForm) {
    openFortran(std::string(64, 'x'));
    EXPECT_TRUE(
        readRealBlock(*file->stream, false, 8, {4}, file->encoding, true, passOver, 3, nullptr));
    EXPECT_EQ(file->stream->tell(), 3 * 8 + 2 * 8);
}

// Long enough for several reads, and no multiple of anything.
TEST_F(Block, IsTurnedIntoTheMachinesByteOrder) {
    std::vector<float> reals(200003);
    std::vector<double> doubles(100003);
    for (std::size_t index = 0; index < reals.size(); ++index)
        reals[index] = static_cast<float>(index) + 0.5F;
    for (std::size_t index = 0; index < doubles.size(); ++index)
        doubles[index] = static_cast<double>(index) + 0.25;
    openBinary(FileBytes(Order_e::Swapped).reals(reals).doubles(doubles).str()).byteSwap = true;
    std::vector<float> readAsReals(reals.size());
    EXPECT_TRUE(readReals(*file, store, 0, std::ssize(reals), readAsReals.data(), nullptr));
    EXPECT_EQ(readAsReals, reals);
    file->isDoublePrecision = true;
    std::vector<double> readAsDoubles(doubles.size());
    EXPECT_TRUE(readReals(*file, store, 0, std::ssize(doubles), readAsDoubles.data(), nullptr));
    EXPECT_EQ(readAsDoubles, doubles);
}

TEST_F(Block, InNativeOrderIsOneRead) {
    openBinary(FileBytes().reals(std::vector<float>(200003, 1.0F)).str());
    std::vector<float> values(200003);
    EXPECT_TRUE(readReals(*file, store, 0, std::ssize(values), values.data(), nullptr));
    EXPECT_EQ(disk.readCount, 1);
    EXPECT_EQ(disk.bytesRead, 800012);
}

TEST_F(Block, OfNoValuesReadsNothing) {
    openBinary("");
    EXPECT_TRUE(readReals(*file, store, 0, 0, nullptr, nullptr));
    EXPECT_TRUE(readIntegers(*file, store, 0, 0, nullptr, nullptr));
    EXPECT_TRUE(takeReals(0, 0));
    openText("x");
    EXPECT_TRUE(takeIntegers(0, 0));
    EXPECT_EQ(disk.readCount, 0);
}

TEST_F(Block, OfNegativeCountFails) {
    ASSERT_TRUE(openBinary(FileBytes().zeros(100).str()).stream->seek(50));
    std::int32_t value = 9;
    EXPECT_FALSE(readIntegers(*file, store, 0, -1, &value, nullptr));
    EXPECT_FALSE(readIntegers(*file, passOver, 0, -1, nullptr, nullptr));
    EXPECT_EQ(file->stream->tell(), 50);
}

TEST_F(Block, Past64BitsFails) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    openBinary(FileBytes().zeros(100).str());
    float value = 0.0F;
    EXPECT_FALSE(readReals(*file, store, 0, most / 2, &value, nullptr));
    EXPECT_FALSE(readReals(*file, passOver, 0, most / 2, nullptr, nullptr));
    EXPECT_TRUE(file->stream->seek(50));
    EXPECT_FALSE(readReals(*file, passOver, 0, most / 4, nullptr, nullptr));
}

TEST_F(Block, ThatIsCutShortFails) {
    openBinary(FileBytes().reals({1.5F, 2.5F}).raw("abc").str());
    std::vector<float> values(3);
    EXPECT_FALSE(readReals(*file, store, 0, 3, values.data(), nullptr));
    EXPECT_EQ(values[1], 2.5F);
}

TEST_F(Block, IsPassedOverWithoutReading) {
    openBinary("abcd");
    EXPECT_TRUE(readReals(*file, passOver, 0, 1000003, nullptr, nullptr));
    EXPECT_EQ(file->stream->tell(), 4000012);
    EXPECT_EQ(disk.readCount, 0);
}

TEST_F(Block, OfTextIsReadToBePassedOver) {
    openText("1.5 2.5 3.5 17 19");
    EXPECT_TRUE(readReals(*file, passOver, 0, 3, nullptr, nullptr));
    std::int32_t value = 0;
    EXPECT_TRUE(readInteger(*file, value));
    EXPECT_EQ(value, 17);
}

TEST_F(Block, OfTextThatIsPassedOverStillFailsOnABadToken) {
    openText("1.5 x 3.5");
    EXPECT_FALSE(readReals(*file, passOver, 0, 3, nullptr, nullptr));
    openText("1 x 3");
    EXPECT_FALSE(readIntegers(*file, passOver, 0, 3, nullptr, nullptr));
}

TEST_F(Block, OfTextKeepsWhatCameBeforeABadToken) {
    openText("1.5 2.5 x 4.5");
    std::vector<float> values(4, 9.0F);
    EXPECT_FALSE(readReals(*file, store, 0, 4, values.data(), nullptr));
    EXPECT_EQ(values, std::vector<float>({1.5F, 2.5F, 9.0F, 9.0F}));
}

// Many buffers long, with repeats, exponents of both kinds, and tokens across every buffer's end.
TEST_F(Block, OfTextIsTheSameInBulkAsOneByOne) {
    std::string text;
    for (int index = 0; index < 40000; ++index)
        text += std::to_string(index * 0.37) + (index % 7 == 0 ? "E-02 " : " ") +
                (index % 11 == 0 ? "3*0.25,\r\n" : "") + (index % 13 == 0 ? "-1.5D+01\n" : "") +
                std::string(static_cast<std::size_t>(index % 3), ' ');
    constexpr std::int64_t count = 40000 + 3 * 3637 + 3077;
    openText(text).isDoublePrecision = true;
    std::vector<double> bulk(count), single(count);
    EXPECT_TRUE(readReals(*file, store, 0, count, bulk.data(), nullptr));
    rewindPlot3DFile(*file);
    for (double& value : single)
        ASSERT_TRUE(readReal(*file, value));
    EXPECT_EQ(bulk, single);
    double value = 0.0;
    EXPECT_FALSE(readReal(*file, value));
}

TEST_F(Block, OfTextInSinglePrecisionLosesDigits) {
    openText("0.1");
    EXPECT_TRUE(takeReals(0, 1));
    EXPECT_EQ(gTaken, Taken({{0, static_cast<double>(0.1F)}}));
    openText("0.1").isDoublePrecision = true;
    EXPECT_TRUE(takeReals(0, 1));
    EXPECT_EQ(gTaken, Taken({{0, 0.1}}));
}

TEST_F(Block, OfTextIntegersLandsFromTheFirstIndexOn) {
    openText("17 2*-19 23");
    std::vector<std::int32_t> values(5, 9);
    EXPECT_TRUE(readIntegers(*file, store, 1, 4, values.data(), nullptr));
    EXPECT_EQ(values, std::vector<std::int32_t>({9, 17, -19, -19, 23}));
}

TEST_F(Block, GoesThroughTheSetFunctionWithItsIndices) {
    openBinary(FileBytes().reals({1.5F, -2.5F}).integers({17, -19}).str());
    EXPECT_TRUE(takeReals(7, 2));
    EXPECT_TRUE(takeIntegers(11, 2));
    EXPECT_EQ(gTaken, Taken({{7, 1.5}, {8, -2.5}, {11, 17.0}, {12, -19.0}}));
}

TEST_F(Block, GoesThroughTheSetFunctionInTheOtherByteOrder) {
    openBinary(FileBytes(Order_e::Swapped).doubles({1.5}).integers({17}).str()).byteSwap = true;
    file->isDoublePrecision = true;
    EXPECT_TRUE(takeReals(0, 1));
    EXPECT_TRUE(takeIntegers(1, 1));
    EXPECT_EQ(gTaken, Taken({{0, 1.5}, {1, 17.0}}));
}

TEST_F(Block, SetFunctionGetsWhatCameBeforeTheFilesEnd) {
    openBinary(FileBytes().reals({1.5F, -2.5F}).raw("abc").str());
    EXPECT_FALSE(takeReals(0, 3));
    EXPECT_EQ(gTaken, Taken({{0, 1.5}, {1, -2.5}}));
}

TEST_F(Block, SetFunctionGetsNoMarkersBetweenSegments) {
    openFortran(FileBytes().integers({7, -8, -8, 11}).str()).segmentBoundaries = {4};
    EXPECT_TRUE(takeIntegers(0, 2));
    EXPECT_EQ(gTaken, Taken({{0, 7.0}, {1, 11.0}}));
}

TEST_F(Block, SetFunctionOfManyValuesMissesNone) {
    std::vector<float> reals(5003);
    for (std::size_t index = 0; index < reals.size(); ++index)
        reals[index] = static_cast<float>(index);
    openBinary(FileBytes().reals(reals).str());
    EXPECT_TRUE(takeReals(0, 5003));
    for (const auto& [index, value] : gTaken)
        ASSERT_EQ(value, static_cast<double>(index));
    EXPECT_EQ(gTaken.size(), reals.size());
}

// Passing over through a set function reads, and so notices that the file ends.
TEST_F(Block, PassedOverThroughTheSetFunctionMustBeThere) {
    openBinary("abcd");
    EXPECT_FALSE(readReals(*file, passOver, 0, 2, gFieldHandle, take));
    EXPECT_EQ(gTaken, Taken());
}

class BinaryNumber : public testsupport::RecordFixture {};

TEST_F(BinaryNumber, ThatTheFilesEndCutsIsZero) {
    openBinary("abc");
    std::int32_t integer = 7;
    EXPECT_FALSE(readInteger(*file, integer));
    EXPECT_EQ(integer, 0);
    for (const bool isDoublePrecision : {false, true}) {
        file->isDoublePrecision = isDoublePrecision;
        EXPECT_TRUE(file->stream->seek(0));
        double real = 7.0;
        EXPECT_FALSE(readReal(*file, real));
        EXPECT_EQ(real, 0.0);
    }
}

} // namespace
} // namespace quorvia::quorutildataio
