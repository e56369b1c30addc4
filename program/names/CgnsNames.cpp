#include "names/CgnsNames.h"

#include <map>

namespace plot3d::program {

std::string cgnsStandardName(const std::string& variable) {
    static const std::map<std::string, std::string> names = {
        {"X", "CoordinateX"},
        {"Y", "CoordinateY"},
        {"Z", "CoordinateZ"},
        {"RHO", "Density"},
        {"RHO-U", "MomentumX"},
        {"RHO-V", "MomentumY"},
        {"RHO-W", "MomentumZ"},
        {"E", "EnergyStagnationDensity"},
        {"MachNumber", "Mach"},
        {"SoundSpeed", "VelocitySound"},
        {"InternalEnergy", "EnergyInternal"},
        {"KineticEnergy", "EnergyKinetic"},
        {"StagnationEnergy", "EnergyStagnationDensity"},
    };
    const auto found = names.find(variable);
    return found == names.end() ? variable : found->second;
}

} // namespace plot3d::program
