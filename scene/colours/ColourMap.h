// Colour maps: each goes evenly from dark to light, or from one hue over a light middle to another,
// so that it prints in grey and can be read by the colour-blind. docs/render.md shows them.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace plot3d::scene {

using Rgb = std::array<std::uint8_t, 3>;

class ColourMap {
public:
    /// Of `name`: case does not count, and "-r" behind it turns the map round. Throws Error (Usage)
    /// with the names that there are.
    static ColourMap named(std::string_view name);
    static std::vector<std::string_view> names();

    /// At `fraction` from 0 to 1; what lies beyond has the colour of the end.
    Rgb at(double fraction) const;
    /// The place from 0 to 1 whose colour is nearest to `colour`.
    double fractionOf(const Rgb& colour) const;
    /// 256 colours, as they are drawn.
    std::array<Rgb, 256> table() const;

private:
    ColourMap(std::span<const Rgb> anchors, bool isTurned)
        : anchors_(anchors), isTurned_(isTurned) {}

    std::span<const Rgb> anchors_; // evenly spread
    bool isTurned_;
};

/// Of cells without a finite value.
inline constexpr Rgb noValueColour = {176, 176, 176};

} // namespace plot3d::scene
