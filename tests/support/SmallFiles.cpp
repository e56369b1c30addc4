#include "support/SmallFiles.h"

#include <stdexcept>
#include <utility>

namespace quorvia::testsupport {

using plot3dwriter::WriteOutcome_s;

namespace {

const GridList surfaceGrids = {{7, 5, 0}};

FileDescription_s describeFlow(const GridList& grids, double time, Layout_e layout) {
    FileDescription_s description = describe(FileKind_e::ClassicSolution, grids, layout);
    setScalars(description, {0.5, 2.0, 1000.0, time});
    return description;
}

void throwProblem(const WriteOutcome_s& outcome) {
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
}

} // namespace

double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) {
    return i + 10 * j + 100 * k + 1000 * variable + 10000 * grid;
}

std::int32_t placeIBlank(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k) {
    return 1 + i + 2 * j + 3 * k - 16 * grid;
}

FileDescription_s describe(FileKind_e kind, const GridList& grids, Layout_e layout,
                           plot3dwriter::ValueFunction value) {
    FileDescription_s description;
    description.kind = kind;
    description.layout = layout;
    description.isMultiGrid = grids.size() > 1;
    description.grids = grids;
    description.value = std::move(value);
    description.iblank = placeIBlank;
    description.corner = [](std::int32_t, std::int64_t element, std::int32_t corner) {
        return static_cast<std::int32_t>(element) + corner + 1;
    };
    return description;
}

void setScalars(FileDescription_s& description, const Numbers& first) {
    Numbers scalars = first;
    scalars.resize(static_cast<std::size_t>(scalarCount(description)));
    description.scalars.assign(description.grids.size(), scalars);
}

FileDescription_s describeGrid(const GridList& grids, Layout_e layout) {
    return describe(FileKind_e::Grid, grids, layout);
}

FileDescription_s describeSolution(const GridList& grids, double time, Layout_e layout,
                                   FileKind_e kind) {
    FileDescription_s description = describe(kind, grids, layout);
    for (std::size_t grid = 0; grid < grids.size(); ++grid)
        description.scalars.push_back({1.25 + static_cast<double>(grid), 2.0, 3e6, time});
    return description;
}

FileDescription_s describeFunction(const GridList& grids, std::int32_t varCount, Layout_e layout) {
    FileDescription_s description = describe(FileKind_e::Function, grids, layout);
    description.numVars = varCount;
    return description;
}

Numbers fieldOf(const FileDescription_s& description, std::int32_t grid, std::int32_t variable) {
    const GridDims_s dims = description.grids[static_cast<std::size_t>(grid)];
    const bool isUnstructured = description.layout == Layout_e::Unstructured;
    Numbers field;
    for (std::int32_t k = 0; k < (isUnstructured ? 1 : dims.k); ++k)
        for (std::int32_t j = 0; j < (isUnstructured ? 1 : dims.j); ++j)
            for (std::int32_t i = 0; i < dims.i; ++i)
                field.push_back(description.value(grid, variable, i, j, k));
    return field;
}

Numbers iblankOf(const FileDescription_s& description, std::int32_t grid) {
    FileDescription_s asValues = description;
    asValues.value = [&](std::int32_t g, std::int32_t, std::int32_t i, std::int32_t j,
                         std::int32_t k) { return description.iblank(g, i, j, k); };
    return fieldOf(asValues, grid, 0);
}

FileForm_s formOf(Encoding_e encoding, ByteOrder_e byteOrder, Precision_e precision,
                  std::int32_t markerBytes) {
    FileForm_s form;
    form.encoding = encoding;
    form.byteOrder = byteOrder;
    form.precision = precision;
    form.markerBytes = markerBytes;
    return form;
}

FileForm_s binary(ByteOrder_e byteOrder, Precision_e precision) {
    return formOf(Encoding_e::Binary, byteOrder, precision);
}

FileForm_s fortran(ByteOrder_e byteOrder, Precision_e precision) {
    return formOf(Encoding_e::Fortran, byteOrder, precision);
}

FileForm_s text() {
    return formOf(Encoding_e::Text);
}

std::vector<FileForm_s> everyEncoding(Precision_e precision) {
    std::vector<FileForm_s> forms = {formOf(Encoding_e::Text, ByteOrder_e::Little, precision)};
    for (const ByteOrder_e order : {ByteOrder_e::Little, ByteOrder_e::Big}) {
        forms.push_back(binary(order, precision));
        for (const std::int32_t markerBytes : {4, 8})
            forms.push_back(formOf(Encoding_e::Fortran, order, precision, markerBytes));
    }
    return forms;
}

std::vector<FileForm_s> everyForm() {
    std::vector<FileForm_s> forms = everyEncoding(Precision_e::Single);
    for (const FileForm_s& form : everyEncoding(Precision_e::Double))
        forms.push_back(form);
    return forms;
}

WriteOutcome_s writeFile(const std::string& path, const FileDescription_s& description,
                         const FileForm_s& form) {
    WriteOutcome_s outcome = plot3dwriter::writePlot3DFile(path, description, form);
    throwProblem(outcome);
    return outcome;
}

std::string bytesOf(const FileDescription_s& description, const FileForm_s& form) {
    std::string bytes;
    throwProblem(plot3dwriter::writePlot3DBytes(bytes, description, form));
    return bytes;
}

SmallFiles::SmallFiles(const std::string& folder) : folder_(folder) {
    if (!folder_.empty())
        folder_ += '/';
}

std::string SmallFiles::grid(const std::string& name, bool hasIBlank, double shift) const {
    FileDescription_s description = describeGrid(grids, layout);
    description.hasIBlank = hasIBlank;
    return write(name, std::move(description), shift);
}

std::string SmallFiles::solution(const std::string& name, double time, double shift) const {
    return write(name, describeFlow(grids, time, layout), shift);
}

std::string SmallFiles::function(const std::string& name, std::int32_t variableCount,
                                 double shift) const {
    return write(name, describeFunction(grids, variableCount, layout), shift);
}

std::string SmallFiles::surface(const std::string& name) const {
    return write(name, describeGrid(surfaceGrids, Layout_e::Unstructured), 0);
}

std::string SmallFiles::surfaceSolution(const std::string& name, double time) const {
    return write(name, describeFlow(surfaceGrids, time, Layout_e::Unstructured), 0);
}

std::string SmallFiles::write(const std::string& name, FileDescription_s description,
                              double shift) const {
    description.isMultiGrid = description.layout != Layout_e::OneD;
    description.value = [shift](std::int32_t grid, std::int32_t variable, std::int32_t i,
                                std::int32_t j, std::int32_t k) {
        return placeValue(grid, variable, i, j, k) + shift;
    };
    const std::string path = folder_ + name;
    writeFile(path, description, form);
    return path;
}

} // namespace quorvia::testsupport
