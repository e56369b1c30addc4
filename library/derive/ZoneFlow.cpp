#include "derive/ZoneFlow.h"

#include <plot3d/FieldReader.h>

namespace plot3dlib {

ZoneFlow::ZoneFlow(const plot3d::DataSet& data, std::size_t zone, const FlowNeeds_s& needs,
                   const plot3d::Gas& gas, const std::stop_token& stop) {
    const FlowVariables_s variables = flowVariablesOf(data);
    flow_.size = data.zones()[zone].size;
    const auto valuesOf =
        [&](const FlowVariables_s::Variable& variable) -> std::span<const double> {
        if (!variable || data.kind(zone, *variable) == plot3d::FieldKind::Empty)
            return {};
        auto& values = values_.emplace_back(static_cast<std::size_t>(flow_.size.count()));
        data.reader(zone, *variable)
            .readAsDouble(plot3d::Box::whole(flow_.size), values.data(), stop);
        return values;
    };
    if (needs.density)
        flow_.density = valuesOf(variables.density);
    if (needs.energy) {
        flow_.energy = valuesOf(variables.energy);
        flow_.gamma = valuesOf(variables.gamma);
    }
    for (std::size_t axis = 0; axis < (variables.isPlane ? 2U : 3U); ++axis) {
        if (needs.momentum)
            flow_.momentum[axis] = valuesOf(variables.momentum[axis]);
        if (needs.coordinates)
            flow_.coordinates[axis] = valuesOf(variables.coordinates[axis]);
    }
    constants_ = {gas.gamma, gas.gamma, gas.gasConstant, freeStreamMach(data, zone).value_or(0.0)};
    if (!flow_.gamma.empty())
        constants_.freeStreamGamma = freeStreamGamma(data, zone).value_or(gas.gamma);
}

} // namespace plot3dlib
