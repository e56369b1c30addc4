#include "content/Choices.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <string_view>

#include <plot3d/Error.h>

#include "analysis/fields/IBlank.h"

namespace plot3d::scene {

namespace {

std::string trimmed(std::string text) {
    while (text.ends_with(' '))
        text.pop_back();
    return text;
}

char lower(char letter) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
}

bool areAlike(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

/// `*` stands for any characters, `?` for one.
bool meets(std::string_view name, std::string_view pattern) {
    if (pattern.empty())
        return name.empty();
    if (pattern[0] == '*')
        return meets(name, pattern.substr(1)) || (!name.empty() && meets(name.substr(1), pattern));
    return !name.empty() && (pattern[0] == '?' || lower(pattern[0]) == lower(name[0])) &&
           meets(name.substr(1), pattern.substr(1));
}

/// As it stands, or else the first that differs in case or in blanks at its end.
std::optional<std::size_t> variableNamed(const DataSet& data, const std::string& name) {
    if (const auto exact = data.findVariable(name))
        return exact;
    for (std::size_t variable = 0; variable < data.variables().size(); ++variable)
        if (areAlike(trimmed(data.variables()[variable].name), name))
            return variable;
    return std::nullopt;
}

bool isCoordinate(const DataSet& data, std::size_t variable) {
    const CoordinateVariables coordinates = coordinatesOf(data);
    return std::find(coordinates.begin(), coordinates.end(), variable) != coordinates.end();
}

std::string knownNames(const DataSet& data) {
    std::string names;
    for (const Variable& variable : data.variables())
        names += (names.empty() ? "" : ", ") + trimmed(variable.name);
    for (const DerivedQuantity& quantity : derivedQuantities())
        names += ", " + quantity.name;
    return names;
}

[[noreturn]] void refuseName(const DataSet& data, const std::string& name) {
    throw Error(ErrorKind::Usage,
                "nothing is called \"" + name + "\"; there are " + knownNames(data));
}

Quantity_s ofVariable(const DataSet& data, std::size_t variable) {
    return {trimmed(data.variables()[variable].name), variable, nullptr};
}

Quantity_s firstOfFlow(const DataSet& data) {
    const std::optional<std::size_t> iBlank = analysis::iBlankVariable(data);
    for (std::size_t variable = 0; variable < data.variables().size(); ++variable)
        if (variable != iBlank && !isCoordinate(data, variable))
            return ofVariable(data, variable);
    return {};
}

std::vector<std::string> partsOf(const std::string& list) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    while (true) {
        const std::size_t end = list.find(',', begin);
        parts.push_back(list.substr(begin, end - begin));
        if (end == std::string::npos)
            return parts;
        begin = end + 1;
    }
}

void requireZones(const DataSet& data, const View_s& view) {
    std::vector<std::size_t> numbers = view.zones;
    if (view.rangeOver == RangeOver_e::Zone)
        numbers.push_back(view.rangeZone);
    for (const std::size_t number : numbers)
        if (number < 1 || number > data.zones().size())
            throw Error(ErrorKind::Usage, "there is no zone " + std::to_string(number) +
                                              "; the data set has " +
                                              std::to_string(data.zones().size()));
}

/// Itself, or the same grid at another time.
bool lists(const View_s& view, const DataSet& data, std::size_t zone) {
    const std::int32_t strand = data.zones()[zone].strand;
    return std::any_of(view.zones.begin(), view.zones.end(), [&](std::size_t number) {
        return number == zone + 1 || (strand != 0 && data.zones()[number - 1].strand == strand);
    });
}

std::vector<SurfaceWish_s> surfacesOf(const Zone& zone, bool isListed, const View_s& view) {
    std::vector<SurfaceWish_s> surfaces;
    for (const SurfaceWish_s& wish : view.surfaces) {
        if (wish.kind != SurfaceKind_e::Boundary) {
            if (!zone.parent || isListed)
                surfaces.push_back(wish);
        } else if (zone.parent && meets(zone.name, wish.boundary)) {
            surfaces.push_back(SurfaceWish_s());
        }
    }
    return surfaces;
}

} // namespace

CoordinateVariables coordinatesOf(const DataSet& data) {
    constexpr std::array<const char*, 3> names = {"X", "Y", "Z"};
    CoordinateVariables coordinates;
    for (std::size_t axis = 0; axis < 3 && axis < data.variables().size(); ++axis) {
        if (data.variables()[axis].name != names[axis])
            break;
        coordinates[axis] = axis;
    }
    return coordinates;
}

Quantity_s colourOf(const DataSet& data, const View_s& view) {
    if (view.blank == BlankWish_e::Colour) {
        const auto iBlank = analysis::iBlankVariable(data);
        if (!iBlank)
            throw Error(ErrorKind::Usage, "the data set has no I-blank that could be coloured");
        return ofVariable(data, *iBlank);
    }
    if (view.colour.empty())
        return firstOfFlow(data);
    if (const auto variable = variableNamed(data, view.colour))
        return ofVariable(data, *variable);
    if (const DerivedQuantity* derived = findDerivedQuantity(view.colour))
        return {derived->name, std::nullopt, derived};
    if (areAlike(view.colour, "none"))
        return {};
    refuseName(data, view.colour);
}

std::optional<VectorQuantity_s> vectorsOf(const DataSet& data, const View_s& view) {
    if (view.vectors.empty())
        return std::nullopt;
    const DerivedQuantity* derived = findDerivedQuantity(view.vectors);
    if (derived != nullptr && derived->components.size() == 3)
        return VectorQuantity_s{derived->name, {}, derived};
    VectorQuantity_s vectors{view.vectors, {}, nullptr};
    for (const std::string& name : partsOf(view.vectors)) {
        const auto variable = variableNamed(data, name);
        if (!variable)
            refuseName(data, name);
        vectors.variables.push_back(*variable);
    }
    if (vectors.variables.size() < 2 || vectors.variables.size() > 3)
        throw Error(ErrorKind::Usage, "\"" + view.vectors +
                                          "\" is no vector; expected velocity, another derived "
                                          "vector, or two or three variables A,B,C");
    return vectors;
}

std::size_t timeStepOf(const DataSet& data, const View_s& view) {
    if (!view.time || data.timeSteps().empty())
        return 0;
    const auto distance = [&view](const TimeStep& step) {
        if (step.time == *view.time || (std::isnan(step.time) && std::isnan(*view.time)))
            return 0.0; // an infinite one, too, has itself as the nearest
        const double found = std::abs(step.time - *view.time);
        return std::isnan(found) ? std::numeric_limits<double>::infinity() : found;
    };
    const auto nearest = std::min_element(data.timeSteps().begin(), data.timeSteps().end(),
                                          [&](const TimeStep& one, const TimeStep& other) {
                                              return distance(one) < distance(other);
                                          });
    return static_cast<std::size_t>(nearest - data.timeSteps().begin());
}

PlotKind_e plotOf(const DataSet& data, const View_s& view) {
    if (view.plot != PlotKind_e::Auto)
        return view.plot;
    if (view.line || data.dimensions() == 1)
        return PlotKind_e::Lines;
    return data.dimensions() == 2 ? PlotKind_e::Plane : PlotKind_e::Space;
}

std::vector<ShownZone_s> shownZones(const DataSet& data, const View_s& view, std::size_t timeStep) {
    requireZones(data, view);
    std::vector<ShownZone_s> shown;
    if (data.timeSteps().empty())
        throw Error(ErrorKind::Usage, "the data set has no zones");
    for (const std::size_t zone : data.timeSteps()[timeStep].zones) {
        const bool isListed = lists(view, data, zone);
        if (!view.zones.empty() && !isListed)
            continue;
        std::vector<SurfaceWish_s> surfaces = surfacesOf(data.zones()[zone], isListed, view);
        if (!surfaces.empty())
            shown.push_back({zone, std::move(surfaces)});
    }
    if (shown.empty())
        throw Error(ErrorKind::Usage, "no zone is left to show: none of those of this time is "
                                      "chosen by number and surface");
    return shown;
}

} // namespace plot3d::scene
