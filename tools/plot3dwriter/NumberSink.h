// Numbers, records and lines on their way into a file, whatever its encoding. The walk over a
// file's contents speaks to this interface only; each implementation takes from it what its
// encoding knows.
#pragma once

#include <cstdint>
#include <memory>

#include "plot3dwriter/ByteSink.h"
#include "plot3dwriter/FileForm.h"

namespace quorvia::plot3dwriter {

/// How a run of numbers stands in a text file.
enum class Run_e {
    OneLine, ///< all on one line, for headers and scalars
    Block    ///< broken over lines, for fields and connectivity
};

class NumberSink {
public:
    virtual ~NumberSink() = default;

    /// Opens a record of exactly `payloadBytes`; records don't nest. Only Fortran has any.
    virtual void beginRecord(std::int64_t payloadBytes) = 0;
    virtual void endRecord() = 0;

    /// Opens a run of numbers; runs lie inside records and don't nest. Only text knows them.
    virtual void beginRun(Run_e run) = 0;
    virtual void endRun() = 0;

    virtual void putInteger(std::int32_t value) = 0;

    /// A value is narrowed to the precision of the file.
    virtual void putReal(double value) = 0;

    /// Bytes that are left unwritten in place of numbers. Not for text.
    virtual void putHole(std::int64_t byteCount) = 0;
};

/// The sink must outlive the result.
std::unique_ptr<NumberSink> makeNumberSink(ByteSink& sink, const FileForm_s& form);

} // namespace quorvia::plot3dwriter
