// The ball's mesh: counts, orientation, and that it closes.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numbers>
#include <set>
#include <utility>

#include "plot3dsample/BallMesh.h"

namespace quorvia::plot3dsample {
namespace {

constexpr std::int32_t cells = 5;

Point_t minus(const Point_t& a, const Point_t& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Point_t cross(const Point_t& a, const Point_t& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double dot(const Point_t& a, const Point_t& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

template <class Ball>
Point_t cornerPoint(const Ball& ball, std::int64_t element, std::int32_t corner) {
    return ballPoint(ball.lattice(ball.corner(element, corner) - 1), cells);
}

double volumeOf(const BallVolume& ball, std::int64_t element) {
    const Point_t origin = cornerPoint(ball, element, 0);
    const Point_t a = minus(cornerPoint(ball, element, 1), origin);
    const Point_t b = minus(cornerPoint(ball, element, 2), origin);
    const Point_t c = minus(cornerPoint(ball, element, 3), origin);
    return dot(cross(a, b), c) / 6;
}

TEST(BallVolume, FillsTheBallWithTetrahedraOfPositiveVolume) {
    const BallVolume ball(cells);
    double sum = 0;
    for (std::int64_t element = 0; element < ball.elementCount(); ++element) {
        ASSERT_GT(volumeOf(ball, element), 0) << "element " << element;
        sum += volumeOf(ball, element);
    }
    EXPECT_NEAR(sum, 4 * std::numbers::pi / 3, 0.15 * sum);
}

TEST(BallVolume, CountsNodesFromOneAndUsesThemAll) {
    const BallVolume ball(cells);
    std::set<std::int32_t> nodes;
    for (std::int64_t element = 0; element < ball.elementCount(); ++element) {
        for (std::int32_t corner = 0; corner < 4; ++corner)
            nodes.insert(ball.corner(element, corner));
    }
    EXPECT_EQ(*nodes.begin(), 1);
    EXPECT_EQ(*nodes.rbegin(), 216);
    EXPECT_EQ(nodes.size(), 216U);
}

TEST(BallSurface, LiesOnTheSphere) {
    const BallSurface ball(cells);
    ASSERT_EQ(ball.nodeCount(), 6 * 25 + 2);
    std::set<Lattice_t> places;
    for (std::int32_t node = 0; node < ball.nodeCount(); ++node) {
        const Point_t point = ballPoint(ball.lattice(node), cells);
        EXPECT_NEAR(dot(point, point), 1, 1e-12);
        places.insert(ball.lattice(node));
    }
    EXPECT_EQ(places.size(), 152U);
}

TEST(BallSurface, IsClosedByTrianglesThatFaceOutwards) {
    const BallSurface ball(cells);
    std::map<std::pair<std::int32_t, std::int32_t>, int> edges;
    for (std::int64_t element = 0; element < ball.elementCount(); ++element) {
        const Point_t origin = cornerPoint(ball, element, 0);
        const Point_t normal = cross(minus(cornerPoint(ball, element, 1), origin),
                                     minus(cornerPoint(ball, element, 2), origin));
        EXPECT_GT(dot(normal, origin), 0) << "element " << element;
        for (std::int32_t corner = 0; corner < 3; ++corner)
            ++edges[{ball.corner(element, corner), ball.corner(element, (corner + 1) % 3)}];
    }
    EXPECT_EQ(edges.size(), 3U * 300U);
    for (const auto& [edge, count] : edges)
        EXPECT_TRUE(count == 1 && edges.count({edge.second, edge.first}) == 1);
}

TEST(BallSurface, OfOneCellPerEdgeIsACubesEightCorners) {
    const BallSurface ball(1);
    EXPECT_EQ(ball.nodeCount(), 8);
    EXPECT_EQ(ball.lattice(7), (Lattice_t{1, 1, 1}));
}

} // namespace
} // namespace quorvia::plot3dsample
