#include "plot3dwriter/BinaryNumbers.h"

#include <algorithm>
#include <bit>

namespace quorvia::plot3dwriter {

OrderedBytes_s::OrderedBytes_s(std::uint64_t bits, std::size_t byteWidth, ByteOrder_e order)
    : width(byteWidth) {
    for (std::size_t place = 0; place < width; ++place) {
        const std::size_t index = order == ByteOrder_e::Little ? place : width - 1 - place;
        bytes[index] = static_cast<char>((bits >> (8 * place)) & 0xFFU);
    }
}

void BinaryNumbers::putInteger(std::int32_t value) {
    putBytes(OrderedBytes_s(std::bit_cast<std::uint32_t>(value), 4, form_.byteOrder).view());
}

void BinaryNumbers::putReal(double value) {
    if (form_.precision == Precision_e::Double) {
        putBytes(OrderedBytes_s(std::bit_cast<std::uint64_t>(value), 8, form_.byteOrder).view());
        return;
    }
    const float narrowed = static_cast<float>(value);
    putBytes(OrderedBytes_s(std::bit_cast<std::uint32_t>(narrowed), 4, form_.byteOrder).view());
}

void FortranNumbers::beginRecord(std::int64_t payloadBytes) {
    recordBytesLeft_ = payloadBytes;
    isFirstSegment_ = true;
    beginSegment();
}

void FortranNumbers::endRecord() {
    if (recordBytesLeft_ != 0)
        throw WriteFault("record ended before its payload was complete");
    endSegment();
}

void FortranNumbers::putBytes(std::string_view bytes) {
    refuseOverrun(static_cast<std::int64_t>(bytes.size()));
    while (!bytes.empty()) {
        passSegmentEnd();
        const std::size_t part =
            std::min(bytes.size(), static_cast<std::size_t>(segmentBytesLeft_));
        sink_.write(bytes.substr(0, part));
        bytes.remove_prefix(part);
        recordBytesLeft_ -= static_cast<std::int64_t>(part);
        segmentBytesLeft_ -= static_cast<std::int64_t>(part);
    }
}

void FortranNumbers::putZeros(std::int64_t byteCount) {
    refuseOverrun(byteCount);
    while (byteCount > 0) {
        passSegmentEnd();
        const std::int64_t part = std::min(byteCount, segmentBytesLeft_);
        sink_.skip(part);
        byteCount -= part;
        recordBytesLeft_ -= part;
        segmentBytesLeft_ -= part;
    }
}

void FortranNumbers::beginSegment() {
    const bool maySplit = form_.markerBytes == 4;
    segmentBytes_ = maySplit ? std::min(recordBytesLeft_, form_.maxSegmentBytes) : recordBytesLeft_;
    segmentBytesLeft_ = segmentBytes_;
    const bool isLast = segmentBytes_ == recordBytesLeft_;
    putMarker(isLast ? segmentBytes_ : -segmentBytes_);
}

void FortranNumbers::endSegment() {
    putMarker(isFirstSegment_ ? segmentBytes_ : -segmentBytes_);
    isFirstSegment_ = false;
}

/// A segment's end is passed only when more bytes come, so that the last one is left to endRecord.
void FortranNumbers::passSegmentEnd() {
    if (segmentBytesLeft_ > 0)
        return;
    endSegment();
    beginSegment();
}

void FortranNumbers::putMarker(std::int64_t value) {
    const auto width = static_cast<std::size_t>(form_.markerBytes);
    sink_.write(OrderedBytes_s(std::bit_cast<std::uint64_t>(value), width, form_.byteOrder).view());
}

void FortranNumbers::refuseOverrun(std::int64_t byteCount) const {
    if (byteCount > recordBytesLeft_)
        throw WriteFault("record is longer than its marker says");
}

} // namespace quorvia::plot3dwriter
