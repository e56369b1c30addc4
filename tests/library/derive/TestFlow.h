// A flow that is known in closed form, on a grid that is bent as one likes: as arrays, and as files
// on disk.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <plot3d/Box.h>
#include <plot3d/DataSet.h>

#include "flow/FlowQuantities.h"
#include "support/TemporaryDirectory.h"

namespace plot3dtest {

using plot3dlib::Components;
using plot3dlib::Vector;

struct State_s {
    double density = 1.0;
    Vector velocity = {};
    double pressure = 1.0;
};

struct TestFlow_s {
    plot3d::Extent size{5, 4, 3};
    std::function<Vector(double i, double j, double k)> place = bentPlace;
    std::function<State_s(const Vector& place)> state;
    double gamma = 1.4;
    double mach = 2.0;

    /// Neither straight nor square, and of no cell volume twice.
    static Vector bentPlace(double i, double j, double k);

    State_s stateAt(std::size_t index) const;
    Vector placeAt(std::size_t index) const;
    /// By number, from arrays alone.
    Components compute(int number, const plot3dlib::FlowConstants_s& constants = {}) const;
    /// Writes a grid and a Classic solution of 64-bit reals, and opens them.
    plot3d::DataSet open(const quorvia::testsupport::TemporaryDirectory& directory) const;
};

const plot3dlib::FlowQuantity_s& quantityOf(int number);

} // namespace plot3dtest
