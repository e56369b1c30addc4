#include "RandomBox.h"

namespace quorvia::testsupport {

namespace {

std::int64_t randomCount(sessions::Dice& dice) {
    return dice.chance(25) ? 1 : dice.between(2, 13);
}

plot3d::Range randomRange(sessions::Dice& dice, std::int64_t size) {
    const auto last = static_cast<std::int32_t>(size - 1);
    if (dice.chance(35))
        return {0, last, 1};
    plot3d::Range range;
    range.first = dice.between(0, last);
    range.last =
        dice.chance(25) ? range.first : dice.between(static_cast<std::int32_t>(range.first), last);
    range.step = dice.chance(50) ? 1 : dice.between(1, 4 + last / 2);
    return range;
}

} // namespace

plot3d::Extent randomSize(sessions::Dice& dice) {
    plot3d::Extent size{randomCount(dice), randomCount(dice), randomCount(dice)};
    if (dice.chance(3))
        size.i = dice.between(10'000, 40'000);
    return size.count() > 100'000 ? plot3d::Extent{size.i, size.j, 1} : size;
}

plot3d::Box randomBox(sessions::Dice& dice, const plot3d::Extent& size) {
    return {randomRange(dice, size.i), randomRange(dice, size.j), randomRange(dice, size.k)};
}

} // namespace quorvia::testsupport
