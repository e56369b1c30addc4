// Numbers as text, with as many digits as give the same value back and no more.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include <plot3d/Field.h>

namespace plot3d::program {

/// Appends value `index` of an array of `type`: "0.1", "1e+30", "-5", "nan", "inf".
void appendNumber(std::string& text, ValueType type, const void* values, std::size_t index);
void appendNumber(std::string& text, double value);
void appendNumber(std::string& text, float value);
void appendNumber(std::string& text, std::int64_t value);

} // namespace plot3d::program
