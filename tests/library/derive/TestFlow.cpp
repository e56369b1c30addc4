#include "TestFlow.h"

#include <cmath>
#include <stdexcept>

#include "support/SmallFiles.h"

namespace plot3dtest {

using namespace quorvia::testsupport;

namespace {

namespace writer = quorvia::plot3dwriter;

/// The five variables of a solution.
std::array<double, 5> solutionOf(const State_s& state, double gamma) {
    const Vector momentum = plot3dlib::scaled(state.velocity, state.density);
    const double energy = state.pressure / (gamma - 1.0) +
                          0.5 * state.density * plot3dlib::dot(state.velocity, state.velocity);
    return {state.density, momentum[0], momentum[1], momentum[2], energy};
}

} // namespace

Vector TestFlow_s::bentPlace(double i, double j, double k) {
    return {i + 0.1 * j * j - 0.2 * k, 1.5 * j + 0.05 * i * k, 0.7 * k + 0.03 * i * i + 0.1 * j};
}

Vector TestFlow_s::placeAt(std::size_t index) const {
    const auto n = static_cast<std::int64_t>(index);
    return place(static_cast<double>(n % size.i), static_cast<double>(n / size.i % size.j),
                 static_cast<double>(n / size.i / size.j));
}

State_s TestFlow_s::stateAt(std::size_t index) const {
    return state(placeAt(index));
}

Components TestFlow_s::compute(int number, const plot3dlib::FlowConstants_s& constants) const {
    const auto count = static_cast<std::size_t>(size.count());
    std::array<std::vector<double>, 8> arrays;
    for (std::size_t n = 0; n < count; ++n) {
        for (std::size_t axis = 0; axis < 3; ++axis)
            arrays[axis].push_back(placeAt(n)[axis]);
        for (std::size_t variable = 0; variable < 5; ++variable)
            arrays[3 + variable].push_back(solutionOf(stateAt(n), gamma)[variable]);
    }
    const auto& [x, y, z, density, mx, my, mz, energy] = arrays;
    const plot3dlib::Flow_s flow{size, {x, y, z}, density, {mx, my, mz}, energy, {}};
    return quantityOf(number).compute(flow, constants, {});
}

void TestFlow_s::write(const quorvia::testsupport::TemporaryDirectory& directory) const {
    const GridList grids = {{static_cast<std::int32_t>(size.i), static_cast<std::int32_t>(size.j),
                             static_cast<std::int32_t>(size.k)}};
    const auto layout = size.k == 1 ? writer::Layout_e::TwoD : writer::Layout_e::ThreeDWhole;
    const auto grid = describe(writer::FileKind_e::Grid, grids, layout,
                               [this](auto, std::int32_t variable, auto i, auto j, auto k) {
                                   return place(i, j, k)[static_cast<std::size_t>(variable)];
                               });
    auto solution = describe(
        writer::FileKind_e::ClassicSolution, grids, layout,
        [this](auto, std::int32_t variable, auto i, auto j, auto k) {
            // In 2-D there is no momentum along z between that along y and the energy.
            const std::int32_t place3D = size.k == 1 && variable == 3 ? 4 : variable;
            return solutionOf(state(place(i, j, k)), gamma)[static_cast<std::size_t>(place3D)];
        });
    setScalars(solution, {mach, 3.0, 1e6, 0.5});
    const auto form = binary(writer::ByteOrder_e::Little, writer::Precision_e::Double);
    writeFile(directory.file("flow.x"), grid, form);
    writeFile(directory.file("flow.q"), solution, form);
}

plot3d::DataSet TestFlow_s::open(const quorvia::testsupport::TemporaryDirectory& directory) const {
    write(directory);
    return plot3d::DataSet::open(
        std::vector<std::string>{directory.file("flow.x"), directory.file("flow.q")});
}

const plot3dlib::FlowQuantity_s& quantityOf(int number) {
    for (const plot3dlib::FlowQuantity_s& quantity : plot3dlib::flowQuantities())
        if (quantity.number == number)
            return quantity;
    throw std::runtime_error("no such quantity");
}

} // namespace plot3dtest
