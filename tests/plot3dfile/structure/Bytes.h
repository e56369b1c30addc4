// Files made by hand: numbers back to back in either byte order, and Fortran records around them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>

namespace quorvia::quorutildataio {

class Bytes {
public:
    enum class Order_e { Little, Big };

    explicit Bytes(Order_e order = Order_e::Little) : order_(order) {}

    Bytes& integers(std::initializer_list<std::int32_t> values) {
        for (const std::int32_t value : values)
            append(value);
        return *this;
    }
    Bytes& reals(std::int64_t count, float value = 0.5F) {
        for (std::int64_t index = 0; index < count; ++index)
            append(value);
        return *this;
    }
    Bytes& doubles(std::int64_t count, double value = 0.5) {
        for (std::int64_t index = 0; index < count; ++index)
            append(value);
        return *this;
    }
    /// A Fortran record with markers around all that `payload` holds.
    template <typename Marker = std::int32_t>
    Bytes& record(const Bytes& payload) {
        const auto length = static_cast<Marker>(payload.text_.size());
        append(length);
        text_ += payload.text_;
        append(length);
        return *this;
    }

    const std::string& str() const { return text_; }

private:
    template <typename Number>
    void append(Number value) {
        std::string bytes(reinterpret_cast<const char*>(&value), sizeof value);
        if (order_ == Order_e::Big)
            std::reverse(bytes.begin(), bytes.end());
        text_ += bytes;
    }

    Order_e order_;
    std::string text_;
};

/// The payload of a record.
inline Bytes payload() {
    return Bytes();
}

} // namespace quorvia::quorutildataio
