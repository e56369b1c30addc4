#include "picture/Painter.h"

#include <cstddef>

namespace plot3d::scene {

std::array<std::uint8_t, 3> Pixels_s::at(int column, int row) const {
    const auto first = 3 * (static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                            static_cast<std::size_t>(column));
    return {rgb[first], rgb[first + 1], rgb[first + 2]};
}

} // namespace plot3d::scene
