#include "colours/ColourMap.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <string>

#include <plot3d/Error.h>

namespace plot3d::scene {

namespace {

struct NamedMap_s {
    std::string_view name;
    std::vector<Rgb> anchors;
};

/// viridis, magma and cividis: of Matplotlib (CC0). coolwarm: Moreland's diverging map.
const std::vector<NamedMap_s>& allMaps() {
    static const std::vector<NamedMap_s> maps = {
        {"viridis",
         {{68, 1, 84},
          {72, 40, 120},
          {62, 74, 137},
          {49, 104, 142},
          {38, 130, 142},
          {31, 158, 137},
          {53, 183, 121},
          {110, 206, 88},
          {181, 222, 43},
          {253, 231, 37}}},
        {"cividis",
         {{0, 34, 78},
          {18, 53, 112},
          {59, 73, 108},
          {87, 93, 109},
          {112, 113, 115},
          {138, 134, 120},
          {165, 156, 116},
          {195, 179, 105},
          {225, 204, 85},
          {254, 232, 56}}},
        {"magma",
         {{0, 0, 4},
          {24, 15, 61},
          {68, 15, 118},
          {114, 31, 129},
          {158, 47, 127},
          {205, 64, 113},
          {241, 96, 93},
          {253, 150, 104},
          {254, 202, 141},
          {252, 253, 191}}},
        {"coolwarm",
         {{59, 76, 192},
          {98, 130, 234},
          {141, 176, 254},
          {184, 208, 249},
          {221, 221, 221},
          {245, 196, 173},
          {244, 154, 123},
          {222, 96, 77},
          {180, 4, 38}}},
        {"grey", {{24, 24, 24}, {236, 236, 236}}},
    };
    return maps;
}

std::string inLowerCase(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower)
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return lower;
}

double distance(const Rgb& one, const Rgb& other) {
    double sum = 0;
    for (std::size_t part = 0; part < one.size(); ++part) {
        const double difference = double{1} * one[part] - other[part];
        sum += difference * difference;
    }
    return sum;
}

} // namespace

ColourMap ColourMap::named(std::string_view name) {
    const std::string lower = inLowerCase(name);
    const bool isTurned = lower.ends_with("-r");
    const std::string plain = isTurned ? lower.substr(0, lower.size() - 2) : lower;
    std::string known;
    for (const NamedMap_s& map : allMaps()) {
        if (map.name == plain)
            return {map.anchors, isTurned};
        known += (known.empty() ? "" : ", ") + std::string(map.name);
    }
    throw Error(ErrorKind::Usage, "there is no colour map \"" + std::string(name) +
                                      "\"; there are " + known +
                                      ", each also turned round: viridis-r");
}

std::vector<std::string_view> ColourMap::names() {
    std::vector<std::string_view> names;
    for (const NamedMap_s& map : allMaps())
        names.push_back(map.name);
    return names;
}

Rgb ColourMap::at(double fraction) const {
    const double within = std::clamp(isTurned_ ? 1 - fraction : fraction, 0.0, 1.0);
    const double place = within * static_cast<double>(anchors_.size() - 1);
    const auto lower = std::min(static_cast<std::size_t>(place), anchors_.size() - 2);
    const double share = place - static_cast<double>(lower);
    Rgb colour = {};
    for (std::size_t part = 0; part < colour.size(); ++part)
        colour[part] = static_cast<std::uint8_t>(
            std::lround((1 - share) * anchors_[lower][part] + share * anchors_[lower + 1][part]));
    return colour;
}

std::array<Rgb, 256> ColourMap::table() const {
    std::array<Rgb, 256> colours = {};
    for (std::size_t index = 0; index < colours.size(); ++index)
        colours[index] = at(static_cast<double>(index) / 255);
    return colours;
}

double ColourMap::fractionOf(const Rgb& colour) const {
    const std::array<Rgb, 256> colours = table();
    const auto nearest =
        std::min_element(colours.begin(), colours.end(), [&](const Rgb& one, const Rgb& other) {
            return distance(one, colour) < distance(other, colour);
        });
    return static_cast<double>(nearest - colours.begin()) / 255;
}

} // namespace plot3d::scene
