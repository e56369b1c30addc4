#include "program/values/ValueFiles.h"

#include <cstdlib>
#include <iostream>
#include <random>

namespace plot3d::program {
namespace {

/// The step of SplitMix64.
std::uint64_t mixed(std::uint64_t state) {
    state += 0x9E3779B97F4A7C15U;
    state = (state ^ (state >> 30)) * 0xBF58476D1CE4E5B9U;
    state = (state ^ (state >> 27)) * 0x94D049BB133111EBU;
    return state ^ (state >> 31);
}

writer::FileDescription_s severalGrids(writer::FileKind_e kind, const Sizes& sizes,
                                       const Value& value) {
    writer::FileDescription_s contents =
        quorvia::testsupport::describe(kind, sizes, writer::Layout_e::ThreeDWhole, value);
    contents.isMultiGrid = true;
    return contents;
}

} // namespace

std::uint64_t seedOfRun() {
    const char* const given = std::getenv("PLOT3D_TEST_SEED");
    const std::uint64_t seed =
        given != nullptr ? std::strtoull(given, nullptr, 10) : std::random_device()();
    std::cout << "PLOT3D_TEST_SEED=" << seed << '\n';
    return seed;
}

std::uint32_t dice(std::uint64_t seed, std::int64_t a, std::int64_t b, std::int64_t c,
                   std::int64_t d, std::int64_t e) {
    std::uint64_t state = mixed(seed);
    for (const std::int64_t part : {a, b, c, d, e})
        state = mixed(state ^ static_cast<std::uint64_t>(part));
    return static_cast<std::uint32_t>(state);
}

Value randomValues(std::uint64_t seed) {
    return [seed](std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) {
        const std::uint32_t bits = dice(seed, grid, variable, i, j, k);
        return static_cast<double>(bits % 2000001U) / 1024.0 - 976.0;
    };
}

double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) {
    return i + 100.0 * j + 10000.0 * k + 1000000.0 * variable + 10000000.0 * grid;
}

writer::FileDescription_s gridFile(const Sizes& sizes, const Value& value, const IBlank& iBlank) {
    writer::FileDescription_s contents = severalGrids(writer::FileKind_e::Grid, sizes, value);
    contents.hasIBlank = static_cast<bool>(iBlank);
    contents.iblank = iBlank;
    return contents;
}

writer::FileDescription_s functionFile(const Sizes& sizes, std::int32_t variables,
                                       const Value& value) {
    writer::FileDescription_s contents = severalGrids(writer::FileKind_e::Function, sizes, value);
    contents.numVars = variables;
    return contents;
}

writer::FileDescription_s solutionFile(const Sizes& sizes, const Value& value, double time) {
    writer::FileDescription_s contents =
        severalGrids(writer::FileKind_e::ClassicSolution, sizes, value);
    quorvia::testsupport::setScalars(contents, {0.5, 0.0, 1e6, time});
    return contents;
}

bool isTakenForAnother(const Ended_s& run) {
    const auto says = [&run](const char* text) { return run.err.find(text) != std::string::npos; };
    return run.code == 1 &&
           (says("is not a function file") || says("The number of grids in the function files"));
}

std::string ValueFilesTest::write(const std::string& name,
                                  const writer::FileDescription_s& contents,
                                  const writer::FileForm_s& form) const {
    quorvia::testsupport::writeFile(file(name), contents, form);
    return file(name);
}

} // namespace plot3d::program
