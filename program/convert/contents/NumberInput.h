// Numbers of a PLOT3D file one after the other, whatever its encoding, with skips that cost little.
#pragma once

#include <cstdint>
#include <memory>
#include <stop_token>

#include <plot3d/FileInfo.h>

namespace plot3d::program {

class NumberInput {
public:
    virtual ~NumberInput() = default;

    /// All of these throw Error (Unreadable) where the file ends or can't be read.
    virtual std::int32_t nextInteger() = 0;
    virtual double nextReal() = 0;
    virtual void skipReals(std::int64_t count) = 0;
    /// To the beginning of the next record, whatever is left of this one. Only Fortran has any.
    virtual void nextRecord() {}
    /// Reals left in the record; -1 where there are no records.
    virtual std::int64_t realsLeft() const { return -1; }
};

/// `info` tells encoding, byte order, markers and precision.
std::unique_ptr<NumberInput> openNumbers(const FileInfo& info, const std::stop_token& stop);

} // namespace plot3d::program
