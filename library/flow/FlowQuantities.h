// The table of quantities: what each is called, what it needs, and how it is computed.
#pragma once

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

#include "flow/Flow.h"

namespace plot3dlib {

/// What a formula reads of the flow. The ratio of specific heats goes with the energy.
struct FlowNeeds_s {
    bool density = false;
    bool momentum = false;
    bool energy = false;
    bool coordinates = false; // for derivatives
    bool freeStreamMach = false;
};

/// One list of values for each component, one value for each point, I fastest.
using Components = std::vector<std::vector<double>>;

struct FlowQuantity_s {
    int number;       // as PLOT3D's users know it
    std::string word; // for command lines
    std::vector<std::string> components;
    FlowNeeds_s needs;
    /// Not a number where the formula has no value. Throws Error (Interrupted).
    Components (*compute)(const Flow_s& flow, const FlowConstants_s& constants,
                          const std::stop_token& stop);
};

/// All of them, by number.
const std::vector<FlowQuantity_s>& flowQuantities();

} // namespace plot3dlib
