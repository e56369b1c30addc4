// Points of a zone: its size, and boxes of it with strides. Indices count from 0, I varies fastest.
#pragma once

#include <cstdint>

namespace plot3d {

/// Points along I, J and K, each at least 1. An unstructured zone has its nodes along I.
struct Extent {
    std::int64_t i = 1;
    std::int64_t j = 1;
    std::int64_t k = 1;

    std::int64_t count() const { return i * j * k; }
    bool operator==(const Extent&) const = default;
};

/// The indices first, first + step, ... up to `last`, which is taken only if a step lands on it.
struct Range {
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::int64_t step = 1; // at least 1

    std::int64_t count() const { return last < first ? 0 : (last - first) / step + 1; }
    bool operator==(const Range&) const = default;
};

struct Box {
    Range i;
    Range j;
    Range k;

    static Box whole(const Extent& size) {
        return {{0, size.i - 1, 1}, {0, size.j - 1, 1}, {0, size.k - 1, 1}};
    }
    /// Points of the box along each direction.
    Extent extent() const { return {i.count(), j.count(), k.count()}; }
    std::int64_t count() const { return extent().count(); }
    bool operator==(const Box&) const = default;
};

} // namespace plot3d
