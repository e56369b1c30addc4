// The bytes of a small file, made by hand and not by the writer: numbers, text, markers and
// records, in either byte order.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace quorvia::testsupport {

enum class Order_e { Native, Swapped };

class FileBytes {
public:
    explicit FileBytes(Order_e order = Order_e::Native, int markerWidth = 4)
        : order_(order), markerWidth_(markerWidth) {}

    FileBytes& integers(const std::vector<std::int32_t>& values) { return appendAll(values); }
    FileBytes& reals(const std::vector<float>& values) { return appendAll(values); }
    FileBytes& doubles(const std::vector<double>& values) { return appendAll(values); }
    FileBytes& equalReals(std::int64_t count, float value = 0.5F) { return repeat(count, value); }
    FileBytes& equalDoubles(std::int64_t count, double value = 0.5) { return repeat(count, value); }
    FileBytes& raw(const std::string& bytes) {
        bytes_ += bytes;
        return *this;
    }
    FileBytes& zeros(std::size_t count) { return raw(std::string(count, '\0')); }

    FileBytes& marker(std::int64_t value) {
        if (markerWidth_ == 8)
            append(value);
        else
            append(static_cast<std::int32_t>(value));
        return *this;
    }
    /// A record of these bytes between its two markers.
    FileBytes& record(const std::string& payload) {
        const auto length = static_cast<std::int64_t>(payload.size());
        return marker(length).raw(payload).marker(length);
    }
    FileBytes& record(const FileBytes& payload) { return record(payload.str()); }

    const std::string& str() const { return bytes_; }

private:
    template <typename Number>
    FileBytes& appendAll(const std::vector<Number>& values) {
        for (const Number value : values)
            append(value);
        return *this;
    }

    template <typename Number>
    FileBytes& repeat(std::int64_t count, Number value) {
        for (std::int64_t index = 0; index < count; ++index)
            append(value);
        return *this;
    }

    template <typename Number>
    void append(Number value) {
        std::string bytes(sizeof(value), '\0');
        std::memcpy(bytes.data(), &value, sizeof(value));
        if (order_ == Order_e::Swapped)
            std::reverse(bytes.begin(), bytes.end());
        bytes_ += bytes;
    }

    Order_e order_;
    int markerWidth_;
    std::string bytes_;
};

} // namespace quorvia::testsupport
