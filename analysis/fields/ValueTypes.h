// From the type of a field's values to code that is made for it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <plot3d/Field.h>

namespace plot3d::analysis {

/// Calls `work` with a value of the type; gives what it gives.
template <typename Work>
decltype(auto) withValueOf(ValueType type, Work work) {
    switch (type) {
    case ValueType::Float32:
        return work(float());
    case ValueType::Float64:
        return work(double());
    case ValueType::Int32:
        break;
    }
    return work(std::int32_t());
}

/// Room for the values of a block, of any type, that is used again and again.
class BlockRoom {
public:
    /// Room for `count` values. What was there before is lost.
    template <typename Value>
    std::span<Value> of(std::int64_t count) {
        static_assert(sizeof(Value) <= sizeof(double));
        const auto values = static_cast<std::size_t>(count);
        const std::size_t doubles = (values * sizeof(Value) + sizeof(double) - 1) / sizeof(double);
        if (room_.size() < doubles)
            room_ = std::vector<double>(doubles);
        return {static_cast<Value*>(static_cast<void*>(room_.data())), values};
    }

private:
    std::vector<double> room_;
};

} // namespace plot3d::analysis
