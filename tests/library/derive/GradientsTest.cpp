// Derivatives on bent grids, against flows whose derivatives are known.
#include <cmath>
#include <stop_token>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "TestFlow.h"

namespace plot3dtest {
namespace {

constexpr double near = 1e-11;

/// Velocity = rate x place + drift, row by row; pressure falls along (0.1, 0.2, 0.3).
TestFlow_s linearFlow(const std::array<Vector, 3>& rate, const Vector& drift = {}) {
    TestFlow_s flow;
    flow.state = [=](const Vector& place) {
        State_s state;
        state.density = 2.0;
        for (std::size_t row = 0; row < 3; ++row)
            state.velocity[row] = plot3dlib::dot(rate[row], place) + drift[row];
        state.pressure = 5.0 - plot3dlib::dot({0.1, 0.2, 0.3}, place);
        return state;
    };
    return flow;
}

void expectEverywhere(const Components& values, const Vector& expected) {
    ASSERT_EQ(values.size(), 3U);
    for (std::size_t axis = 0; axis < 3; ++axis)
        for (const double value : values[axis])
            ASSERT_NEAR(value, expected[axis], near) << "axis " << axis;
}

// u = a x place turns with the vorticity 2 a.
constexpr std::array<Vector, 3> turning{{{0, -0.7, 0.5}, {0.7, 0, -0.3}, {-0.5, 0.3, 0}}};
constexpr std::array<Vector, 3> anyRate{{{1, 2, 3}, {-4, 5, 6}, {7, -8, 9}}};

TEST(Vorticity, OfARigidRotationIsTwiceItsRate) {
    expectEverywhere(linearFlow(turning).compute(201), {0.6, 1.0, 1.4});
    const Components magnitudes = linearFlow(turning).compute(211);
    for (const double magnitude : magnitudes[0])
        EXPECT_NEAR(magnitude, std::sqrt(0.36 + 1.0 + 1.96), near);
}

TEST(Vorticity, OfAnyLinearFlowIsTheSameAtAllNodes) {
    expectEverywhere(linearFlow(anyRate).compute(201), {-8 - 6, 3 - 7, -4 - 2});
}

TEST(Vorticity, IsTheSameOnALeftHandedGrid) {
    TestFlow_s flow = linearFlow(anyRate);
    flow.place = [](double i, double j, double k) { return TestFlow_s::bentPlace(j, i, k); };
    expectEverywhere(flow.compute(201), {-14, -4, -6});
}

TEST(StrainRate, IsHowTheVelocityGrowsAlongItsOwnAxis) {
    expectEverywhere(linearFlow(anyRate).compute(212), {1, 5, 9});
}

TEST(PressureGradient, OfALinearPressureIsTheSameAtAllNodes) {
    expectEverywhere(linearFlow(anyRate).compute(210), {-0.1, -0.2, -0.3});
}

TEST(Swirl, IsVorticityTimesMomentumByTheSquareOfTheSpeed) {
    const TestFlow_s flow = linearFlow(turning, {1, 1, 1});
    const Components swirl = flow.compute(184);
    for (std::size_t n = 0; n < swirl[0].size(); ++n) {
        const Vector velocity = flow.stateAt(n).velocity;
        const double expected =
            2.0 * plot3dlib::dot({0.6, 1.0, 1.4}, velocity) / plot3dlib::dot(velocity, velocity);
        EXPECT_NEAR(swirl[0][n], expected, near);
    }
}

TEST(Swirl, IsNotANumberAtRest) {
    const Components swirl = linearFlow({}).compute(184);
    for (const double value : swirl[0])
        EXPECT_TRUE(std::isnan(value));
}

TEST(Gradients, AreExactInsideForSquaresOnAnEvenGrid) {
    TestFlow_s flow;
    flow.size = {7, 5, 3};
    flow.place = [](double i, double j, double k) { return Vector{0.5 * i, 0.25 * j, 2 * k}; };
    flow.state = [](const Vector& at) { return State_s{1.0, {0, at[0] * at[0], 0}, 1.0}; };
    const Components vorticity = flow.compute(201);
    for (std::size_t n = 0; n < vorticity[2].size(); ++n) {
        const std::size_t i = n % 7;
        const double atEnd = i == 0 ? 0.5 : i == 6 ? -0.5 : 0.0; // to the middle of the last cell
        EXPECT_NEAR(vorticity[2][n], 2.0 * flow.placeAt(n)[0] + atEnd, near);
    }
}

TEST(Gradients, OfAPlaneFlowLieInItsPlane) {
    TestFlow_s flow = linearFlow({{{1, 2, 0}, {-4, 5, 0}, {0, 0, 0}}});
    flow.size = {5, 4, 1};
    flow.place = [](double i, double j, double) { return Vector{i + 0.1 * j * j, j - 0.2 * i, 0}; };
    expectEverywhere(flow.compute(201), {0, 0, -6});
    expectEverywhere(flow.compute(210), {-0.1, -0.2, 0});
    expectEverywhere(flow.compute(212), {1, 5, 0});
}

TEST(Gradients, OfAPlaneGridStandUprightJustAsWell) {
    TestFlow_s flow = linearFlow({{{1, 0, 3}, {0, 0, 0}, {7, 0, 9}}});
    flow.size = {1, 4, 5}; // in the plane of x and z
    flow.place = [](double, double j, double k) { return Vector{j + 0.1 * k * k, 2.0, k}; };
    expectEverywhere(flow.compute(201), {0, 3 - 7, 0});
    expectEverywhere(flow.compute(210), {-0.1, 0, -0.3});
}

TEST(Gradients, AreNotANumberWhereCellsHaveNoVolume) {
    TestFlow_s flow = linearFlow(anyRate);
    flow.place = [](double i, double j, double k) {
        return i == 0.0 ? Vector{0, 0, k} : Vector{i, i * j, k}; // an edge that is one line
    };
    const Components vorticity = flow.compute(201);
    for (std::size_t n = 0; n < vorticity[0].size(); ++n)
        EXPECT_EQ(std::isnan(vorticity[0][n]), n % 5 == 0) << n;
}

TEST(Gradients, OfALineOfPointsAreNotANumber) {
    TestFlow_s flow = linearFlow(anyRate);
    flow.size = {5, 1, 1};
    EXPECT_TRUE(std::isnan(flow.compute(201)[0][2]));
}

TEST(Gradients, EndWhenTheyAreStopped) {
    std::stop_source stop;
    stop.request_stop();
    const std::vector<double> ones(8, 1.0);
    const plot3dlib::Flow_s flow{{2, 2, 2}, {ones, ones, ones}, ones, {ones, ones, ones}, ones, {}};
    EXPECT_THROW(quantityOf(201).compute(flow, {}, stop.get_token()), plot3d::Error);
}

} // namespace
} // namespace plot3dtest
