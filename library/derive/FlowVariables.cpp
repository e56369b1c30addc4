#include "derive/FlowVariables.h"

#include <charconv>

namespace plot3dlib {

namespace {

using plot3d::AuxiliaryData;
using plot3d::DataSet;
using Variable = FlowVariables_s::Variable;

template <typename Number>
std::optional<Number> numberIn(const AuxiliaryData& items, const char* name) {
    const auto item = items.find(name);
    if (item == items.end())
        return std::nullopt;
    const std::string& text = item->second;
    Number number{};
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

Variable variableIn(const DataSet& data, const char* item) {
    const auto number = numberIn<std::size_t>(data.auxiliaryData(), item); // from 1
    if (!number || *number < 1 || *number > data.variables().size())
        return std::nullopt;
    return *number - 1;
}

/// Tells what one zone has, until something is missing.
class ZoneCheck {
public:
    ZoneCheck(const DataSet& data, std::size_t zone) : data_(data), zone_(zone) {}

    void require(const Variable& variable, const char* what) {
        if (!missing_.empty())
            return;
        if (!variable)
            missing_ = std::string("no variable is known to be the ") + what;
        else if (data_.kind(zone_, *variable) == plot3d::FieldKind::Empty)
            missing_ = std::string("the zone has no values of the ") + what;
    }
    void require(const std::array<Variable, 3>& variables, bool isPlane, const char* what) {
        for (std::size_t axis = 0; axis < (isPlane ? 2U : 3U); ++axis)
            require(variables[axis], (std::string(what) + " along " + "xyz"[axis]).c_str());
    }
    void requireSurface() {
        const plot3d::Zone& zone = data_.zones()[zone_];
        const plot3d::Extent& size = zone.size;
        const int directions = (size.i > 1) + (size.j > 1) + (size.k > 1);
        if (missing_.empty() && (zone.kind != plot3d::ZoneKind::Ordered || directions < 2))
            missing_ = "derivatives need an ordered zone with points along two directions or three";
    }
    void requireMach() {
        if (missing_.empty() && freeStreamMach(data_, zone_).value_or(0.0) <= 0.0)
            missing_ = "the Mach number of the free stream is not known";
    }
    const std::string& missing() const { return missing_; }

private:
    const DataSet& data_;
    std::size_t zone_;
    std::string missing_;
};

} // namespace

FlowVariables_s flowVariablesOf(const DataSet& data) {
    FlowVariables_s variables;
    variables.coordinates = {data.findVariable("X"), data.findVariable("Y"),
                             data.findVariable("Z")};
    variables.density = variableIn(data, "Common.DensityVar");
    variables.momentum = {variableIn(data, "Common.UVar"), variableIn(data, "Common.VVar"),
                          variableIn(data, "Common.WVar")};
    variables.energy = variableIn(data, "Common.StagnationEnergyVar");
    variables.gamma = variableIn(data, "Common.GammaVar");
    variables.isPlane = data.dimensions() < 3 && !variables.coordinates[2];
    return variables;
}

std::optional<double> freeStreamMach(const DataSet& data, std::size_t zone) {
    constexpr const char* name = "Common.ReferenceMachNumber";
    const auto ofZone = numberIn<double>(data.zones()[zone].auxiliaryData, name);
    return ofZone ? ofZone : numberIn<double>(data.auxiliaryData(), name);
}

std::optional<double> freeStreamGamma(const DataSet& data, std::size_t zone) {
    return numberIn<double>(data.zones()[zone].auxiliaryData, "G");
}

std::string whatIsMissing(const DataSet& data, std::size_t zone, const FlowNeeds_s& needs) {
    const FlowVariables_s variables = flowVariablesOf(data);
    ZoneCheck check(data, zone);
    if (needs.density)
        check.require(variables.density, "density");
    if (needs.momentum)
        check.require(variables.momentum, variables.isPlane, "momentum");
    if (needs.energy)
        check.require(variables.energy, "stagnation energy");
    if (needs.coordinates) {
        check.require(variables.coordinates, variables.isPlane, "coordinate");
        check.requireSurface();
    }
    if (needs.freeStreamMach)
        check.requireMach();
    return check.missing();
}

} // namespace plot3dlib
