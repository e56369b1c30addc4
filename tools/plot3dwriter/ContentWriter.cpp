#include "plot3dwriter/ContentWriter.h"

#include <memory>
#include <utility>

#include "plot3dwriter/NumberSink.h"
#include "plot3dwriter/RecordSizes.h"

namespace quorvia::plot3dwriter {

namespace {

constexpr std::int32_t noPlane = -1;

/// One walk over a description that has no fault: header, then grid after grid.
class Walk {
public:
    Walk(const FileDescription_s& description, const FileForm_s& form, ByteSink& sink)
        : description_(description), form_(form), sink_(sink), numbers_(makeNumberSink(sink, form)),
          numVars_(variableCount(description)) {}

    std::vector<BlockPosition_s> run() {
        writeHeader();
        for (std::size_t grid = 0; grid < description_.grids.size(); ++grid) {
            writeScalars(grid);
            writeData(grid);
        }
        writeTail();
        sink_.finish();
        return std::move(blocks_);
    }

private:
    void writeHeader() {
        if (description_.isMultiGrid) {
            numbers_->beginRecord(4);
            putLine({static_cast<std::int32_t>(description_.grids.size())});
            numbers_->endRecord();
        }
        numbers_->beginRecord(headerBytes(description_));
        for (const GridDims_s& grid : description_.grids)
            putLine(headerIntegers(grid));
        if (description_.kind == FileKind_e::OverflowSolution)
            putLine({numVars_, description_.numSpecies});
        numbers_->endRecord();
    }

    std::vector<std::int32_t> headerIntegers(const GridDims_s& grid) const {
        std::vector<std::int32_t> integers = {grid.i};
        if (description_.layout == Layout_e::Unstructured && description_.kind != FileKind_e::Grid)
            integers.insert(integers.end(), {1, 1});
        else if (description_.layout == Layout_e::TwoD)
            integers.push_back(grid.j);
        else if (description_.layout != Layout_e::OneD)
            integers.insert(integers.end(), {grid.j, grid.k});
        if (isCountOfEachGrid(description_.kind))
            integers.push_back(numVars_);
        return integers;
    }

    void putLine(const std::vector<std::int32_t>& integers) {
        numbers_->beginRun(Run_e::OneLine);
        for (const std::int32_t integer : integers)
            numbers_->putInteger(integer);
        numbers_->endRun();
    }

    void writeScalars(std::size_t grid) {
        if (scalarCount(description_) == 0)
            return;
        numbers_->beginRecord(scalarsBytes(description_, form_, grid));
        note(BlockKind_e::Scalars, grid, 0, noPlane);
        numbers_->beginRun(Run_e::OneLine);
        const std::vector<double>& scalars = description_.scalars[grid];
        for (std::size_t index = 0; index < scalars.size(); ++index) {
            if (isOverflow() && index == overflowIntegerIndex)
                numbers_->putInteger(static_cast<std::int32_t>(scalars[index]));
            else
                numbers_->putReal(scalars[index]);
        }
        numbers_->endRun();
        numbers_->endRecord();
    }

    void writeData(std::size_t grid) {
        const GridDims_s& dims = description_.grids[grid];
        const bool inPlanes = description_.layout == Layout_e::ThreeDPlanes;
        const std::int32_t recordCount = inPlanes ? dims.k : 1;
        const std::int64_t recordBytes = dataBytes(description_, form_, dims).value();
        for (std::int32_t record = 0; record < recordCount; ++record) {
            numbers_->beginRecord(recordBytes);
            writeRecord(grid, inPlanes ? record : noPlane);
            numbers_->endRecord();
        }
    }

    void writeRecord(std::size_t grid, std::int32_t plane) {
        for (std::int32_t variable = 0; variable < numVars_; ++variable) {
            note(BlockKind_e::Variable, grid, variable, plane);
            writeField(grid, variable, plane);
        }
        if (description_.hasIBlank) {
            note(BlockKind_e::IBlank, grid, numVars_, plane);
            writeField(grid, numVars_, plane);
        }
        if (description_.layout == Layout_e::Unstructured &&
            description_.kind == FileKind_e::Grid) {
            note(BlockKind_e::Connectivity, grid, 0, plane);
            writeConnectivity(grid);
        }
    }

    /// The index behind the last variable stands for I-blank.
    void writeField(std::size_t grid, std::int32_t variable, std::int32_t plane) {
        const GridDims_s& dims = description_.grids[grid];
        const bool isUnstructured = description_.layout == Layout_e::Unstructured;
        const std::int32_t first = plane == noPlane ? 0 : plane;
        const std::int32_t last = plane == noPlane ? (isUnstructured ? 0 : dims.k - 1) : plane;
        const std::int32_t rows = isUnstructured ? 1 : dims.j;
        numbers_->beginRun(Run_e::Block);
        for (std::int32_t k = first; k <= last; ++k) {
            if (isHole(grid, variable, k))
                numbers_->putHole(std::int64_t{dims.i} * rows * valueWidth(variable));
            else
                writePlane(static_cast<std::int32_t>(grid), variable, {dims.i, rows, k});
        }
        numbers_->endRun();
    }

    /// `extent` holds the points of the plane in I and J, and the plane's own index.
    void writePlane(std::int32_t grid, std::int32_t variable, const GridDims_s& extent) {
        const std::int32_t k = extent.k;
        for (std::int32_t j = 0; j < extent.j; ++j) {
            for (std::int32_t i = 0; i < extent.i; ++i) {
                if (variable == numVars_)
                    numbers_->putInteger(description_.iblank(grid, i, j, k));
                else
                    numbers_->putReal(description_.value(grid, variable, i, j, k));
            }
        }
    }

    void writeConnectivity(std::size_t grid) {
        const GridDims_s& dims = description_.grids[grid];
        const auto gridIndex = static_cast<std::int32_t>(grid);
        writeCorners(gridIndex, dims.j, 3);
        numbers_->beginRun(Run_e::Block);
        for (std::int64_t triangle = 0; triangle < dims.j; ++triangle) {
            const auto& tag = description_.triangleTag;
            numbers_->putInteger(tag ? tag(gridIndex, triangle) : 0);
        }
        numbers_->endRun();
        writeCorners(gridIndex, dims.k, 4);
    }

    void writeCorners(std::int32_t grid, std::int64_t elementCount, std::int32_t cornerCount) {
        numbers_->beginRun(Run_e::Block);
        for (std::int64_t element = 0; element < elementCount; ++element) {
            for (std::int32_t corner = 0; corner < cornerCount; ++corner)
                numbers_->putInteger(description_.corner(grid, element, corner));
        }
        numbers_->endRun();
    }

    /// The bytes by which an Overflow file in plain binary is longer than its contents.
    void writeTail() {
        if (!isOverflow() || form_.encoding != Encoding_e::Binary ||
            form_.overflowTail == OverflowTail_e::Nothing)
            return;
        const bool isDouble = form_.precision == Precision_e::Double;
        const std::size_t tail = isDouble ? 16 + 4 * description_.grids.size() : 8;
        sink_.write(std::string(tail, '\0'));
    }

    bool isOverflow() const { return description_.kind == FileKind_e::OverflowSolution; }

    bool isHole(std::size_t grid, std::int32_t variable, std::int32_t k) const {
        return description_.isHole &&
               description_.isHole(static_cast<std::int32_t>(grid), variable, k);
    }

    std::int64_t valueWidth(std::int32_t variable) const {
        return variable == numVars_ ? 4 : realWidth(form_);
    }

    void note(BlockKind_e kind, std::size_t grid, std::int32_t variable, std::int32_t plane) {
        blocks_.push_back(
            {kind, static_cast<std::int32_t>(grid), variable, plane, sink_.position()});
    }

    const FileDescription_s& description_;
    const FileForm_s& form_;
    ByteSink& sink_;
    std::unique_ptr<NumberSink> numbers_;
    const std::int32_t numVars_;
    std::vector<BlockPosition_s> blocks_;
};

} // namespace

std::vector<BlockPosition_s> writeContents(const FileDescription_s& description,
                                           const FileForm_s& form, ByteSink& sink) {
    return Walk(description, form, sink).run();
}

} // namespace quorvia::plot3dwriter
