#include "TestFlow.h"

#include <cmath>
#include <stdexcept>

#include "plot3dwriter/Plot3DWriter.h"

namespace plot3dtest {

namespace {

namespace writer = quorvia::plot3dwriter;

/// The five variables of a solution.
std::array<double, 5> solutionOf(const State_s& state, double gamma) {
    const Vector momentum = plot3dlib::scaled(state.velocity, state.density);
    const double energy = state.pressure / (gamma - 1.0) +
                          0.5 * state.density * plot3dlib::dot(state.velocity, state.velocity);
    return {state.density, momentum[0], momentum[1], momentum[2], energy};
}

void writeFile(const std::string& name, const writer::FileDescription_s& contents) {
    writer::FileForm_s form;
    form.precision = writer::Precision_e::Double;
    const std::string problem = writer::writePlot3DFile(name, contents, form).problem;
    if (!problem.empty())
        throw std::runtime_error(problem);
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

plot3d::DataSet TestFlow_s::open(const quorvia::testsupport::TemporaryDirectory& directory) const {
    writer::FileDescription_s grid;
    grid.layout = size.k == 1 ? writer::Layout_e::TwoD : writer::Layout_e::ThreeDWhole;
    grid.grids = {{static_cast<std::int32_t>(size.i), static_cast<std::int32_t>(size.j),
                   static_cast<std::int32_t>(size.k)}};
    grid.value = [this](auto, std::int32_t variable, auto i, auto j, auto k) {
        return place(i, j, k)[static_cast<std::size_t>(variable)];
    };
    writer::FileDescription_s solution = grid;
    solution.kind = writer::FileKind_e::ClassicSolution;
    solution.scalars = {{mach, 3.0, 1e6, 0.5}};
    solution.value = [this](auto, std::int32_t variable, auto i, auto j, auto k) {
        // In 2-D there is no momentum along z between that along y and the energy.
        const std::int32_t place3D = size.k == 1 && variable == 3 ? 4 : variable;
        return solutionOf(state(place(i, j, k)), gamma)[static_cast<std::size_t>(place3D)];
    };
    writeFile(directory.file("flow.x"), grid);
    writeFile(directory.file("flow.q"), solution);
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
