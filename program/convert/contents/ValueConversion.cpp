#include "convert/contents/ValueConversion.h"

#include <cassert>
#include <cmath>
#include <cstring>

namespace plot3d::program {

namespace {

template <class From, class To>
void convert(const void* from, void* to, std::int64_t count) {
    const auto* const source = static_cast<const From*>(from);
    auto* const target = static_cast<To*>(to);
    for (std::int64_t index = 0; index < count; ++index)
        target[index] = static_cast<To>(source[index]);
}

template <class To>
void convertTo(ValueType fromType, const void* from, void* to, std::int64_t count) {
    switch (fromType) {
    case ValueType::Float32:
        return convert<float, To>(from, to, count);
    case ValueType::Float64:
        return convert<double, To>(from, to, count);
    case ValueType::Int32:
        return convert<std::int32_t, To>(from, to, count);
    }
}

void swapWords(std::uint32_t* words, std::int64_t count) {
    for (std::int64_t index = 0; index < count; ++index)
        words[index] = __builtin_bswap32(words[index]);
}

void swapWords(std::uint64_t* words, std::int64_t count) {
    for (std::int64_t index = 0; index < count; ++index)
        words[index] = __builtin_bswap64(words[index]);
}

} // namespace

void convertValues(ValueType fromType, const void* from, ValueType toType, void* to,
                   std::int64_t count) {
    if (fromType == toType) {
        if (from != to)
            std::memcpy(to, from, static_cast<std::size_t>(count * width(fromType)));
        return;
    }
    assert(toType != ValueType::Int32);
    if (toType == ValueType::Float32)
        convertTo<float>(fromType, from, to, count);
    else
        convertTo<double>(fromType, from, to, count);
}

bool losesByNarrowing(const double* values, std::int64_t count) {
    for (std::int64_t index = 0; index < count; ++index) {
        const double value = values[index];
        if (!std::isnan(value) && static_cast<double>(static_cast<float>(value)) != value)
            return true;
    }
    return false;
}

void swapBytes(void* values, ValueType type, std::int64_t count) {
    if (width(type) == 8)
        swapWords(static_cast<std::uint64_t*>(values), count);
    else
        swapWords(static_cast<std::uint32_t*>(values), count);
}

} // namespace plot3d::program
