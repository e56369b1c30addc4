// The flows of the samples against values known from elsewhere.
#include <gtest/gtest.h>

#include <cmath>

#include "plot3dsample/CylinderFlow.h"
#include "plot3dsample/ShockTubeFlow.h"
#include "plot3dsample/VortexFlow.h"

namespace quorvia::plot3dsample {
namespace {

class SodShockTube : public testing::Test {
protected:
    TubeState_s at(double speed) const { return sampleTube(left, right, star, speed); }

    const TubeState_s left = {1, 0, 1};
    const TubeState_s right = {0.125, 0, 0.1};
    const StarState_s star = solveStarState(left, right);
};

TEST_F(SodShockTube, HasThePublishedStarState) {
    EXPECT_NEAR(star.pressure, 0.30313, 5e-6);
    EXPECT_NEAR(star.velocity, 0.92745, 5e-6);
    EXPECT_NEAR(at(0.9).density, 0.42632, 5e-6);
    EXPECT_NEAR(at(1.0).density, 0.26557, 5e-6);
}

TEST_F(SodShockTube, IsUndisturbedAheadOfItsWaves) {
    EXPECT_EQ(at(-1.19).density, 1);
    EXPECT_EQ(at(1.76).density, 0.125);
    EXPECT_EQ(at(1.76).pressure, 0.1);
}

TEST_F(SodShockTube, ShockRunsAtItsPublishedSpeed) {
    EXPECT_NEAR(at(1.7521).velocity, 0.92745, 5e-6);
    EXPECT_EQ(at(1.7523).velocity, 0);
}

TEST_F(SodShockTube, FanFollowsTheRarefactionRelations) {
    const TubeState_s state = at(-0.5);
    EXPECT_NEAR(state.velocity, 0.5693466, 1e-7);
    EXPECT_NEAR(state.density, 0.6029377, 1e-7);
    EXPECT_NEAR(state.pressure, 0.4924719, 1e-7);
}

TEST_F(SodShockTube, MirroredStatesGiveTheMirroredSolution) {
    const StarState_s mirroredStar = solveStarState(right, left);
    EXPECT_NEAR(mirroredStar.velocity, -star.velocity, 1e-12);
    const TubeState_s mirroredState = sampleTube(right, left, mirroredStar, 0.5);
    EXPECT_NEAR(mirroredState.density, at(-0.5).density, 1e-12);
    EXPECT_NEAR(mirroredState.velocity, -at(-0.5).velocity, 1e-12);
}

constexpr double vortexStrength = 0.4;

TEST(VortexFlow, CentreMovesWithTheStreamAndIsThin) {
    const FlowState_s state = vortexFlow(0, 0, 0.5, vortexStrength);
    EXPECT_DOUBLE_EQ(state.velocity[0], 0.5);
    EXPECT_DOUBLE_EQ(state.velocity[1], 0);
    EXPECT_NEAR(state.density, 0.7965165, 1e-7);
}

TEST(VortexFlow, TurnsFastestAtRadiusOne) {
    const FlowState_s state = vortexFlow(1, 0, 0.5, vortexStrength);
    EXPECT_DOUBLE_EQ(state.velocity[1], vortexStrength);
    EXPECT_NEAR(state.density, 0.9219097, 1e-7);
    EXPECT_DOUBLE_EQ(vortexFlow(0, 1, 0.5, vortexStrength).velocity[0], 0.1);
}

TEST(VortexFlow, KeepsItsEntropy) {
    const FlowState_s state = vortexFlow(0.3, -0.7, 0.5, vortexStrength);
    EXPECT_NEAR(state.pressure, std::pow(state.density, airGamma) / airGamma, 1e-14);
}

TEST(CylinderFlow, RestsAtTheStagnationPoint) {
    const FlowState_s state = cylinderFlow(-1, 0, 0.2);
    EXPECT_NEAR(state.velocity[0], 0, 1e-15);
    EXPECT_NEAR(state.density, 1.0201202, 1e-7);
}

TEST(CylinderFlow, RunsTwiceAsFastOverTheTop) {
    const FlowState_s state = cylinderFlow(0, 1, 0.2);
    EXPECT_NEAR(state.velocity[0], 0.4, 1e-15);
    EXPECT_NEAR(state.density, 0.9410757, 1e-7);
}

TEST(CylinderFlow, FarAwayIsTheFreeStream) {
    const FlowState_s state = cylinderFlow(1e6, 1e6, 0.2);
    EXPECT_NEAR(state.velocity[0], 0.2, 1e-9);
    EXPECT_NEAR(state.density, 1, 1e-9);
    EXPECT_NEAR(state.pressure, 1 / airGamma, 1e-9);
}

TEST(SolutionVariable, EnergyFollowsTheMomentumOfTheLayout) {
    const FlowState_s state = {2, {3, 5, 7}, 0.8, 1.4};
    EXPECT_DOUBLE_EQ(solutionVariable(state, 1, 0), 2);
    EXPECT_DOUBLE_EQ(solutionVariable(state, 1, 1), 6);
    EXPECT_DOUBLE_EQ(solutionVariable(state, 2, 2), 10);
    EXPECT_DOUBLE_EQ(solutionVariable(state, 3, 3), 14);
    EXPECT_DOUBLE_EQ(solutionVariable(state, 1, 2), 2 + 83);
    EXPECT_DOUBLE_EQ(solutionVariable(state, 3, 4), 2 + 83);
    EXPECT_DOUBLE_EQ(solutionVariable(state, 3, 5), 1.4);
}

} // namespace
} // namespace quorvia::plot3dsample
