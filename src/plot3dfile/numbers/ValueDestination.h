// Where single values land: in an array of the host's, or in the host's own hands through its set
// function.
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

class ValueDestination {
public:
    /// `dest` is a QuorFieldHandle if `setValue` is given, otherwise an array of 32-bit integers,
    /// or of reals of the file's precision. Borrowed.
    ValueDestination(const Plot3DFile_s& file, void* dest, QuorFieldSetFunction setValue)
        : dest_(dest), setValue_(setValue), isDoublePrecision_(file.isDoublePrecision) {}

    /// `index` counts from 0. A real of a file of single precision is narrowed in any case.
    void store(std::int64_t index, double value) const {
        if (isDoublePrecision_)
            storeAs<double>(index, value);
        else
            storeAs<float>(index, static_cast<float>(value));
    }
    void store(std::int64_t index, std::int32_t value) const {
        storeAs<std::int32_t>(index, value);
    }

private:
    template <typename Number>
    void storeAs(std::int64_t index, Number value) const {
        if (setValue_ != nullptr)
            setValue_(static_cast<QuorFieldHandle>(dest_), index, value);
        else
            static_cast<Number*>(dest_)[index] = value;
    }

    void* dest_;
    QuorFieldSetFunction setValue_;
    bool isDoublePrecision_;
};

} // namespace quorvia::quorutildataio
