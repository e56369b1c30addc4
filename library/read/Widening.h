// Values of a field as 64-bit reals, without a second array.
#pragma once

#include <cstdint>

#include <plot3d/Field.h>

namespace plot3dlib {

/// Where `count` values of a type are put that widen() is to make 64-bit reals of: the end of the
/// room that these take.
inline void* placeToWidenFrom(plot3d::ValueType type, double* reals, std::int64_t count) {
    return reinterpret_cast<char*>(reals) + count * (8 - plot3d::width(type));
}

/// Makes `reals` of the values at placeToWidenFrom, which are in the machine's byte order.
void widen(plot3d::ValueType type, double* reals, std::int64_t count);

} // namespace plot3dlib
