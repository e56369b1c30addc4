#include "sessions/FileModel.h"

#include <fstream>
#include <stdexcept>

#include <fmt/core.h>

#include "support/SmallFiles.h"

namespace quorvia::sessions {

using namespace plot3dwriter;

namespace {

FileDescription_s contentsOf(const FileModel_s& file) {
    FileDescription_s contents = testsupport::describe(
        file.kind, file.grids, file.layout,
        [&file](std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                std::int32_t k) { return valueAt(file, grid, variable, i, j, k); });
    contents.isMultiGrid = file.isMultiGrid;
    contents.hasIBlank = file.hasIBlank;
    contents.numVars = file.variableCount(); // where the header tells it
    testsupport::setScalars(contents, {0.5, 2.0, 1000.0, file.time, 7.0, 8.0, 9.0, 10.0});
    contents.iblank = [&file](std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k) {
        return iBlankAt(file, grid, i, j, k);
    };
    contents.corner = [&file](std::int32_t grid, std::int64_t element, std::int32_t corner) {
        return nodeAt(file, grid, element, corner);
    };
    return contents;
}

void writeBoundaries(const FileModel_s& file, const std::string& path) {
    std::ofstream stream(path);
    stream << "FVBND 1 4\n";
    for (const Boundary_s& boundary : file.boundaries)
        stream << boundary.name << '\n';
    stream << "BOUNDARIES\n";
    for (std::size_t index = 0; index < file.boundaries.size(); ++index) {
        const Boundary_s& boundary = file.boundaries[index];
        stream << fmt::format("{} {} {} {} {} {} {} {} F 0\n", index + 1, boundary.gridNumber,
                              boundary.first.i, boundary.last.i, boundary.first.j, boundary.last.j,
                              boundary.first.k, boundary.last.k);
    }
    if (!stream.flush())
        throw std::runtime_error("cannot write " + path);
}

} // namespace

std::int32_t coordinateCount(Layout_e layout) {
    return layout == Layout_e::OneD ? 1 : layout == Layout_e::TwoD ? 2 : 3;
}

std::int32_t FileModel_s::variableCount() const {
    if (kind == FileKind_e::Grid)
        return coordinateCount(layout);
    return isFunction() ? functionCount : coordinateCount(layout) + 2;
}

// Whole numbers below 2^24, so that a 32-bit real holds them; a third more where only a 64-bit real
// does.
double valueAt(const FileModel_s& file, std::int32_t grid, std::int32_t variable, std::int32_t i,
               std::int32_t j, std::int32_t k) {
    const GridDims_s& dims = file.grids[static_cast<std::size_t>(grid)];
    const bool isLine = file.layout == Layout_e::Unstructured;
    const std::int32_t point = isLine ? i : i + dims.i * (j + dims.j * k);
    const std::int32_t whole = file.serial * 20000 + grid * 5000 + variable * 600 + point + 1;
    const bool hasRest = file.isDouble() && !file.isText();
    return hasRest ? whole + 1.0 / 3.0 : whole;
}

std::int32_t iBlankAt(const FileModel_s& file, std::int32_t grid, std::int32_t i, std::int32_t j,
                      std::int32_t k) {
    return (file.serial + 2 * grid + i + 3 * j + 5 * k) % 7 - 1;
}

std::int32_t nodeAt(const FileModel_s& file, std::int32_t grid, std::int64_t element,
                    std::int32_t corner) {
    const std::int64_t nodes = file.grids[static_cast<std::size_t>(grid)].i;
    return static_cast<std::int32_t>((file.serial + 3 * element + corner) % nodes + 1);
}

void write(const FileModel_s& file, const std::string& folder) {
    const std::string path = folder + "/" + file.name;
    testsupport::writeFile(path, contentsOf(file), file.form);
    if (!file.boundaries.empty())
        writeBoundaries(file, path + ".fvbnd");
}

std::string describe(const FileModel_s& file) {
    static constexpr const char* kinds[] = {"grid", "Classic", "Swift", "Overflow", "function"};
    static constexpr const char* layouts[] = {"1-D", "2-D", "3-D whole", "3-D planes",
                                              "unstructured"};
    static constexpr const char* encodings[] = {"text", "binary", "Fortran"};
    std::string text = fmt::format(
        "{:14} {:8} {:12} {:7} {}-bit{}", file.name, kinds[static_cast<int>(file.kind)],
        layouts[static_cast<int>(file.layout)], encodings[static_cast<int>(file.form.encoding)],
        file.isDouble() ? 64 : 32, file.form.byteOrder == ByteOrder_e::Big ? " big-endian" : "");
    if (file.form.encoding == Encoding_e::Fortran)
        text += fmt::format(" markers of {}", file.form.markerBytes);
    text += file.isMultiGrid ? " multi-grid" : " single grid";
    for (const GridDims_s& dims : file.grids)
        text += fmt::format(" {}x{}x{}", dims.i, dims.j, dims.k);
    if (file.hasIBlank)
        text += ", I-blank";
    if (file.isFunction())
        text += fmt::format(", {} variables", file.functionCount);
    else if (file.kind != FileKind_e::Grid)
        text += fmt::format(", time {}", file.time);
    for (const Boundary_s& boundary : file.boundaries)
        text += fmt::format(", {} on grid {} I {}-{} J {}-{} K {}-{}", boundary.name,
                            boundary.gridNumber, boundary.first.i, boundary.last.i,
                            boundary.first.j, boundary.last.j, boundary.first.k, boundary.last.k);
    return text;
}

} // namespace quorvia::sessions
