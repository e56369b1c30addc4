// Values read one by one out of a Fortran record that is stored as several segments. The lengths of
// the segments are lowered to a few bytes, so that a boundary comes to stand at every place of a
// value; at the true length it stands inside one, too.
#include <numeric>

#include "RecordFixture.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "plot3dfile/numbers/IndexRange.h"
#include "plot3dfile/numbers/NumberStream.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;

constexpr std::int32_t allPlanes = -1;
constexpr std::int64_t longestSegment = 23; // longer ones cut a value at no other place

std::vector<double> gTaken;

void take(QuorFieldHandle, std::int64_t index, double value) {
    gTaken.resize(static_cast<std::size_t>(index) + 1, -1.0);
    gTaken.back() = value;
}

template <typename Number>
std::vector<Number> countedFromOne(std::size_t count) {
    std::vector<Number> numbers(count);
    std::iota(numbers.begin(), numbers.end(), Number(1));
    return numbers;
}

struct Form_s {
    Order_e order;
    bool isDouble;
};

class ValuesAcrossSegments : public testsupport::RecordFixture {
protected:
    static constexpr Form_s everyForm[] = {{Order_e::Native, false},
                                           {Order_e::Native, true},
                                           {Order_e::Swapped, false},
                                           {Order_e::Swapped, true}};

    static std::string realsOf(Form_s form, std::size_t count) {
        FileBytes bytes(form.order);
        return form.isDouble ? bytes.doubles(countedFromOne<double>(count)).str()
                             : bytes.reals(countedFromOne<float>(count)).str();
    }

    /// Opens a file of this one record, at its payload, in segments of so many bytes each. The
    /// markers between them hold what no value is.
    void openSegments(const std::string& payload, std::int64_t segmentBytes, Form_s form = {}) {
        std::string bytes = "LEAD";
        std::vector<std::int64_t> boundaries;
        for (std::size_t at = 0; at < payload.size();
             at += static_cast<std::size_t>(segmentBytes)) {
            bytes += payload.substr(at, static_cast<std::size_t>(segmentBytes));
            boundaries.push_back(std::ssize(bytes));
            bytes += "\x7F\x7F\x7F\x7E\x7F\x7F\x7F\x7E";
        }
        openFortran(bytes).segmentBoundaries = boundaries;
        file->nextRecordStart = boundaries.back() + 4;
        file->byteSwap = form.order == Order_e::Swapped;
        file->isDoublePrecision = form.isDouble;
        EXPECT_TRUE(file->stream->seek(4));
    }

    /// The values of a 3 x 2 x 2 block at I 1 and 3, from the open file.
    template <typename Number>
    std::vector<Number> firstAndThird(bool isIBlank) {
        std::vector<Number> selected(8, Number(-1));
        EXPECT_TRUE(readIndexRange(*file, allPlanes, 3, 2, 2, {1, 3, 2}, {1, 2, 1}, {1, 2, 1},
                                   isIBlank, selected.data(), nullptr));
        return selected;
    }
};

TEST_F(ValuesAcrossSegments, OfIndexRangesAreWholeWhereverTheBoundaryStands) {
    for (const Form_s form : everyForm)
        for (std::int64_t segment = 1; segment <= longestSegment; ++segment) {
            openSegments(realsOf(form, 12), segment, form);
            if (form.isDouble)
                ASSERT_EQ(firstAndThird<double>(false),
                          std::vector<double>({1, 3, 4, 6, 7, 9, 10, 12}))
                    << segment;
            else
                ASSERT_EQ(firstAndThird<float>(false),
                          std::vector<float>({1, 3, 4, 6, 7, 9, 10, 12}))
                    << segment;
        }
}

TEST_F(ValuesAcrossSegments, OfIBlankAreWholeWhereverTheBoundaryStands) {
    for (const Order_e order : {Order_e::Native, Order_e::Swapped})
        for (std::int64_t segment = 1; segment <= longestSegment; ++segment) {
            const auto numbers = countedFromOne<std::int32_t>(12);
            openSegments(FileBytes(order).integers(numbers).str(), segment, {order, true});
            ASSERT_EQ(firstAndThird<std::int32_t>(true),
                      std::vector<std::int32_t>({1, 3, 4, 6, 7, 9, 10, 12}))
                << segment;
        }
}

// As the host asks for them that has no plain array.
TEST_F(ValuesAcrossSegments, ThroughTheSetFunctionAreWholeWhereverTheBoundaryStands) {
    for (const Form_s form : everyForm)
        for (std::int64_t segment = 1; segment <= longestSegment; ++segment) {
            openSegments(realsOf(form, 7), segment, form);
            gTaken.clear();
            EXPECT_TRUE(readReals(*file, true, 0, 7, nullptr, take));
            ASSERT_EQ(gTaken, countedFromOne<double>(7)) << segment;
        }
}

TEST_F(ValuesAcrossSegments, OfMixedKindsAreWholeWhereverTheBoundaryStands) {
    for (const Order_e order : {Order_e::Native, Order_e::Swapped})
        for (std::int64_t segment = 1; segment <= longestSegment; ++segment) {
            openSegments(FileBytes(order).integers({7, -11}).doubles({0.25}).integers({13}).str(),
                         segment, {order, true});
            std::int32_t first = 0, second = 0, third = 0;
            double real = 0.0;
            EXPECT_TRUE(readInteger(*file, first) && readInteger(*file, second) &&
                        readReal(*file, real) && readInteger(*file, third));
            ASSERT_EQ(std::vector<double>({1.0 * first, 1.0 * second, real, 1.0 * third}),
                      std::vector<double>({7, -11, 0.25, 13}))
                << segment;
        }
}

// As one block: the rule for one boundary, wherever it stands in a value.
TEST_F(ValuesAcrossSegments, OfABlockAreWholeWhereverItsOneBoundaryStands) {
    for (const Form_s form : everyForm)
        for (std::int64_t boundary = 1; boundary < 24; ++boundary) {
            std::string bytes =
                realsOf(form, 7).insert(static_cast<std::size_t>(boundary), "MARKmark");
            openFortran(bytes).segmentBoundaries = {boundary};
            file->byteSwap = form.order == Order_e::Swapped;
            std::vector<float> floats(7);
            std::vector<double> doubles(7);
            file->isDoublePrecision = form.isDouble;
            void* target = form.isDouble ? static_cast<void*>(doubles.data()) : floats.data();
            EXPECT_TRUE(readReals(*file, true, 0, 7, target, nullptr));
            if (!form.isDouble)
                doubles.assign(floats.begin(), floats.end());
            ASSERT_EQ(doubles, countedFromOne<double>(7)) << boundary;
            EXPECT_EQ(file->stream->tell(), std::ssize(bytes));
        }
}

// Rows longer than a run of values, with a boundary in every run.
TEST_F(ValuesAcrossSegments, OfLongRowsAreWhole) {
    openSegments(realsOf({}, 5003), 4099);
    std::vector<float> ends(4);
    EXPECT_TRUE(readIndexRange(*file, allPlanes, 5003, 1, 1, {3, 5002, 2000}, {1, 1, 1}, {1, 1, 1},
                               false, ends.data(), nullptr));
    EXPECT_EQ(ends, std::vector<float>({3, 2003, 4003, 5002}));
}

// The position stays ahead of the markers, where a block that is passed over in one step ends too.
TEST_F(ValuesAcrossSegments, ThatEndAtABoundaryLeaveItToTheNext) {
    openSegments(realsOf({}, 3), 8);
    double value = 0.0;
    EXPECT_TRUE(readReal(*file, value) && readReal(*file, value));
    EXPECT_EQ(file->stream->tell(), 12);
    EXPECT_TRUE(readReal(*file, value));
    EXPECT_EQ(value, 3.0);
}

// The end of the last segment is noted too, but what follows is another record.
TEST_F(ValuesAcrossSegments, AreNotTakenFromTheNextRecord) {
    for (const std::int64_t segment : {5, 6, 7, 8}) {
        openSegments(realsOf({}, 2), segment);
        std::vector<float> values(4, -1.0F);
        EXPECT_FALSE(readIndexRange(*file, allPlanes, 4, 1, 1, {1, 4, 1}, {1, 1, 1}, {1, 1, 1},
                                    false, values.data(), nullptr));
        EXPECT_EQ(values, std::vector<float>({1, 2, -1, -1})) << segment;
    }
}

TEST_F(ValuesAcrossSegments, ThatBreakOffAreNone) {
    openSegments(realsOf({}, 2), 6);
    openFortran("LEAD" + realsOf({}, 2).substr(0, 6) + "MARKmark?").segmentBoundaries = {10};
    EXPECT_TRUE(file->stream->seek(8));
    double value = 5.0;
    EXPECT_FALSE(readReal(*file, value));
    EXPECT_EQ(value, 0.0);
}

// An 8-byte marker is never one of a chain, so that no boundary is noted; if one is, its width
// counts.
TEST_F(ValuesAcrossSegments, StepOverMarkersOfTheirWidth) {
    const std::string payload = realsOf({}, 2);
    openFortran("LEADLEAD" + payload.substr(0, 3) + "MARKMARKmarkmark" + payload.substr(3))
        .segmentBoundaries = {11};
    file->markerSize = 8;
    EXPECT_TRUE(file->stream->seek(8));
    double first = 0.0, second = 0.0;
    EXPECT_TRUE(readReal(*file, first) && readReal(*file, second));
    EXPECT_EQ(first, 1.0);
    EXPECT_EQ(second, 2.0);
}

TEST_F(ValuesAcrossSegments, MatterOnlyToFortran) {
    openBinary(realsOf({}, 12)).segmentBoundaries = {4, 9};
    EXPECT_EQ(firstAndThird<float>(false), std::vector<float>({1, 3, 4, 6, 7, 9, 10, 12}));
    openText("1 2 3 4 5 6 7 8 9 10 11 12").segmentBoundaries = {4, 9};
    EXPECT_EQ(firstAndThird<float>(false), std::vector<float>({1, 3, 4, 6, 7, 9, 10, 12}));
}

} // namespace
} // namespace quorvia::quorutildataio
