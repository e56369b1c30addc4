#include "view/ViewWords.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include <plot3d/Error.h>

namespace plot3d::scene {

namespace {

[[noreturn]] void refuse(std::string_view text, const char* expected) {
    throw Error(ErrorKind::Usage,
                "\"" + std::string(text) + "\" can't be taken; expected " + expected);
}

template <typename Number>
std::optional<Number> numberOf(std::string_view text) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || text.empty())
        return std::nullopt;
    return number;
}

std::optional<double> realOf(std::string_view text) {
    const auto number = numberOf<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

/// What stands between the separators, empty parts too.
std::vector<std::string_view> partsOf(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = text.find_first_of(separators);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

std::string textOf(double number) {
    char text[32];
    const auto [end, error] = std::to_chars(text, text + sizeof text, number);
    return error == std::errc() ? std::string(text, end) : std::to_string(number);
}

const char* const surfaceForms = "outer, i=, j= or k= with indices such as 1,-1, or boundary=NAME";

SurfaceKind_e directionOf(char letter) {
    return letter == 'i' ? SurfaceKind_e::I : letter == 'j' ? SurfaceKind_e::J : SurfaceKind_e::K;
}

std::vector<std::int64_t> indicesOf(std::string_view list, std::string_view whole) {
    std::vector<std::int64_t> indices;
    for (const std::string_view part : partsOf(list, ",")) {
        const auto index = numberOf<std::int64_t>(part);
        if (!index || *index == 0)
            refuse(whole, "indices from 1, or from the end: -1 is the last");
        indices.push_back(*index);
    }
    return indices;
}

SurfaceWish_s surfaceFromText(std::string_view text) {
    if (text == "outer")
        return {};
    if (text == "boundary")
        return {SurfaceKind_e::Boundary, {}, "*"};
    const std::size_t equals = text.find('=');
    const std::string_view what = text.substr(0, equals);
    if (equals == std::string_view::npos || equals + 1 == text.size())
        refuse(text, surfaceForms);
    if (what == "boundary")
        return {SurfaceKind_e::Boundary, {}, std::string(text.substr(equals + 1))};
    if (what != "i" && what != "j" && what != "k")
        refuse(text, surfaceForms);
    return {directionOf(what[0]), indicesOf(text.substr(equals + 1), text), {}};
}

struct NamedDirection_s {
    std::string_view word;
    Vector3 direction;
    Vector3 up;
};

const std::array<NamedDirection_s, 7>& namedDirections() {
    static const std::array<NamedDirection_s, 7> directions = {{
        {"iso", Camera_s().direction, {0, 0, 1}},
        {"+x", {1, 0, 0}, {0, 0, 1}},
        {"-x", {-1, 0, 0}, {0, 0, 1}},
        {"+y", {0, 1, 0}, {0, 0, 1}},
        {"-y", {0, -1, 0}, {0, 0, 1}},
        {"+z", {0, 0, 1}, {0, 1, 0}},
        {"-z", {0, 0, -1}, {0, 1, 0}},
    }};
    return directions;
}

bool isUpright(const Vector3& direction) {
    return std::abs(direction[2]) > 0.999 * std::hypot(direction[0], direction[1], direction[2]);
}

struct NamedColour_s {
    std::string_view word;
    Vector3 colour;
};
constexpr std::array<NamedColour_s, 5> namedColours = {{{"white", {1, 1, 1}},
                                                        {"black", {0, 0, 0}},
                                                        {"grey", {0.5, 0.5, 0.5}},
                                                        {"lightgrey", {0.9, 0.9, 0.9}},
                                                        {"dark", {0.13, 0.14, 0.16}}}};

double hexPair(std::string_view text, std::size_t place) {
    unsigned number = 0;
    const char* const begin = text.data() + place;
    const auto [end, error] = std::from_chars(begin, begin + 2, number, 16);
    if (error != std::errc() || end != begin + 2)
        refuse(text, "white, lightgrey, grey, dark, black or #RRGGBB");
    return number / 255.0;
}

template <typename Enumeration, std::size_t count>
std::optional<Enumeration> enumeratorOf(const std::array<std::string_view, count>& words,
                                        std::string_view word) {
    const auto found = std::find(words.begin(), words.end(), word);
    if (found == words.end())
        return std::nullopt;
    return static_cast<Enumeration>(found - words.begin());
}

constexpr std::array<std::string_view, 4> plotWords = {"auto", "3d", "2d", "xy"};
constexpr std::array<std::string_view, 3> blankWords = {"hide", "show", "color"};
constexpr std::array<std::string_view, 3> overWords = {"shown", "time", "all-times"};
constexpr std::string_view zoneWord = "zone=";

} // namespace

std::vector<SurfaceWish_s> surfacesFromText(std::string_view text) {
    std::vector<SurfaceWish_s> surfaces;
    for (const std::string_view part : partsOf(text, " ;"))
        if (!part.empty())
            surfaces.push_back(surfaceFromText(part));
    if (surfaces.empty())
        refuse(text, surfaceForms);
    return surfaces;
}

std::string textOf(const SurfaceWish_s& surface) {
    if (surface.kind == SurfaceKind_e::Outer)
        return "outer";
    if (surface.kind == SurfaceKind_e::Boundary)
        return surface.boundary == "*" ? "boundary" : "boundary=" + surface.boundary;
    const char letter = surface.kind == SurfaceKind_e::I   ? 'i'
                        : surface.kind == SurfaceKind_e::J ? 'j'
                                                           : 'k';
    std::string text = {letter, '='};
    for (const std::int64_t index : surface.indices)
        text += (text.size() > 2 ? "," : "") + std::to_string(index);
    return text;
}

Camera_s cameraFromText(std::string_view text) {
    Camera_s camera;
    for (const NamedDirection_s& named : namedDirections())
        if (named.word == text) {
            camera.direction = named.direction;
            camera.up = named.up;
            return camera;
        }
    const char* const expected = "iso, +x, -x, +y, -y, +z, -z or three numbers X,Y,Z that are not "
                                 "all 0: from the data towards the eye";
    const std::vector<std::string_view> parts = partsOf(text, ",");
    if (parts.size() != 3)
        refuse(text, expected);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto number = realOf(parts[axis]);
        if (!number)
            refuse(text, expected);
        camera.direction[axis] = *number;
    }
    if (camera.direction == Vector3{0, 0, 0})
        refuse(text, expected);
    if (isUpright(camera.direction))
        camera.up = {0, 1, 0};
    return camera;
}

std::string textOfDirection(const Camera_s& camera) {
    for (const NamedDirection_s& named : namedDirections())
        if (named.direction == camera.direction)
            return std::string(named.word);
    const Vector3& direction = camera.direction;
    return textOf(direction[0]) + "," + textOf(direction[1]) + "," + textOf(direction[2]);
}

Range_s rangeFromText(std::string_view text) {
    const char* const expected = "LEAST:MOST, such as 0.5:2";
    const std::vector<std::string_view> parts = partsOf(text, ":,");
    const auto least = realOf(parts.front());
    const auto most = realOf(parts.back());
    if (parts.size() != 2 || !least || !most || !(*least < *most))
        refuse(text, expected);
    return {*least, *most};
}

std::array<std::int64_t, 3> lineFromText(std::string_view text) {
    const char* const expected = "two of i=, j= and k= with an index, such as j=3,k=1: the line "
                                 "along I there";
    std::array<std::int64_t, 3> held = {0, 0, 0};
    const std::vector<std::string_view> parts = partsOf(text, ",");
    for (const std::string_view part : parts) {
        const auto index = part.size() > 2 ? numberOf<std::int64_t>(part.substr(2)) : std::nullopt;
        if (!index || *index == 0 || part[1] != '=' || part[0] < 'i' || part[0] > 'k')
            refuse(text, expected);
        held[static_cast<std::size_t>(part[0] - 'i')] = *index;
    }
    if (parts.size() != 2 || std::count(held.begin(), held.end(), 0) != 1)
        refuse(text, expected);
    return held;
}

std::array<int, 2> sizeFromText(std::string_view text) {
    const std::vector<std::string_view> parts = partsOf(text, "x");
    const auto width = numberOf<int>(parts.front());
    const auto height = numberOf<int>(parts.back());
    const auto isGood = [](const std::optional<int>& pixels) {
        return pixels && *pixels >= 64 && *pixels <= 16384;
    };
    if (parts.size() != 2 || !isGood(width) || !isGood(height))
        refuse(text, "WIDTHxHEIGHT in pixels, each from 64 to 16384");
    return {*width, *height};
}

Vector3 colourFromText(std::string_view text) {
    for (const NamedColour_s& named : namedColours)
        if (named.word == text)
            return named.colour;
    if (text.size() != 7 || text[0] != '#')
        refuse(text, "white, lightgrey, grey, dark, black or #RRGGBB");
    return {hexPair(text, 1), hexPair(text, 3), hexPair(text, 5)};
}

std::string_view wordOf(PlotKind_e plot) {
    return plotWords[static_cast<std::size_t>(plot)];
}
std::string_view wordOf(BlankWish_e blank) {
    return blankWords[static_cast<std::size_t>(blank)];
}
std::optional<PlotKind_e> plotFromWord(std::string_view word) {
    return enumeratorOf<PlotKind_e>(plotWords, word);
}
std::optional<BlankWish_e> blankFromWord(std::string_view word) {
    return enumeratorOf<BlankWish_e>(blankWords, word);
}

std::string textOfRangeOver(const View_s& view) {
    if (view.rangeOver == RangeOver_e::Zone)
        return std::string(zoneWord) + std::to_string(view.rangeZone);
    return std::string(overWords[static_cast<std::size_t>(view.rangeOver)]);
}

bool takesRangeOver(View_s& view, std::string_view text) {
    auto over = enumeratorOf<RangeOver_e>(overWords, text);
    if (!over && text.starts_with(zoneWord)) {
        const auto number = numberOf<std::size_t>(text.substr(zoneWord.size()));
        if (!number || *number < 1)
            return false;
        view.rangeZone = *number;
        over = RangeOver_e::Zone;
    }
    if (!over)
        return false;
    view.range.reset();
    view.rangeOver = *over;
    return true;
}

} // namespace plot3d::scene
