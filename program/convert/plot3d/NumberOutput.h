// Numbers on their way into a PLOT3D file. What is written speaks of records, runs and numbers;
// each encoding takes from that what it knows. docs/format.md tells the encodings.
#pragma once

#include <cstdint>
#include <memory>

#include "convert/contents/FileForm.h"
#include "convert/output/ByteOutput.h"

namespace plot3d::program {

/// How numbers stand in text: all on one line, or broken over lines.
enum class Run_e : unsigned char { OneLine, Block };

class NumberOutput {
public:
    virtual ~NumberOutput() = default;

    /// Opens a record of exactly `payloadBytes`; records don't nest. Only Fortran has any.
    virtual void beginRecord(std::int64_t payloadBytes) = 0;
    virtual void endRecord() = 0;
    /// Runs lie inside records. Only text knows them.
    virtual void beginRun(Run_e run) = 0;
    virtual void endRun() = 0;
    /// `values` are in the machine's byte order, and may be changed. Throws Error (Unsupported) for
    /// a value that the encoding has no form for.
    virtual void put(ValueType type, void* values, std::int64_t count) = 0;
};

/// `out` must outlive the result.
std::unique_ptr<NumberOutput> makeNumberOutput(ByteOutput& out, const FileForm_s& form,
                                               int tokensPerLine);

} // namespace plot3d::program
