#include "read/Widening.h"

#include <array>
#include <cstring>

namespace plot3dlib {

namespace {

constexpr std::int64_t blockLength = 512;

template <typename Number>
void widenValues(const char* from, double* reals, std::int64_t count) {
    // A block's values are taken away before its reals are put down: those of the last ones lie
    // where the values were.
    std::array<Number, blockLength> block;
    for (; count >= blockLength; count -= blockLength) {
        std::memcpy(block.data(), from, sizeof(block));
        for (std::size_t n = 0; n < block.size(); ++n)
            reals[n] = static_cast<double>(block[n]);
        from += sizeof(block);
        reals += blockLength;
    }
    const auto rest = static_cast<std::size_t>(count);
    std::memcpy(block.data(), from, rest * sizeof(Number));
    for (std::size_t n = 0; n < rest; ++n)
        reals[n] = static_cast<double>(block[n]);
}

} // namespace

void widen(plot3d::ValueType type, double* reals, std::int64_t count) {
    const char* from = static_cast<const char*>(placeToWidenFrom(type, reals, count));
    switch (type) {
    case plot3d::ValueType::Float32:
        return widenValues<float>(from, reals, count);
    case plot3d::ValueType::Int32:
        return widenValues<std::int32_t>(from, reals, count);
    case plot3d::ValueType::Float64:
        return;
    }
}

} // namespace plot3dlib
