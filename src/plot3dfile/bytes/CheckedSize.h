// Sizes in bytes that are computed from counts of a file's header. Such counts can be anything, so
// that a product of three of them passes 64 bits; a sum that ever did so is known to be worthless.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>

namespace quorvia::quorutildataio {

class CheckedSize {
public:
    explicit CheckedSize(std::int64_t start = 0) : sum_(start) {}

    /// Adds the product of `factors`, of which any may be negative.
    void addProduct(std::initializer_list<std::int64_t> factors) {
        std::int64_t product = 1;
        for (const std::int64_t factor : factors)
            if (__builtin_mul_overflow(product, factor, &product))
                fits_ = false;
        if (__builtin_add_overflow(sum_, product, &sum_))
            fits_ = false;
    }

    /// Empty (not told): a step passed 64 bits.
    [[nodiscard]] std::optional<std::int64_t> value() const {
        return fits_ ? std::optional<std::int64_t>(sum_) : std::nullopt;
    }

private:
    std::int64_t sum_;
    bool fits_ = true;
};

} // namespace quorvia::quorutildataio
