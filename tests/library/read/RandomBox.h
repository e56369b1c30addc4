// Sizes and boxes by chance.
#pragma once

#include <plot3d/Box.h>

#include "sessions/Dice.h"

namespace quorvia::testsupport {

/// Mostly a few points along each direction; now and then one so long that rows are read one by
/// one.
plot3d::Extent randomSize(sessions::Dice& dice);

/// Any box with at least one point: whole, planes, rows, points, strides.
plot3d::Box randomBox(sessions::Dice& dice, const plot3d::Extent& size);

} // namespace quorvia::testsupport
