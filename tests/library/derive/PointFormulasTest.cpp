// Quantities of one point, against what is known of the state.
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "TestFlow.h"
#include "flow/PointFormulas.h"

namespace plot3dtest {
namespace {

using namespace plot3dlib;

/// The point of a gas of gamma 1.4 with these.
FlowPoint_s pointWith(double density, const Vector& velocity, double pressure, double gamma = 1.4) {
    return {density, scaled(velocity, density),
            pressure / (gamma - 1.0) + 0.5 * density * dot(velocity, velocity), gamma};
}

/// The free stream at Mach 2: density and speed of sound are 1.
class FreeStream : public ::testing::Test {
protected:
    FlowConstants_s constants{.freeStreamMach = 2.0};
    FlowPoint_s point = pointWith(1.0, {1.2, 0.0, -1.6}, 1.0 / 1.4);
};

TEST_F(FreeStream, HasPressureOneByGammaAndNoPressureCoefficient) {
    EXPECT_DOUBLE_EQ(pressureAt(point), 1.0 / 1.4);
    EXPECT_NEAR(pressureCoefficientAt(point, constants), 0.0, 1e-15);
}

TEST_F(FreeStream, HasItsMachNumberAndSpeedOfSound) {
    EXPECT_DOUBLE_EQ(soundSpeedAt(point, constants), 1.0);
    EXPECT_DOUBLE_EQ(machNumberAt(point, constants), 2.0);
    EXPECT_DOUBLE_EQ(velocityMagnitudeAt(point, constants), 2.0);
}

TEST_F(FreeStream, HasTheEnergiesOfAPerfectGas) {
    EXPECT_DOUBLE_EQ(internalEnergyAt(point, constants), 1.0 / 1.4 / 0.4);
    EXPECT_DOUBLE_EQ(kineticEnergyAt(point, constants), 2.0);
    EXPECT_DOUBLE_EQ(enthalpyAt(point, constants), 1.0 / 0.4);
    EXPECT_DOUBLE_EQ(stagnationEnergyAt(point, constants), 1.0 / 1.4 / 0.4 + 2.0);
}

TEST_F(FreeStream, HasTheTemperatureThatTheGasConstantGives) {
    EXPECT_DOUBLE_EQ(temperatureAt(point, constants), 1.0 / 1.4);
    constants.gasConstant = 1.0 / 1.4; // temperatures in those of the free stream
    EXPECT_DOUBLE_EQ(temperatureAt(point, constants), 1.0);
}

TEST_F(FreeStream, HasNoEntropyAndGainsNoneByCompression) {
    EXPECT_NEAR(entropyAt(point, constants), 0.0, 1e-15);
    const FlowPoint_s compressed = pointWith(3.0, {0.5, 0, 0}, std::pow(3.0, 1.4) / 1.4);
    EXPECT_NEAR(entropyAt(compressed, constants), 0.0, 1e-14);
}

TEST(Entropy, GrowsByTheHeatCapacityWithHeatAtOneDensity) {
    const FlowConstants_s constants{.gasConstant = 2.0};
    const FlowPoint_s heated = pointWith(1.0, {}, std::exp(1.0) / 1.4);
    EXPECT_NEAR(entropyAt(heated, constants), 2.0 / 0.4, 1e-14);
}

TEST(PressureCoefficient, IsThatOfAStagnationPoint) {
    const FlowConstants_s constants{.freeStreamMach = 0.5};
    const double stagnation = std::pow(1.0 + 0.2 * 0.25, 3.5) / 1.4;
    // Known in powers of the Mach number.
    const double expected = 1.0 + 0.25 / 4 + 0.6 / 24 / 16 + 0.12 / 192 / 64;
    EXPECT_NEAR(pressureCoefficientAt(pointWith(1.1, {}, stagnation), constants), expected, 1e-7);
}

TEST(PointFormulas, TakeTheRatioOfSpecificHeatsOfThePoint) {
    const FlowPoint_s point = pointWith(2.0, {1, 2, 2}, 0.75, 1.2);
    const FlowConstants_s constants{.freeStreamGamma = 1.3};
    EXPECT_DOUBLE_EQ(pressureAt(point), 0.75);
    EXPECT_DOUBLE_EQ(soundSpeedAt(point, constants), std::sqrt(1.2 * 0.75 / 2.0));
    EXPECT_DOUBLE_EQ(enthalpyAt(point, constants), 1.2 * 0.75 / 0.2 / 2.0);
    EXPECT_DOUBLE_EQ(entropyAt(point, constants), std::log(0.75 * 1.3 / std::pow(2.0, 1.2)) / 0.2);
}

TEST(PointFormulas, OfArraysFollowThePoints) {
    TestFlow_s flow;
    flow.state = [](const Vector& place) {
        return State_s{1.0 + 0.1 * place[0], {place[1], -place[2], 0.5}, 2.0 + 0.1 * place[2]};
    };
    const Components pressure = flow.compute(110);
    const Components velocity = flow.compute(200);
    const Components momentum = flow.compute(202);
    for (std::size_t n = 0; n < pressure[0].size(); ++n) {
        const State_s state = flow.stateAt(n);
        EXPECT_NEAR(pressure[0][n], state.pressure, 1e-13);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            EXPECT_NEAR(velocity[axis][n], state.velocity[axis], 1e-13);
            EXPECT_NEAR(momentum[axis][n], state.density * state.velocity[axis], 1e-13);
        }
    }
}

TEST(PointFormulas, AreNotANumberWhereTheyHaveNoValue) {
    TestFlow_s flow;
    flow.size = {2, 1, 1};
    flow.place = [](double i, double, double) { return Vector{i, 0, 0}; };
    flow.state = [](const Vector& place) {
        return place[0] == 0.0 ? State_s{0.0, {}, 1.0} : State_s{1.0, {1, 0, 0}, -1.0};
    };
    for (const int number : {112, 113, 120, 140, 153, 200})
        EXPECT_TRUE(std::isnan(flow.compute(number)[0][0])) << number << " without density";
    for (const int number : {112, 113, 170})
        EXPECT_TRUE(std::isnan(flow.compute(number)[0][1])) << number << " at a negative pressure";
    EXPECT_EQ(flow.compute(100)[0][0], 0.0);
    EXPECT_DOUBLE_EQ(flow.compute(110)[0][1], -1.0);
}

} // namespace
} // namespace plot3dtest
