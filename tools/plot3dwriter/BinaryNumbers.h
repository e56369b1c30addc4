// Numbers as bytes: back to back, or inside Fortran records.
#pragma once

#include <array>
#include <string_view>

#include "plot3dwriter/NumberSink.h"

namespace quorvia::plot3dwriter {

/// The lowest `width` bytes of `bits`, 1 to 8 of them, in the given order.
struct OrderedBytes_s {
    std::array<char, 8> bytes{};
    std::size_t width = 0;

    OrderedBytes_s(std::uint64_t bits, std::size_t byteWidth, ByteOrder_e order);
    std::string_view view() const { return {bytes.data(), width}; }
};

/// Plain binary. Records and runs leave no trace.
class BinaryNumbers : public NumberSink {
public:
    BinaryNumbers(ByteSink& sink, const FileForm_s& form) : sink_(sink), form_(form) {}

    void beginRecord(std::int64_t) override {}
    void endRecord() override {}
    void beginRun(Run_e) override {}
    void endRun() override {}
    void putInteger(std::int32_t value) override;
    void putReal(double value) override;
    void putHole(std::int64_t byteCount) override { putZeros(byteCount); }

protected:
    virtual void putBytes(std::string_view bytes) { sink_.write(bytes); }
    virtual void putZeros(std::int64_t byteCount) { sink_.skip(byteCount); }

    ByteSink& sink_;
    const FileForm_s form_;
};

/// Fortran unformatted records. A marker holds the payload's byte count as a signed integer. With
/// 4-byte markers a longer payload than FileForm_s::maxSegmentBytes is cut into segments, wherever
/// the cut falls, even inside a number. A negative leading marker says that another segment
/// follows, a negative trailing marker that one came before.
class FortranNumbers final : public BinaryNumbers {
public:
    using BinaryNumbers::BinaryNumbers;

    void beginRecord(std::int64_t payloadBytes) override;
    void endRecord() override;

private:
    void putBytes(std::string_view bytes) override;
    void putZeros(std::int64_t byteCount) override;

    void beginSegment();
    void endSegment();
    void passSegmentEnd();
    void putMarker(std::int64_t value);
    void refuseOverrun(std::int64_t byteCount) const;

    std::int64_t recordBytesLeft_ = 0;  ///< of the record's payload
    std::int64_t segmentBytesLeft_ = 0; ///< of the segment's payload
    std::int64_t segmentBytes_ = 0;
    bool isFirstSegment_ = true;
};

} // namespace quorvia::plot3dwriter
