// What a data set is made of: variables, zones, time steps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/Box.h>

namespace plot3d {

/// Values by name.
using AuxiliaryData = std::map<std::string, std::string>;

struct Variable {
    std::string name;
};

enum class ZoneKind : std::uint8_t {
    Ordered,   // a block of I x J x K points
    Triangles, // the elements of the unstructured kinds are told by DataSet::nodeMap
    Quadrilaterals,
    Tetrahedra,
    Bricks
};

/// Corners of one element; 0 for an ordered zone.
constexpr std::int32_t cornerCount(ZoneKind kind) {
    switch (kind) {
    case ZoneKind::Ordered:
        return 0;
    case ZoneKind::Triangles:
        return 3;
    case ZoneKind::Quadrilaterals:
    case ZoneKind::Tetrahedra:
        return 4;
    case ZoneKind::Bricks:
        return 8;
    }
    return 0;
}

struct Zone {
    std::string name;
    ZoneKind kind = ZoneKind::Ordered;
    Extent size;                       // points; of an unstructured zone its nodes along I
    std::int64_t elementCount = 0;     // of an unstructured zone
    double time = 0.0;                 // solution time; unitless, as it stands in the file
    std::int32_t strand = 0;           // zones of one strand are one grid through time; 0 for none
    std::optional<std::size_t> parent; // index from 0 of the zone whose boundary this is
    AuxiliaryData auxiliaryData;
};

/// The zones that are seen at one time: those of that time, and all that have no strand.
struct TimeStep {
    double time = 0.0;
    std::vector<std::size_t> zones; // indices from 0, ascending
};

} // namespace plot3d
