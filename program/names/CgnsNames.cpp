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

int cgnsCellDimension(ZoneKind kind, int gridDimensions) {
    switch (kind) {
    case ZoneKind::Triangles:
    case ZoneKind::Quadrilaterals:
        return 2;
    case ZoneKind::Tetrahedra:
    case ZoneKind::Bricks:
        return 3;
    case ZoneKind::Ordered:
        break;
    }
    return gridDimensions;
}

} // namespace plot3d::program
