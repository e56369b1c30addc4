// Plots of lines: values over a coordinate along 1-D zones, or along one line of each zone.
#pragma once

#include <stop_token>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>

#include "content/Choices.h"
#include "content/SceneContent.h"

namespace plot3d::scene {

/// Adds the curves of the view's time step, one for each zone shown that has the line and values,
/// over the coordinate that changes most along them. Throws Error: Usage for a quantity that is
/// nothing, and if there is no curve.
void addCurves(const DataSet& data, const Gas& gas, const Quantity_s& quantity,
               const std::stop_token& stop, SceneContent_s& content);

} // namespace plot3d::scene
