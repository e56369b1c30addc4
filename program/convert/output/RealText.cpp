#include "convert/output/RealText.h"

#include <array>
#include <charconv>

namespace plot3d::program {

namespace {

template <class Number>
void append(std::string& text, Number value) {
    std::array<char, 40> digits{};
    const auto [end, problem] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    text.append(digits.data(), end); // the shortest form of any number fits
}

} // namespace

void appendNumber(std::string& text, double value) {
    append(text, value);
}

void appendNumber(std::string& text, float value) {
    append(text, value);
}

void appendNumber(std::string& text, std::int64_t value) {
    append(text, value);
}

void appendNumber(std::string& text, ValueType type, const void* values, std::size_t index) {
    switch (type) {
    case ValueType::Float32:
        append(text, static_cast<const float*>(values)[index]);
        return;
    case ValueType::Float64:
        append(text, static_cast<const double*>(values)[index]);
        return;
    case ValueType::Int32:
        append(text, static_cast<const std::int32_t*>(values)[index]);
        return;
    }
}

} // namespace plot3d::program
