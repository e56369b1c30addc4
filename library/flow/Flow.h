// The values of a zone that formulas start from, as plain arrays.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include <plot3d/Box.h>

#include "flow/Vector.h"

namespace plot3dlib {

/// Borrowed; one value for each point, I fastest, as PLOT3D has them: nondimensional, with the
/// density and the speed of sound of the free stream. What a formula does not need may be empty.
struct Flow_s {
    plot3d::Extent size;
    std::array<std::span<const double>, 3> coordinates; // z is empty in 2-D
    std::span<const double> density;
    std::array<std::span<const double>, 3> momentum; // for each volume; the one along z is empty
                                                     // in 2-D
    std::span<const double> energy;                  // stagnation energy for each volume
    std::span<const double> gamma;                   // ratio of specific heats; empty if it is
                                                     // the same everywhere
};

struct FlowConstants_s {
    double gamma = 1.4;           // where Flow::gamma has none
    double freeStreamGamma = 1.4; // for the pressure of the free stream, which is 1 / gamma
    double gasConstant = 1.0;
    double freeStreamMach = 0.0; // 0: not known
};

/// One point of it. 0 where the flow has no value.
struct FlowPoint_s {
    double density = 0.0;
    Vector momentum = {};
    double energy = 0.0;
    double gamma = 0.0;
};

inline FlowPoint_s pointOf(const Flow_s& flow, std::size_t index,
                           const FlowConstants_s& constants) {
    const auto valueOf = [&](std::span<const double> values) {
        return values.empty() ? 0.0 : values[index];
    };
    return {valueOf(flow.density),
            {valueOf(flow.momentum[0]), valueOf(flow.momentum[1]), valueOf(flow.momentum[2])},
            valueOf(flow.energy),
            flow.gamma.empty() ? constants.gamma : flow.gamma[index]};
}

} // namespace plot3dlib
