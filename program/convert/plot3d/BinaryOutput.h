// Numbers as bytes: back to back, or inside Fortran records.
#pragma once

#include "convert/plot3d/NumberOutput.h"

namespace plot3d::program {

/// Plain binary. Records and runs leave no trace.
class BinaryOutput : public NumberOutput {
public:
    BinaryOutput(ByteOutput& out, ByteOrder order) : out_(out), order_(order) {}

    void beginRecord(std::int64_t) override {}
    void endRecord() override {}
    void beginRun(Run_e) override {}
    void endRun() override {}
    void put(ValueType type, void* values, std::int64_t count) override;

protected:
    virtual void putBytes(const char* bytes, std::int64_t count);

    ByteOutput& out_;
    ByteOrder order_;
};

/// Fortran unformatted records. With 4-byte markers a payload longer than a segment is cut,
/// wherever the cut falls: a negative leading marker says that another segment follows, a negative
/// trailing one that one came before.
class FortranOutput final : public BinaryOutput {
public:
    FortranOutput(ByteOutput& out, const FileForm_s& form)
        : BinaryOutput(out, form.order), markerBytes_(form.markerBytes),
          longest_(form.segmentBytes) {}

    void beginRecord(std::int64_t payloadBytes) override;
    void endRecord() override;

private:
    void putBytes(const char* bytes, std::int64_t count) override;
    void beginSegment();
    void endSegment();
    void putMarker(std::int64_t value);

    int markerBytes_;
    std::int64_t longest_;
    std::int64_t recordLeft_ = 0;  // bytes of the payload
    std::int64_t segmentLeft_ = 0; // bytes of the segment's payload
    std::int64_t segment_ = 0;     // its payload
    bool isFirst_ = true;
};

} // namespace plot3d::program
