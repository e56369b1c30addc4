// Chance that follows from a seed alone, on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace quorvia::sessions {

// The standard fixes what the engine gives, and not what its distributions make of it.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}
    /// From `low` to `high`, both included.
    std::int32_t between(std::int32_t low, std::int32_t high) {
        const auto span = static_cast<std::uint64_t>(high - low + 1);
        return low + static_cast<std::int32_t>(engine_() % span);
    }
    bool chance(std::int32_t percent) { return between(1, 100) <= percent; }
    template <typename Item>
    Item oneOf(const std::vector<Item>& items) {
        return items[static_cast<std::size_t>(
            between(0, static_cast<std::int32_t>(items.size()) - 1))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace quorvia::sessions
