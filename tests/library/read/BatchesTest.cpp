// Batches of any box under any limits are the box, in its order.
#include <vector>

#include <gtest/gtest.h>

#include "RandomBox.h"
#include "read/Batches.h"

namespace plot3dlib {
namespace {

using quorvia::sessions::Dice;

/// The places of the values, in their order.
std::vector<std::int64_t> placesOf(const BoxStrides_s& strides) {
    std::vector<std::int64_t> places;
    const auto& [inner, middle, outer] = strides.directions;
    for (std::int64_t k = 0; k < outer.count; ++k)
        for (std::int64_t j = 0; j < middle.count; ++j)
            for (std::int64_t i = 0; i < inner.count; ++i)
                for (std::int64_t n = 0; n < strides.run; ++n)
                    places.push_back(strides.first + k * outer.stride + j * middle.stride +
                                     i * inner.stride + n);
    return places;
}

std::vector<std::int64_t> placesOf(const plot3d::Box& box, const plot3d::Extent& size) {
    std::vector<std::int64_t> places;
    for (std::int64_t k = box.k.first; k <= box.k.last; k += box.k.step)
        for (std::int64_t j = box.j.first; j <= box.j.last; j += box.j.step)
            for (std::int64_t i = box.i.first; i <= box.i.last; i += box.i.step)
                places.push_back((k * size.j + j) * size.i + i);
    return places;
}

/// The largest distance between two values that follow one another.
std::int64_t widestGap(const std::vector<std::int64_t>& places) {
    std::int64_t gap = 0;
    for (std::size_t n = 1; n < places.size(); ++n)
        gap = std::max(gap, places[n] - places[n - 1] - 1);
    return gap;
}

void cutRandomBox(std::uint64_t seed) {
    SCOPED_TRACE(seed);
    Dice dice(seed);
    const plot3d::Extent size{dice.between(1, 9), dice.between(1, 9), dice.between(1, 9)};
    const plot3d::Box box = quorvia::testsupport::randomBox(dice, size);
    const BatchLimits_s limits{dice.between(1, 200), dice.between(-1, 90)};
    std::vector<std::int64_t> places;
    forEachBatch(stridesOf(box, size), limits, [&](const BoxStrides_s& batch) {
        const std::vector<std::int64_t> part = placesOf(batch);
        EXPECT_EQ(batch.count(), std::ssize(part));
        EXPECT_EQ(batch.span(), part.back() - part.front() + 1);
        EXPECT_LE(batch.span(), limits.span);
        EXPECT_LE(widestGap(part), std::max<std::int64_t>(limits.gap, 0));
        places.insert(places.end(), part.begin(), part.end());
    });
    ASSERT_EQ(places, placesOf(box, size));
}

TEST(Batches, OfAnyBoxAreTheBox) {
    for (std::uint64_t seed = 1; seed <= 3000; ++seed)
        ASSERT_NO_FATAL_FAILURE(cutRandomBox(seed));
}

TEST(BoxStrides, OfAWholeFieldAreOneRun) {
    const plot3d::Extent size{7, 5, 3};
    const BoxStrides_s strides = stridesOf(plot3d::Box::whole(size), size);
    EXPECT_EQ(strides.run, 105);
    EXPECT_EQ(strides.directionCount, 0U);
}

TEST(BoxStrides, OfAPlaneOfConstantIGoOneWay) {
    const plot3d::Extent size{7, 5, 3};
    const BoxStrides_s strides = stridesOf({{2, 2, 1}, {0, 4, 1}, {0, 2, 1}}, size);
    EXPECT_EQ(strides.run, 1);
    EXPECT_EQ(strides.directionCount, 1U);
    EXPECT_EQ(strides.directions[0].count, 15);
}

TEST(BoxStrides, OfOnePointIgnoreAnAbsurdStep) {
    constexpr std::int64_t absurd = std::int64_t{1} << 62;
    const BoxStrides_s strides =
        stridesOf({{2, 2, absurd}, {1, 4, absurd}, {2, 2, absurd}}, {7, 5, 3});
    EXPECT_EQ(strides.first, 2 * 35 + 7 + 2);
    EXPECT_EQ(strides.count(), 1);
}

} // namespace
} // namespace plot3dlib
