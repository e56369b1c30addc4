#include "describe/Words.h"

#include <fmt/core.h>

namespace quorvia::host {

const char* wordOf(MessageKind_e kind) {
    switch (kind) {
    case MessageKind_e::Error:
        return "error";
    case MessageKind_e::Information:
        return "information";
    case MessageKind_e::Question:
        return "question";
    }
    return "unknown";
}

const char* wordOf(FieldState_e state) {
    switch (state) {
    case FieldState_e::Empty:
        return "empty";
    case FieldState_e::Deferred:
        return "deferred";
    case FieldState_e::Stored:
        return "stored";
    }
    return "unknown";
}

const char* wordOf(QuorFieldDataType_e type) {
    switch (type) {
    case QuorFieldDataType_Float:
        return "float32";
    case QuorFieldDataType_Double:
        return "float64";
    case QuorFieldDataType_Int32:
        return "int32";
    case QuorFieldDataType_Invalid:
        break;
    }
    return "unknown";
}

const char* wordOf(QuorZoneType_e type) {
    switch (type) {
    case QuorZoneType_Ordered:
        return "ordered";
    case QuorZoneType_Triangles:
        return "triangles";
    case QuorZoneType_Tetrahedra:
        return "tetrahedra";
    }
    return "unknown";
}

const char* wordOf(QuorPlotType_e type) {
    switch (type) {
    case QuorPlotType_None:
        return "none";
    case QuorPlotType_3D:
        return "3D";
    case QuorPlotType_2D:
        return "2D";
    case QuorPlotType_XY:
        return "XY";
    case QuorPlotType_Sketch:
        return "sketch";
    case QuorPlotType_Polar:
        return "polar";
    }
    return "unknown";
}

const char* stateWordOf(const FieldOutcome_s& field) {
    return field.sharedWith != 0 ? sharedWord : wordOf(field.state);
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return fmt::format("{} {}", count, count == 1 ? one : many);
}

std::string sizeText(const DataSetOutcome_s& dataSet) {
    return counted(dataSet.zones.size(), "zone", "zones") + ", " +
           counted(dataSet.variables.size(), "variable", "variables");
}

std::string sizeText(const std::optional<DataSetOutcome_s>& dataSet) {
    return dataSet ? sizeText(*dataSet) : "no data set";
}

std::string sizeText(const ZoneOutcome_s& zone) {
    if (zone.type == QuorZoneType_Ordered)
        return fmt::format("{} x {} x {}", zone.i, zone.j, zone.k);
    return fmt::format("{} nodes, {} elements", zone.i, zone.j);
}

} // namespace quorvia::host
