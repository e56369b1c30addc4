#include "convert/cgns/CgnsNames.h"

#include <algorithm>
#include <map>

#include "convert/output/UniqueNames.h"

namespace plot3d::program {

namespace {

constexpr std::size_t longestName = 32;

const std::map<std::string, std::string>& standardNames() {
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
    return names;
}

/// A slash would be a path, and blanks at the end are not part of a name.
std::string asName(std::string name) {
    std::replace(name.begin(), name.end(), '/', '_');
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

} // namespace

std::vector<std::string> cgnsVariableNames(const Contents& contents) {
    std::vector<std::string> names;
    for (const std::string& name : namesOf(contents)) {
        const auto standard = standardNames().find(name);
        names.push_back(standard == standardNames().end() ? asName(name) : standard->second);
    }
    return uniqueNames(names, longestName);
}

std::vector<std::string> cgnsZoneNames(const Contents& contents) {
    std::vector<std::string> names;
    for (const ContentZone_s& zone : contents.zones())
        names.push_back(asName(zone.name));
    return uniqueNames(names, longestName);
}

} // namespace plot3d::program
