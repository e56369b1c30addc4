// The words for a PLOT3D file's layout and style. Their numbers are shared by the load options, the
// instruction words, the dialog's menus and the file records.
#pragma once

#include <cstdint>

namespace quorvia::quorutildataio {

enum Plot3DStyle_e : std::int32_t {
    Plot3DStyle_Classic = 0,
    Plot3DStyle_Function = 1,
    Plot3DStyle_Overflow = 2,
    Plot3DStyle_Swift = 3,
    Plot3DStyle_Unknown = 255
};

enum Plot3DDataStructure_e : std::int32_t {
    Plot3DDataStructure_1D = 0,
    Plot3DDataStructure_2D = 1,
    Plot3DDataStructure_3DPlanes = 2,
    Plot3DDataStructure_3DWhole = 3,
    Plot3DDataStructure_Unstructured = 4,
    Plot3DDataStructure_Unknown = 255
};

/// Coordinates of a point in a grid file, 1 to 3; 0 if the layout is unknown.
constexpr std::int32_t coordinateCount(Plot3DDataStructure_e dataStructure) {
    switch (dataStructure) {
    case Plot3DDataStructure_1D:
        return 1;
    case Plot3DDataStructure_2D:
        return 2;
    case Plot3DDataStructure_3DPlanes:
    case Plot3DDataStructure_3DWhole:
    case Plot3DDataStructure_Unstructured:
        return 3;
    case Plot3DDataStructure_Unknown:
        break;
    }
    return 0;
}

} // namespace quorvia::quorutildataio
