#include "RecordFixture.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;

class Encoding : public testsupport::RecordFixture {
protected:
    Plot3DEncoding_e of(const std::string& bytes) { return sniff(bytes).encoding; }
};

const std::string threeNumbers = FileBytes().integers({2, 3, 5}).str();

TEST_F(Encoding, EmptyFileIsText) {
    EXPECT_EQ(of(""), Plot3DEncoding_Ascii);
    EXPECT_EQ(file->fileSize, 0);
}

TEST_F(Encoding, PrintableCharactersAndWhiteSpaceAreText) {
    EXPECT_EQ(of("2 3 5\r\n\t\v\f 1.5E+00 ~!"), Plot3DEncoding_Ascii);
}

TEST_F(Encoding, OneOtherCharacterIsNoText) {
    for (const char character : {'\0', '\x08', '\x0e', '\x1f', '\x7f', '\x80', '\xff'})
        EXPECT_EQ(of(std::string("2 3 5") + character), Plot3DEncoding_Binary)
            << static_cast<int>(character);
}

TEST_F(Encoding, OnlyTheFirst200CharactersAreLookedAt) {
    const std::string blanks(199, ' ');
    EXPECT_EQ(of(blanks + " " + '\0'), Plot3DEncoding_Ascii);
    EXPECT_EQ(of(blanks + '\0'), Plot3DEncoding_Binary);
}

TEST_F(Encoding, BinaryFileWithAPrintableBeginningIsText) {
    EXPECT_EQ(of(std::string(200, '1') + threeNumbers), Plot3DEncoding_Ascii);
}

TEST_F(Encoding, EveryFormOfRecordIsFound) {
    for (const Order_e order : {Order_e::Native, Order_e::Swapped}) {
        for (const int width : {4, 8}) {
            sniff(FileBytes(order, width).record(threeNumbers).record("7").str());
            EXPECT_EQ(file->encoding, Plot3DEncoding_FortranUnformatted);
            EXPECT_EQ(file->byteSwap, order == Order_e::Swapped);
            EXPECT_EQ(file->markerSize, static_cast<std::uint32_t>(width));
        }
    }
}

TEST_F(Encoding, PlainBinaryThatTilesIsTakenForRecords) {
    EXPECT_EQ(of(FileBytes().integers({4, 17, 4}).str()), Plot3DEncoding_FortranUnformatted);
}

// 16 zero bytes are empty records in every form.
TEST_F(Encoding, FirstFormWinsOverOthersThatTileToo) {
    sniff(std::string(16, '\0'));
    EXPECT_EQ(file->encoding, Plot3DEncoding_FortranUnformatted);
    EXPECT_FALSE(file->byteSwap);
    EXPECT_EQ(file->markerSize, 4U);
}

TEST_F(Encoding, WhatIsNeitherTextNorRecordsIsPlainBinary) {
    sniff(FileBytes(Order_e::Swapped).integers({2, 3, 5}).str());
    EXPECT_EQ(file->encoding, Plot3DEncoding_Binary);
    EXPECT_FALSE(file->byteSwap);
    EXPECT_EQ(file->markerSize, 4U);
}

TEST_F(Encoding, ByteBehindTheLastRecordMakesPlainBinary) {
    EXPECT_EQ(of(FileBytes().record(threeNumbers).raw("x").str()), Plot3DEncoding_Binary);
}

// A leading marker of a chain leaves a boundary behind even if the walk fails.
TEST_F(Encoding, PlainBinaryKeepsNoBoundariesOfFailedForms) {
    sniff(FileBytes().integers({-2147483639, 3, 5}).str());
    EXPECT_EQ(file->encoding, Plot3DEncoding_Binary);
    EXPECT_TRUE(file->segmentBoundaries.empty());
}

TEST_F(Encoding, BigFileCostsNoMoreThanItsFirstBytes) {
    constexpr std::int64_t eightGiB = std::int64_t{8} << 30;
    disk.place("wing.x", eightGiB, 0, FileBytes().integers({101, 103, 107, 1, 2, 3}).str());
    EXPECT_EQ(sniffStored().encoding, Plot3DEncoding_Binary);
    EXPECT_LE(disk.bytesRead, 16384);
    EXPECT_LE(disk.readCount, 4);
}

// Empty records, one after the other: slow to walk one by one, quick in bulk.
TEST_F(Encoding, ZerosAreEmptyRecordsAndReadOnce) {
    constexpr std::int64_t size = 64 << 20;
    disk.place("wing.x", size, 0, "");
    EXPECT_EQ(sniffStored().encoding, Plot3DEncoding_FortranUnformatted);
    EXPECT_LE(disk.bytesRead, size + 8192);
}

} // namespace
} // namespace quorvia::quorutildataio
