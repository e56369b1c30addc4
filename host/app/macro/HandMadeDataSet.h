// A data set that stands in the frame without any load: the starting point of loads that append,
// replace or find something that they must refuse.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "model/Frame.h"

namespace quorvia::host {

struct HandMadeZone_s {
    std::string name;
    std::int32_t type = QuorZoneType_Ordered; // QuorZoneType_e
    // At least 1. Points along I, J, K; or nodes, elements, and the corners that the type has.
    std::int64_t i = 1;
    std::int64_t j = 1;
    std::int64_t k = 1;
    std::vector<std::int32_t> types;    // QuorFieldDataType_e, one for each variable
    std::set<std::int32_t> cellCentred; // numbers of variables, from 1
    std::set<std::int32_t> passive;     // likewise; a passive field has no values
    std::int32_t strandId = 0;          // 0: none
    double solutionTime = 0;
};

struct HandMadeDataSet_s {
    std::string title;
    std::vector<std::string> variables;
    std::vector<HandMadeZone_s> zones;
};

/// Replaces the frame's data set and leaves its plot type alone. Every value is 0. False: there is
/// no memory for the values, and the frame is left without a data set and without a plot type.
bool putIntoFrame(const HandMadeDataSet_s& made, Frame& frame);

} // namespace quorvia::host
