// What the names of boundaries stand for.
#include <array>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "boundary/BoundaryConditions.h"

namespace quorvia::testsupport {
namespace {

std::string conditionOf(const char* name) {
    std::array<char, quorutildataio::boundaryConditionSize> condition;
    quorutildataio::classifyBoundary(name, condition.data());
    return condition.data();
}

TEST(BoundaryCondition, GoesByTheName) {
    const std::pair<const char*, const char*> table[] = {
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
        {"supersonic_outflow", "Extrapolated"},
    };
    for (const auto& [name, condition] : table)
        EXPECT_EQ(conditionOf(name), condition) << name;
}

TEST(BoundaryCondition, TakesNamesInAnyCase) {
    EXPECT_EQ(conditionOf("SUPERSONIC_OUTFLOW"), "Extrapolated");
    EXPECT_EQ(conditionOf("SlipWall"), "Slip Wall");
}

TEST(BoundaryCondition, OfAnUnknownNameIsAWall) {
    EXPECT_EQ(conditionOf("periodic"), "Wall");
    EXPECT_EQ(conditionOf("inflows"), "Wall");
    EXPECT_EQ(conditionOf(""), "Wall");
}

} // namespace
} // namespace quorvia::testsupport
