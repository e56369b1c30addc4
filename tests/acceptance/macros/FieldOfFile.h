// What a field of small files should hold, held against the CRC-32 of an outcome.
#pragma once

#include <cstdint>

#include "support/Json.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {

/// Points that a load takes of a direction, from 1.
struct Range_s {
    std::int32_t start = 1;
    std::int32_t end = 0; // 0: the last
    std::int32_t skip = 1;
};

enum class FieldForm_e { Single, Double, IBlank };

/// What a field of `grid` should hold: the values of the file's `variable`, both from 0, at the
/// points of the three ranges. Of the form IBlank the variable does not matter.
struct FieldOfFile_s {
    GridDims_s dims;
    std::int32_t grid = 0;
    std::int32_t variable = 0;
    double shift = 0;
    Range_s i = {};
    Range_s j = {};
    Range_s k = {};
    FieldForm_e form = FieldForm_e::Single;
};

/// Whether the field of an outcome has as many values as expected, with their CRC-32.
bool holds(const Json& field, const FieldOfFile_s& expected);

} // namespace quorvia::testsupport
