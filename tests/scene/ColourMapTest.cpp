// Colour maps.
#include <cmath>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "colours/ColourMap.h"

namespace plot3d::scene {
namespace {

/// Of the colour's grey on paper, from 0 to 255.
double lightness(const Rgb& colour) {
    return 0.2126 * colour[0] + 0.7152 * colour[1] + 0.0722 * colour[2];
}

TEST(ColourMaps, GetLighterAllTheWay) {
    for (const char* name : {"viridis", "cividis", "magma", "grey"}) {
        const auto table = ColourMap::named(name).table();
        for (std::size_t index = 1; index < table.size(); ++index)
            EXPECT_GT(lightness(table[index]) + 0.75, lightness(table[index - 1])) << name << index;
        EXPECT_GT(lightness(table.back()) - lightness(table.front()), 150) << name;
    }
}

TEST(ColourMaps, GiveBackTheirFractions) {
    for (const std::string_view name : ColourMap::names())
        for (const double fraction : {0.0, 0.1, 0.35, 0.5, 0.8, 1.0}) {
            const ColourMap map = ColourMap::named(name);
            EXPECT_NEAR(map.fractionOf(map.at(fraction)), fraction, 0.01) << name;
        }
}

TEST(ColourMaps, AreTurnedRoundAndFoundWhateverTheirCase) {
    EXPECT_EQ(ColourMap::named("Viridis-R").at(0), ColourMap::named("viridis").at(1));
    EXPECT_EQ(ColourMap::named("magma").at(7), ColourMap::named("magma").at(1));
    EXPECT_THROW(ColourMap::named("rainbow"), Error);
}

} // namespace
} // namespace plot3d::scene
