#include "read/BoxStrides.h"

#include <cstring>
#include <string>
#include <utility>

#include <plot3d/Error.h>

namespace plot3dlib {

namespace {

using plot3d::Box;
using plot3d::Extent;
using plot3d::Range;

[[noreturn]] void refuse(const std::string& message, char direction, std::string expected,
                         std::string found) {
    throw plot3d::Error(plot3d::ErrorKind::Usage, message + " along " + direction,
                        {{}, {}, std::move(expected), std::move(found), {}});
}

void requireInside(const Range& range, std::int64_t size, char direction) {
    if (range.step < 1)
        refuse("a box has an impossible step", direction, "1 or more", std::to_string(range.step));
    if (range.first < 0 || range.last >= size)
        refuse("a box leaves its field", direction, "indices from 0 to " + std::to_string(size - 1),
               std::to_string(range.first) + " to " + std::to_string(range.last));
}

void append(BoxStrides_s& strides, std::int64_t count, std::int64_t stride) {
    if (count == 1)
        return;
    if (strides.directionCount == 0 && stride == strides.run) {
        strides.run *= count;
        return;
    }
    if (strides.directionCount > 0) {
        BoxStrides_s::Direction_s& last = strides.directions[strides.directionCount - 1];
        if (last.count * last.stride == stride) {
            last.count *= count;
            return;
        }
    }
    strides.directions[strides.directionCount++] = {count, stride};
}

/// Gives where the next values go.
template <typename Word>
std::byte* gatherWords(const std::byte* from, const BoxStrides_s::Direction_s& direction,
                       std::byte* to) {
    const std::int64_t step = direction.stride * static_cast<std::int64_t>(sizeof(Word));
    for (std::int64_t n = 0; n < direction.count; ++n) {
        std::memcpy(to, from + n * step, sizeof(Word));
        to += sizeof(Word);
    }
    return to;
}

std::byte* gatherRuns(const std::byte* from, const BoxStrides_s& strides,
                      const BoxStrides_s::Direction_s& direction, std::int64_t width,
                      std::byte* to) {
    if (strides.run == 1)
        return width == 8 ? gatherWords<std::uint64_t>(from, direction, to)
                          : gatherWords<std::uint32_t>(from, direction, to);
    const std::int64_t runBytes = strides.run * width;
    for (std::int64_t n = 0; n < direction.count; ++n) {
        std::memcpy(to, from + n * direction.stride * width, static_cast<std::size_t>(runBytes));
        to += runBytes;
    }
    return to;
}

} // namespace

void requireInside(const Box& box, const Extent& size) {
    const auto isEmpty = [](const Range& range) { return range.last < range.first; };
    const bool empty = isEmpty(box.i) || isEmpty(box.j) || isEmpty(box.k);
    requireInside(empty ? Range{0, 0, box.i.step} : box.i, size.i, 'I');
    requireInside(empty ? Range{0, 0, box.j.step} : box.j, size.j, 'J');
    requireInside(empty ? Range{0, 0, box.k.step} : box.k, size.k, 'K');
}

std::int64_t BoxStrides_s::count() const {
    std::int64_t values = run;
    for (std::size_t n = 0; n < directionCount; ++n)
        values *= directions[n].count;
    return values;
}

std::int64_t BoxStrides_s::span() const {
    std::int64_t places = run;
    for (std::size_t n = 0; n < directionCount; ++n)
        places += (directions[n].count - 1) * directions[n].stride;
    return places;
}

BoxStrides_s stridesOf(const Box& box, const Extent& size) {
    BoxStrides_s strides;
    strides.first = (box.k.first * size.j + box.j.first) * size.i + box.i.first;
    const Extent points = box.extent();
    // The step of a direction with one point means nothing, and may be any number.
    append(strides, points.i, points.i == 1 ? 0 : box.i.step);
    append(strides, points.j, points.j == 1 ? 0 : box.j.step * size.i);
    append(strides, points.k, points.k == 1 ? 0 : box.k.step * size.i * size.j);
    return strides;
}

void gather(const std::byte* from, const BoxStrides_s& strides, std::int64_t width, std::byte* to) {
    const auto& [inner, middle, outer] = strides.directions;
    for (std::int64_t k = 0; k < outer.count; ++k)
        for (std::int64_t j = 0; j < middle.count; ++j)
            to = gatherRuns(from + (k * outer.stride + j * middle.stride) * width, strides, inner,
                            width, to);
}

} // namespace plot3dlib
