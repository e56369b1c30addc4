#include "boundary/BoundaryConditions.h"

#include <array>
#include <cstring>

#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

struct NamedCondition_s {
    const char* name;
    const char* condition;
};

constexpr const char* unnamedCondition = "Wall";

constexpr std::array<NamedCondition_s, 14> conditions = {{
    {"wall", "Wall"},
    {"adiabatic_wall", "Wall"},
    {"inflow", "Inflow"},
    {"subsonic_inflow", "Inflow"},
    {"supersonic_inflow", "Inflow"},
    {"inlet", "Inflow"},
    {"outflow", "Outflow"},
    {"subsonic_outflow", "Outflow"},
    {"outlet", "Outflow"},
    {"slipwall", "Slip Wall"},
    {"slip_wall", "Slip Wall"},
    {"symmetry", "Symmetry"},
    {"extrapolated", "Extrapolated"},
    // Nothing runs upstream there, so that such a boundary takes what the flow brings to it.
    {"supersonic_outflow", "Extrapolated"},
}};

} // namespace

void classifyBoundary(const char* name, char* condition) {
    const char* found = unnamedCondition;
    for (const NamedCondition_s& candidate : conditions)
        if (isSameWord(name, candidate.name))
            found = candidate.condition;
    std::strcpy(condition, found);
}

} // namespace quorvia::quorutildataio
