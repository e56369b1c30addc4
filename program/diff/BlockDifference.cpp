#include "diff/BlockDifference.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace plot3d::program {
namespace {

template <typename Value>
double asFloat(Value value) {
    return static_cast<double>(static_cast<float>(value));
}

/// One of both is held in 32 bits: what a file of 64 bits or a text says beyond them is no matter.
template <typename First, typename Second>
inline constexpr bool isRounded =
    std::is_same_v<First, float> != std::is_same_v<Second, float> &&
    !std::is_same_v<First, std::int32_t> && !std::is_same_v<Second, std::int32_t>;

template <typename First, typename Second>
Pair_s pairOf(First first, Second second) {
    if constexpr (isRounded<First, Second>)
        return {asFloat(first), asFloat(second), 0, {}};
    else
        return {static_cast<double>(first), static_cast<double>(second), 0, {}};
}

/// Puts pairs of values together. Places count from the start of the block.
class Differences {
public:
    explicit Differences(const Tolerance_s& tolerance) : tolerance_(tolerance) {}

    void take(const Pair_s& pair, std::size_t place) {
        if (pair.first == pair.second)
            return;
        if (!std::isfinite(pair.first) || !std::isfinite(pair.second))
            takeUnlike(pair, place);
        else
            takeFinite(pair, place);
    }

    Difference_s difference(std::size_t zone, const Box& box) const {
        Difference_s result = found_;
        placed(result.absoluteAt, absolutePlace_, zone, box);
        placed(result.relativeAt, relativePlace_, zone, box);
        placed(result.unlikeAt, unlikePlace_, zone, box);
        return result;
    }

private:
    void takeUnlike(const Pair_s& pair, std::size_t place) {
        if (std::isnan(pair.first) && std::isnan(pair.second))
            return;
        if (found_.unlike++ == 0) {
            found_.unlikeAt = pair;
            unlikePlace_ = place;
        }
        ++found_.different;
    }

    void takeFinite(const Pair_s& pair, std::size_t place) {
        const double absolute = std::abs(pair.first - pair.second);
        const double size = std::max(std::abs(pair.first), std::abs(pair.second));
        // Both may be so large that their distance overflows.
        const double relative = std::abs(pair.first / size - pair.second / size);
        if (absolute > tolerance_.absolute && !(relative <= tolerance_.relative))
            ++found_.different;
        if (absolute > found_.absolute) {
            found_.absolute = absolute;
            found_.absoluteAt = pair;
            absolutePlace_ = place;
        }
        if (relative > found_.relative) {
            found_.relative = relative;
            found_.relativeAt = pair;
            relativePlace_ = place;
        }
    }

    static void placed(Pair_s& pair, std::size_t place, std::size_t zone, const Box& box) {
        pair.zone = zone;
        pair.point = analysis::pointAt(box, static_cast<std::int64_t>(place));
    }

    const Tolerance_s& tolerance_;
    Difference_s found_;
    std::size_t absolutePlace_ = 0;
    std::size_t relativePlace_ = 0;
    std::size_t unlikePlace_ = 0;
};

template <typename First, typename Second>
bool areSameBytes(std::span<const First> first, std::span<const Second> second) {
    if constexpr (std::is_same_v<First, Second>)
        return std::memcmp(first.data(), second.data(), first.size_bytes()) == 0;
    else
        return false;
}

} // namespace

void Difference_s::add(const Difference_s& later) {
    if (later.absolute > absolute) {
        absolute = later.absolute;
        absoluteAt = later.absoluteAt;
    }
    if (later.relative > relative) {
        relative = later.relative;
        relativeAt = later.relativeAt;
    }
    if (unlike == 0)
        unlikeAt = later.unlikeAt;
    compared += later.compared;
    different += later.different;
    unlike += later.unlike;
}

template <typename First, typename Second>
Difference_s differenceOf(std::span<const First> first, std::span<const Second> second,
                          const Tolerance_s& tolerance, std::size_t zone, const Box& box) {
    Differences differences(tolerance);
    if (!areSameBytes(first, second))
        for (std::size_t place = 0; place < first.size(); ++place)
            differences.take(pairOf(first[place], second[place]), place);
    Difference_s result = differences.difference(zone, box);
    result.compared = static_cast<std::int64_t>(first.size());
    return result;
}

#define PLOT3D_INSTANTIATE(First, Second)                                                          \
    template Difference_s differenceOf(std::span<const First>, std::span<const Second>,            \
                                       const Tolerance_s&, std::size_t, const Box&);
PLOT3D_INSTANTIATE(float, float)
PLOT3D_INSTANTIATE(float, double)
PLOT3D_INSTANTIATE(float, std::int32_t)
PLOT3D_INSTANTIATE(double, float)
PLOT3D_INSTANTIATE(double, double)
PLOT3D_INSTANTIATE(double, std::int32_t)
PLOT3D_INSTANTIATE(std::int32_t, float)
PLOT3D_INSTANTIATE(std::int32_t, double)
PLOT3D_INSTANTIATE(std::int32_t, std::int32_t)
#undef PLOT3D_INSTANTIATE

} // namespace plot3d::program
