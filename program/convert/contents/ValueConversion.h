// Values of one type as values of another.
#pragma once

#include <cstdint>

#include <plot3d/Field.h>

namespace plot3d::program {

/// `to` must not overlap `from` unless the types are the same and so are the places. A real is
/// narrowed to the nearest of its new width; an integer becomes a real exactly, or the nearest.
/// Reals don't become integers.
void convertValues(ValueType fromType, const void* from, ValueType toType, void* to,
                   std::int64_t count);

/// Whether narrowing to 32 bits would lose any of these values, NaN apart.
bool losesByNarrowing(const double* values, std::int64_t count);

/// Turns the bytes of each value around, in place.
void swapBytes(void* values, ValueType type, std::int64_t count);

} // namespace plot3d::program
