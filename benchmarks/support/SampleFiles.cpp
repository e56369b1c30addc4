#include "support/SampleFiles.h"

#include <cmath>
#include <stdexcept>

#include <fmt/core.h>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::benchmarks {

namespace {

using namespace plot3dwriter;

void write(const std::string& path, const FileDescription_s& description, const FileForm_s& form) {
    const WriteOutcome_s outcome = writePlot3DFile(path, description, form);
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
}

FileDescription_s describe(FileKind_e kind, GridDims_s dims, std::int32_t grids = 1) {
    FileDescription_s description;
    description.kind = kind;
    description.isMultiGrid = grids > 1;
    description.grids.assign(static_cast<std::size_t>(grids), dims);
    if (kind == FileKind_e::ClassicSolution)
        description.scalars.assign(static_cast<std::size_t>(grids), {0.8, 2.0, 1e6, 0.0});
    description.value = [](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                           std::int32_t k) {
        return 0.25 * variable + std::sin(0.01 * i) + 1e-3 * (j + 7 * k);
    };
    return description;
}

std::vector<std::string> writeSeries(const std::filesystem::path& directory, GridDims_s dims,
                                     std::int32_t grids, std::int32_t steps) {
    std::vector<std::string> files = {(directory / "series.x").string()};
    write(files.front(), describe(FileKind_e::Grid, dims, grids), {});
    FileDescription_s solution = describe(FileKind_e::ClassicSolution, dims, grids);
    for (std::int32_t step = 0; step < steps; ++step) {
        for (std::vector<double>& scalars : solution.scalars)
            scalars[3] = 0.5 * step;
        files.push_back((directory / fmt::format("series_{:04}.q", step)).string());
        write(files.back(), solution, {});
    }
    return files;
}

} // namespace

std::vector<std::string> writeTimeSeries(const std::filesystem::path& directory, std::int32_t steps,
                                         const Points_s& points) {
    return writeSeries(directory, {points.i, points.j, points.k}, 1, steps);
}

std::vector<std::string> writeManyGrids(const std::filesystem::path& directory, std::int32_t grids,
                                        std::int32_t steps) {
    return writeSeries(directory, {2, 2, 2}, grids, steps);
}

void writeFlow(const std::string& path, FileKind_e kind, std::int32_t points, ByteOrder_e order,
               bool isMultiGrid) {
    FileDescription_s description;
    description.kind = kind;
    description.isMultiGrid = isMultiGrid;
    description.grids = {{points, points, points}};
    if (kind == FileKind_e::ClassicSolution)
        description.scalars = {{0.5, 0, 1e6, 0}};
    description.value = [](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                           std::int32_t k) {
        return variable + 0.01 * ((i * 31 + j * 17 + k * 7) % 1009);
    };
    FileForm_s form;
    form.byteOrder = order;
    write(path, description, form);
}

void writeTextGrid(const std::string& path, std::int32_t points) {
    FileForm_s form;
    form.encoding = Encoding_e::Text;
    form.text.significantDigits = 9;
    write(path, describe(FileKind_e::Grid, {points, points, points}), form);
}

void writeSparseBinary(const std::string& path, std::int64_t megabytes, bool isSolution,
                       bool isBigEndian) {
    const FileKind_e kind = isSolution ? FileKind_e::ClassicSolution : FileKind_e::Grid;
    const double valueCount =
        static_cast<double>(megabytes) * 1048576.0 / 8.0 / (isSolution ? 5 : 3);
    const auto points = static_cast<std::int32_t>(std::cbrt(valueCount));
    FileDescription_s description = describe(kind, {points, points, points});
    description.isHole = [](std::int32_t, std::int32_t, std::int32_t) { return true; };
    FileForm_s form;
    form.precision = Precision_e::Double;
    form.byteOrder = isBigEndian ? ByteOrder_e::Big : ByteOrder_e::Little;
    write(path, description, form);
}

} // namespace quorvia::benchmarks
