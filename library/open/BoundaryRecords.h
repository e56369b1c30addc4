// What the add-on's record of a boundary's field says, in the terms of the library.
#pragma once

#include <optional>

#include <plot3d/Box.h>

#include "boundary/BoundaryFields.h"

namespace plot3dlib {

/// The boundary's points in its grid; nothing where the load leaves points of it out.
std::optional<plot3d::Box>
boxOf(const quorvia::quorutildataio::Plot3DBoundaryClientData_s& boundary);

/// Of the boundary's grid, as its file tells it.
std::optional<plot3d::Extent>
gridSizeOf(const quorvia::quorutildataio::Plot3DBoundaryClientData_s& boundary);

/// Whether the add-on's own way to the field's values leads to the right ones: it counts the way to
/// a variable in 32 bits, knows neither planes nor markers between segments, and of several
/// function files shows the last. `variable` from 0, of `variableCount`.
bool isFetchedRight(const quorvia::quorutildataio::Plot3DBoundaryClientData_s& boundary,
                    std::size_t variable, std::size_t variableCount);

} // namespace plot3dlib
