#include "acceptance/matrix/FileReading.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace quorvia::testsupport {

using namespace plot3dwriter;

namespace {

/// One value out of the bytes of a file, widened; `Value` says how it stands there.
template <class Value>
double valueIn(const WrittenFile_s& file, std::int64_t position) {
    std::array<char, sizeof(Value)> bytes;
    std::memcpy(bytes.data(), file.bytes.data() + position, sizeof(Value));
    if (file.form.byteOrder == ByteOrder_e::Big)
        std::reverse(bytes.begin(), bytes.end());
    Value value;
    std::memcpy(&value, bytes.data(), sizeof(Value));
    return static_cast<double>(value);
}

double realIn(const WrittenFile_s& file, std::int64_t position) {
    return isDouble(file.form) ? valueIn<double>(file, position) : valueIn<float>(file, position);
}

} // namespace

WrittenFile_s writeFile(const std::string& path, const LayoutCase_s& layout,
                        const FileForm_s& form) {
    WrittenFile_s file = {path, layout, form, contentsOf(layout), {}, {}};
    const WriteOutcome_s onDisk = writePlot3DFile(path, file.contents, form);
    const WriteOutcome_s inMemory = writePlot3DBytes(file.bytes, file.contents, form);
    if (!onDisk.problem.empty() || !inMemory.problem.empty())
        throw std::runtime_error(onDisk.problem + inMemory.problem);
    file.blocks = inMemory.blocks;
    return file;
}

FileReading::FileReading(const WrittenFile_s& file, Reading_e reading)
    : file_(&file), reading_(reading), numVars_(plot3dwriter::variableCount(file.contents)) {}

FileReading FileReading::asMeant(const WrittenFile_s& file) {
    return FileReading(file, Reading_e::AsMeant);
}

FileReading FileReading::planesAsWhole(const WrittenFile_s& file) {
    return FileReading(file, Reading_e::PlanesAsWhole);
}

FileReading FileReading::asShortestReals(const WrittenFile_s& file) {
    return FileReading(file, Reading_e::ShortestReals);
}

bool FileReading::hasIBlank() const {
    return file_->layout.hasIBlank && reading_ != Reading_e::ShortestReals;
}

bool FileReading::isDouble() const {
    return testsupport::isDouble(file_->form) && reading_ != Reading_e::ShortestReals;
}

bool FileReading::readsPlanes() const {
    return file_->layout.layout == Layout_e::ThreeDPlanes && reading_ != Reading_e::PlanesAsWhole;
}

host::FieldState_e FileReading::state() const {
    const bool isText = file_->form.encoding == Encoding_e::Text;
    return isText || readsPlanes() ? host::FieldState_e::Stored : host::FieldState_e::Deferred;
}

std::int64_t FileReading::pointCount(std::int32_t grid) const {
    const auto index = static_cast<std::size_t>(grid);
    return plot3dwriter::pointCount(file_->contents, file_->contents.grids[index]);
}

std::vector<double> FileReading::scalars(std::int32_t grid) const {
    std::vector<double> scalars = file_->contents.scalars[static_cast<std::size_t>(grid)];
    const auto count = static_cast<std::int64_t>(scalars.size());
    for (std::int64_t index = 0; index < count; ++index) {
        double& scalar = scalars[static_cast<std::size_t>(index)];
        const bool isInteger = file_->layout.kind == FileKind_e::OverflowSolution &&
                               index == static_cast<std::int64_t>(overflowIntegerIndex);
        const std::int64_t position = shortDataStart(grid) - 4 * (count - index);
        if (reading_ == Reading_e::ShortestReals)
            scalar = isInteger ? valueIn<std::int32_t>(*file_, position)
                               : valueIn<float>(*file_, position);
        else if (!isDouble() && file_->form.encoding != Encoding_e::Text)
            scalar = static_cast<double>(static_cast<float>(scalar));
    }
    return scalars;
}

FieldExpectation_s FileReading::field(std::int32_t grid, std::int32_t variable) const {
    FieldExpectation_s expected;
    if (hasIBlank() && variable == numVars_)
        expected.type = QuorFieldDataType_Int32;
    else
        expected.type = isDouble() ? QuorFieldDataType_Double : QuorFieldDataType_Float;
    expected.state = state();
    const GridDims_s dims = file_->contents.grids[static_cast<std::size_t>(grid)];
    expected.value = [this, grid, variable, dims](std::int64_t i, std::int64_t j, std::int64_t k) {
        const std::int64_t index = i + dims.i * (j + std::int64_t{dims.j} * k);
        if (reading_ == Reading_e::PlanesAsWhole)
            return wholeValue(grid, variable, index);
        if (reading_ == Reading_e::ShortestReals)
            return shortValue(grid, variable, index);
        return meantValue(grid, variable, i, j, k);
    };
    return expected;
}

double FileReading::meantValue(std::int32_t grid, std::int32_t variable, std::int64_t i,
                               std::int64_t j, std::int64_t k) const {
    if (variable == numVars_)
        return iblankAt(grid, i, j, k);
    return valueAt(file_->layout.kind, grid, variable, i, j, k);
}

/// The value at the place where a whole field would have it. `index` is the point's, I fastest.
double FileReading::wholeValue(std::int32_t grid, std::int32_t variable, std::int64_t index) const {
    const std::int64_t points = pointCount(grid);
    const GridDims_s& dims = file_->contents.grids[static_cast<std::size_t>(grid)];
    if (file_->form.encoding == Encoding_e::Text) {
        const std::int64_t planePoints = std::int64_t{dims.i} * dims.j;
        const std::int64_t token = variable * points + index;
        const std::int64_t inPlane = token % (numVars_ * planePoints);
        const std::int64_t point = inPlane % planePoints;
        return meantValue(grid, static_cast<std::int32_t>(inPlane / planePoints), point % dims.i,
                          point / dims.i, token / (numVars_ * planePoints));
    }
    const auto first = std::find_if(
        file_->blocks.begin(), file_->blocks.end(), [grid](const BlockPosition_s& block) {
            return block.grid == grid && block.kind == BlockKind_e::Variable;
        });
    const std::int64_t width = isDouble() ? 8 : 4;
    const std::int64_t fieldStart = first->position + variable * points * width;
    return variable == numVars_ ? valueIn<std::int32_t>(*file_, fieldStart + index * 4)
                                : realIn(*file_, fieldStart + index * width);
}

double FileReading::shortValue(std::int32_t grid, std::int32_t variable, std::int64_t index) const {
    const GridDims_s& dims = file_->contents.grids[static_cast<std::size_t>(grid)];
    const std::int64_t blockPoints =
        readsPlanes() ? std::int64_t{dims.i} * dims.j : pointCount(grid);
    const std::int64_t block = (index / blockPoints) * numVars_ + variable;
    const std::int64_t value = block * blockPoints + index % blockPoints;
    return valueIn<float>(*file_, shortDataStart(grid) + 4 * value);
}

std::int64_t FileReading::connectivityBytes(std::int32_t grid) const {
    if (file_->layout.layout != Layout_e::Unstructured || file_->layout.kind != FileKind_e::Grid)
        return 0;
    const GridDims_s& dims = file_->contents.grids[static_cast<std::size_t>(grid)];
    return 16 * (std::int64_t{dims.j} + dims.k);
}

/// Where the fields of a grid would begin if all numbers so far were of 4 bytes.
std::int64_t FileReading::shortDataStart(std::int32_t grid) const {
    const std::int64_t scalarBytes = 4 * std::int64_t{scalarCount(file_->contents)};
    std::int64_t position = file_->blocks.front().position + scalarBytes;
    for (std::int32_t earlier = 0; earlier < grid; ++earlier)
        position += 4 * numVars_ * pointCount(earlier) + connectivityBytes(earlier) + scalarBytes;
    return position;
}

} // namespace quorvia::testsupport
