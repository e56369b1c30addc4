// What a view leaves open or names by words, settled for a data set.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>

#include "view/View.h"

namespace plot3d::scene {

/// A variable of the data set, or a derived quantity (of a vector its length), or nothing.
struct Quantity_s {
    std::string name; // as the legend has it; empty: nothing
    std::optional<std::size_t> variable;
    const DerivedQuantity* derived = nullptr;

    bool isNothing() const { return !variable && derived == nullptr; }
};

/// Indices from 0 of X, Y and Z; what the data set has none of is 0 everywhere. All empty: points
/// are drawn at their indices.
using CoordinateVariables = std::array<std::optional<std::size_t>, 3>;
CoordinateVariables coordinatesOf(const DataSet& data);

/// What is coloured: what the view names, or else the first variable that is neither a coordinate
/// nor I-blank. Throws Error (Usage) for a name that is nothing, with what there is.
Quantity_s colourOf(const DataSet& data, const View_s& view);

/// The three components of what the view's vectors name; empty if it names nothing. Throws Error
/// (Usage).
struct VectorQuantity_s {
    std::string name;
    std::vector<std::size_t> variables; // one for each axis that there is
    const DerivedQuantity* derived = nullptr;
};
std::optional<VectorQuantity_s> vectorsOf(const DataSet& data, const View_s& view);

/// Index from 0 of the time step nearest to the view's time; the first without one.
std::size_t timeStepOf(const DataSet& data, const View_s& view);

PlotKind_e plotOf(const DataSet& data, const View_s& view);

/// A zone and the surfaces of it that are shown.
struct ShownZone_s {
    std::size_t zone = 0; // index from 0
    std::vector<SurfaceWish_s> surfaces;
};

/// The zones of a time step that the view shows, in their order; one that the view lists stands for
/// its grid at all times. Boundary zones are shown if a
/// surface of the view names them, or if the view lists them among its zones. Throws Error (Usage)
/// for a zone that is not there, and if nothing is left to show.
std::vector<ShownZone_s> shownZones(const DataSet& data, const View_s& view, std::size_t timeStep);

} // namespace plot3d::scene
