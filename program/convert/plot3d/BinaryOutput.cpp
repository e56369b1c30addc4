#include "convert/plot3d/BinaryOutput.h"

#include <algorithm>
#include <bit>
#include <cassert>

#include "convert/contents/ValueConversion.h"

namespace plot3d::program {

namespace {

constexpr int longMarker = 8;

bool isOfTheMachine(ByteOrder order) {
    return (order == ByteOrder::Little) == (std::endian::native == std::endian::little);
}

} // namespace

void BinaryOutput::put(ValueType type, void* values, std::int64_t count) {
    if (!isOfTheMachine(order_))
        swapBytes(values, type, count);
    putBytes(static_cast<const char*>(values), count * width(type));
}

void BinaryOutput::putBytes(const char* bytes, std::int64_t count) {
    out_.write(bytes, static_cast<std::size_t>(count));
}

void FortranOutput::beginRecord(std::int64_t payloadBytes) {
    recordLeft_ = payloadBytes;
    isFirst_ = true;
    beginSegment();
}

void FortranOutput::endRecord() {
    assert(recordLeft_ == 0 && segmentLeft_ == 0);
    endSegment();
}

void FortranOutput::putBytes(const char* bytes, std::int64_t count) {
    while (count > 0) {
        if (segmentLeft_ == 0) {
            endSegment();
            beginSegment();
        }
        const std::int64_t part = std::min(count, segmentLeft_);
        BinaryOutput::putBytes(bytes, part);
        bytes += part;
        count -= part;
        recordLeft_ -= part;
        segmentLeft_ -= part;
    }
}

void FortranOutput::beginSegment() {
    segment_ = markerBytes_ == longMarker ? recordLeft_ : std::min(recordLeft_, longest_);
    segmentLeft_ = segment_;
    putMarker(segment_ < recordLeft_ ? -segment_ : segment_);
}

void FortranOutput::endSegment() {
    putMarker(isFirst_ ? segment_ : -segment_);
    isFirst_ = false;
}

void FortranOutput::putMarker(std::int64_t value) {
    auto shortValue = static_cast<std::int32_t>(value);
    const bool isLong = markerBytes_ == longMarker;
    if (!isOfTheMachine(order_) && isLong)
        swapBytes(&value, ValueType::Float64, 1);
    else if (!isOfTheMachine(order_))
        swapBytes(&shortValue, ValueType::Int32, 1);
    if (isLong)
        out_.put(value);
    else
        out_.put(shortValue);
}

} // namespace plot3d::program
