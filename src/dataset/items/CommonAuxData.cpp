#include "dataset/items/CommonAuxData.h"

#include <array>
#include <string>
#include <string_view>

#include "dataset/items/AuxDataItem.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

namespace {

struct KnownVariable_s {
    std::string_view name; // compared as it stands, case included
    const char* item;
};

constexpr std::array knownVariables = {
    KnownVariable_s{"RHO", "Common.DensityVar"},
    KnownVariable_s{"RHO-U", "Common.UVar"},
    KnownVariable_s{"RHO-V", "Common.VVar"},
    KnownVariable_s{"RHO-W", "Common.WVar"},
    KnownVariable_s{"E", "Common.StagnationEnergyVar"},
    KnownVariable_s{"GAMMA", "Common.GammaVar"},
    KnownVariable_s{"K", "Common.TurbulentKineticEnergyVar"},
    KnownVariable_s{"EPSILON", "Common.TurbulentDissipationRateVar"},
};

bool setItemOfVariable(QuorAuxDataHandle auxData, std::string_view name, std::int64_t var) {
    for (const KnownVariable_s& known : knownVariables)
        if (known.name == name)
            return setAuxDataItem(auxData, known.item, std::to_string(var).c_str());
    return true;
}

} // namespace

bool setCommonAuxData(QuorStringListHandle variableNames) {
    const QuorAuxDataHandle auxData = QuorUtilAuxDataDataSetGetRef();
    const std::int64_t count = QuorUtilStringListGetCount(variableNames);
    for (std::int64_t var = 1; var <= count; ++var) {
        const HostString name(QuorUtilStringListGetString(variableNames, var));
        if (!name || !setItemOfVariable(auxData, name.view(), var))
            return false;
    }
    // The momenta are no velocities. A speed of sound of 1 is what the files are normalised by.
    return setAuxDataItem(auxData, "Common.VectorVarsAreVelocity", "FALSE") &&
           setAuxDataItem(auxData, "Common.SpeedOfSound", "1.0");
}

} // namespace quorvia::quorutildataio
