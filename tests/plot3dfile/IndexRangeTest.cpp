#include "plot3dfile/numbers/IndexRange.h"
#include "RecordFixture.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;

constexpr bool iBlank = true;
constexpr bool reals = false;
constexpr std::int32_t allPlanes = -1;

TEST(IndexRange, SelectsTheStrideAndAlwaysTheEnd) {
    const Plot3DIndexRange_s range = {1, 10, 4};
    std::vector<std::int64_t> selected;
    for (std::int64_t index = 0; index <= 12; ++index)
        if (isInRange(range, index))
            selected.push_back(index);
    EXPECT_EQ(selected, std::vector<std::int64_t>({1, 5, 9, 10}));
    EXPECT_EQ(countInRange(range), 4);
}

TEST(IndexRange, CountAgreesWithSelection) {
    for (std::int32_t start = 1; start <= 7; ++start)
        for (std::int32_t end = start; end <= 11; ++end)
            for (std::int32_t skip = 1; skip <= 5; ++skip) {
                std::int64_t selected = 0;
                for (std::int64_t index = 0; index <= 13; ++index)
                    selected += isInRange({start, end, skip}, index) ? 1 : 0;
                EXPECT_EQ(countInRange({start, end, skip}), selected);
            }
}

TEST(IndexRange, OfOneIndexCountsOneWhateverTheSkip) {
    EXPECT_EQ(countInRange({3, 3, 1}), 1);
    EXPECT_EQ(countInRange({3, 3, 1000}), 1);
}

// A grid of 3 x 5 x 7 points; a value names its place.
class SubRange : public testsupport::RecordFixture {
protected:
    static constexpr std::int32_t iMax = 3, jMax = 5, kMax = 7;
    static constexpr Plot3DIndexRange_s iRange = {1, 3, 2};
    static constexpr Plot3DIndexRange_s jRange = {2, 5, 2};
    static constexpr Plot3DIndexRange_s kRange = {3, 7, 3};

    static std::int32_t place(std::int32_t i, std::int32_t j, std::int32_t k) {
        return i + 100 * j + 10000 * k;
    }
    /// The values of planes `first` to `last`, as a file has them.
    template <typename Number>
    static std::vector<Number> planes(std::int32_t first, std::int32_t last) {
        std::vector<Number> values;
        for (std::int32_t k = first; k <= last; ++k)
            for (std::int32_t j = 1; j <= jMax; ++j)
                for (std::int32_t i = 1; i <= iMax; ++i)
                    values.push_back(static_cast<Number>(place(i, j, k)));
        return values;
    }
    static std::string textOf(const std::vector<std::int32_t>& values) {
        std::string text;
        for (const std::int32_t value : values)
            text += std::to_string(value) + "\n";
        return text;
    }
    template <typename Number>
    static std::vector<Number> selected() {
        std::vector<Number> values;
        for (const std::int32_t k : {3, 6, 7})
            for (const std::int32_t j : {2, 4, 5})
                for (const std::int32_t i : {1, 3})
                    values.push_back(static_cast<Number>(place(i, j, k)));
        return values;
    }
    bool read(bool isIBlank, void* dest, std::int32_t plane = allPlanes) {
        return readIndexRange(*file, plane, iMax, jMax, kMax, iRange, jRange, kRange, isIBlank,
                              dest, nullptr);
    }
    /// What is read from the open file, in as many values as are selected.
    template <typename Number>
    std::vector<Number> values(bool isIBlank = reals) {
        std::vector<Number> all(18, Number(-1));
        EXPECT_TRUE(read(isIBlank, all.data()));
        return all;
    }
};

TEST_F(SubRange, KeepsTheSelectedPointsOfABinaryFile) {
    openBinary(FileBytes().reals(planes<float>(1, 7)).str());
    EXPECT_EQ(values<float>(), selected<float>());
    EXPECT_EQ(file->stream->tell(), 4 * 105);
}

TEST_F(SubRange, KeepsTheSelectedPointsInTheOtherByteOrder) {
    openBinary(FileBytes(Order_e::Swapped).doubles(planes<double>(1, 7)).str()).byteSwap = true;
    file->isDoublePrecision = true;
    EXPECT_EQ(values<double>(), selected<double>());
}

TEST_F(SubRange, KeepsTheSelectedPointsOfText) {
    openText(textOf(planes<std::int32_t>(1, 7)));
    EXPECT_EQ(values<float>(), selected<float>());
    openText(textOf(planes<std::int32_t>(1, 7)));
    EXPECT_EQ(values<std::int32_t>(iBlank), selected<std::int32_t>());
}

TEST_F(SubRange, OfIBlankIs32BitIntegersInDoublePrecisionToo) {
    openBinary(FileBytes().integers(planes<std::int32_t>(1, 7)).str()).isDoublePrecision = true;
    EXPECT_EQ(values<std::int32_t>(iBlank), selected<std::int32_t>());
}

TEST_F(SubRange, StepsOverMarkersInsideASegmentedRecord) {
    std::string bytes = FileBytes().reals(planes<float>(1, 7)).str();
    openFortran(bytes.insert(200, "MARKMARK")).segmentBoundaries = {200};
    EXPECT_EQ(values<float>(), selected<float>());
}

// In planes the blocks of one variable do not follow one another: each is read by a call of its
// own.
TEST_F(SubRange, OfOnePlaneLandsAtThatPlanesPlace) {
    std::vector<float> all(18, -1.0F);
    for (std::int32_t plane = 0; plane < kMax; ++plane) {
        openBinary(FileBytes().reals(planes<float>(plane + 1, plane + 1)).str());
        EXPECT_TRUE(read(reals, all.data(), plane));
        EXPECT_EQ(file->stream->tell(), 4 * 15);
    }
    EXPECT_EQ(all, selected<float>());
}

TEST_F(SubRange, OfAPlaneThatIsNotSelectedIsReadAndDropped) {
    openText(textOf(planes<std::int32_t>(1, 1)));
    std::vector<float> all(18, -1.0F);
    EXPECT_TRUE(read(reals, all.data(), 0));
    EXPECT_EQ(all, std::vector<float>(18, -1.0F));
    EXPECT_NE(file->stream->tell(), 0);
}

TEST_F(SubRange, WithoutAPlaneReadsNothing) {
    openBinary("");
    EXPECT_TRUE(read(reals, nullptr, -999));
    EXPECT_TRUE(readIndexRange(*file, allPlanes, iMax, jMax, 0, iRange, jRange, kRange, reals,
                               nullptr, nullptr));
    EXPECT_EQ(disk.readCount, 0);
}

TEST_F(SubRange, ThatIsCutShortKeepsWhatCame) {
    std::string bytes = FileBytes().reals(planes<float>(1, 7)).str();
    openBinary(bytes.substr(0, bytes.size() - 3));
    std::vector<float> all(18, -1.0F), expected = selected<float>();
    expected.back() = -1.0F;
    EXPECT_FALSE(read(reals, all.data()));
    EXPECT_EQ(all, expected);
}

// The last values are not selected, but the file must have them.
TEST_F(SubRange, MustBeThereAlsoBehindTheLastSelectedPoint) {
    openText(textOf(planes<std::int32_t>(1, 7)).substr(0, 600));
    std::vector<float> all(18);
    EXPECT_FALSE(readIndexRange(*file, allPlanes, iMax, jMax, kMax, {1, 1, 1}, {1, 1, 1}, {1, 1, 1},
                                reals, all.data(), nullptr));
    EXPECT_EQ(all[0], 10101.0F);
}

std::vector<double> gTaken;

void take(QuorFieldHandle, std::int64_t index, double value) {
    ASSERT_EQ(index, std::ssize(gTaken));
    gTaken.push_back(value);
}

TEST_F(SubRange, GoesThroughTheSetFunction) {
    gTaken.clear();
    openBinary(FileBytes().reals(planes<float>(1, 7)).str());
    EXPECT_TRUE(readIndexRange(*file, allPlanes, iMax, jMax, kMax, iRange, jRange, kRange, reals,
                               nullptr, take));
    EXPECT_EQ(gTaken, selected<double>());
}

// Rows longer than a run of values.
TEST_F(SubRange, TakesRowsOfAnyLength) {
    std::vector<float> row(5003);
    for (std::size_t index = 0; index < row.size(); ++index)
        row[index] = static_cast<float>(index + 1);
    openBinary(FileBytes().reals(row).reals(row).str());
    std::vector<float> ends(8);
    EXPECT_TRUE(readIndexRange(*file, allPlanes, 5003, 2, 1, {3, 5002, 2000}, {1, 2, 1}, {1, 1, 1},
                               reals, ends.data(), nullptr));
    EXPECT_EQ(ends, std::vector<float>({3, 2003, 4003, 5002, 3, 2003, 4003, 5002}));
}

} // namespace
} // namespace quorvia::quorutildataio
