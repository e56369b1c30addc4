#include "inspect/evidence/Chain.h"

#include <algorithm>

#include "inspect/evidence/HeaderGuess.h"
#include "plot3dfile/layout/StyleRules.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t mostChainedGrids = 10'000;

// ---- What the grids may look like

Reading_s shapeOf(const io::Plot3DRecordForm_s& form, io::Plot3DDataStructure_e dataStructure,
                  io::Plot3DStyle_e style) {
    Reading_s shape;
    static_cast<io::Plot3DRecordForm_s&>(shape) = form;
    shape.dataStructure = dataStructure;
    shape.style = style;
    shape.isSolutionOrFunction = style != io::Plot3DStyle_Unknown;
    const bool is2D = dataStructure == io::Plot3DDataStructure_2D;
    shape.numVars = is2D ? 2 : 3;
    if (shape.isSolutionOrFunction) {
        shape.numVars = is2D ? 4 : 5; // unless each grid's header tells it
        shape.numScalars = io::scalarCount(io::styleRules(style), 0);
    }
    return shape;
}

/// Whether a grid's own header tells all of it.
bool isChained(const io::StyleRules_s& rules, io::Plot3DDataStructure_e dataStructure) {
    const bool exists = dataStructure != io::Plot3DDataStructure_2D || rules.existsIn2D;
    return exists && rules.variableCount != io::VariableCount_e::OfFile;
}

void addShapes(std::vector<Reading_s>& shapes, const io::Plot3DRecordForm_s& form,
               std::optional<plot3d::FileKind> kind) {
    const bool isGrid = !kind || kind == plot3d::FileKind::Grid;
    for (const auto layout : {io::Plot3DDataStructure_3DWhole, io::Plot3DDataStructure_3DPlanes,
                              io::Plot3DDataStructure_2D}) {
        if (isGrid)
            for (const bool hasIBlank : {false, true}) {
                shapes.push_back(shapeOf(form, layout, io::Plot3DStyle_Unknown));
                shapes.back().hasIBlank = hasIBlank;
            }
        if (!kind || kind != plot3d::FileKind::Grid)
            for (const io::StyleRules_s& rules : io::allStyleRules())
                if (isChained(rules, layout))
                    shapes.push_back(shapeOf(form, layout, rules.style));
    }
}

std::vector<Reading_s> shapesOf(const Evidence_s& evidence) {
    std::vector<Reading_s> shapes;
    io::Plot3DRecordForm_s form = evidence.form;
    const bool isBinary = form.encoding == io::Plot3DEncoding_Binary;
    const bool isText = form.encoding == io::Plot3DEncoding_Ascii;
    for (int swaps = isBinary ? 2 : 1; swaps > 0; --swaps, form.byteSwap = !form.byteSwap)
        for (const bool isDouble : {false, true}) {
            form.isDoublePrecision = isDouble;
            if (!isText || !isDouble)
                addShapes(shapes, form, evidence.expectedKind);
        }
    return shapes;
}

// ---- The walk over them

/// Stands ahead of a grid's header.
class Walker {
public:
    Walker(Evidence_s& evidence, Reading_s shape) : evidence_(evidence), shape_(std::move(shape)) {
        record_.stream = evidence.file.stream();
        record_.fileSize = evidence.file.size();
        static_cast<io::Plot3DRecordForm_s&>(record_) = shape_;
        io::rewindPlot3DFile(record_);
    }

    std::int64_t position() {
        if (isText())
            return evidence_.text->positionOf(place_);
        return isFortran() ? record_.nextRecordStart : place_;
    }

    bool isAtEnd() const {
        if (isText())
            return place_ == evidence_.text->valueCount();
        return (isFortran() ? record_.nextRecordStart : place_) == evidence_.file.size();
    }

    std::optional<std::int32_t> takeCount() {
        return enterRecord(io::integerWidth) ? next() : std::nullopt;
    }

    bool takeGrid() {
        const bool is2D = shape_.dataStructure == io::Plot3DDataStructure_2D;
        const bool isCounted =
            io::styleRulesOf(shape_).variableCount == io::VariableCount_e::OfEachGrid;
        const std::int32_t dimensions = is2D ? 2 : 3;
        if (!enterRecord(io::integerWidth * (dimensions + (isCounted ? 1 : 0))))
            return false;
        std::int32_t sizes[3] = {1, 1, 1};
        for (std::int32_t index = 0; index < dimensions; ++index) {
            sizes[index] = next().value_or(0);
            if (sizes[index] < 1)
                return false;
        }
        if (isCounted)
            shape_.numVars = next().value_or(0);
        shape_.grids = {{sizes[0], sizes[1], sizes[2]}};
        return shape_.numVars > 0 && passOverData(blocksOf(shape_, 0));
    }

private:
    bool isText() const { return shape_.encoding == io::Plot3DEncoding_Ascii; }
    bool isFortran() const { return shape_.encoding == io::Plot3DEncoding_FortranUnformatted; }

    /// Of this many bytes.
    bool enterRecord(std::int64_t byteCount) {
        if (!isFortran())
            return true;
        if (record_.nextRecordStart >= evidence_.file.size() ||
            !io::nextRecord(record_, false, nullptr))
            return false;
        place_ = record_.stream->tell();
        return record_.recordLength == byteCount;
    }

    std::optional<std::int32_t> next() {
        if (!isText()) {
            place_ += io::integerWidth;
            return integerAt(evidence_.file, place_ - io::integerWidth, shape_.byteSwap);
        }
        if (!evidence_.text->areIntegers(place_, 1))
            return std::nullopt;
        const std::optional<double> value = evidence_.text->valueAt(place_++);
        return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
    }

    bool passOverData(const GridBlocks_s& blocks) {
        if (isFortran())
            return passOverRecords(blocks, byteWidths(shape_));
        const std::int64_t size = gridSize(blocks, isText() ? valueWidths() : byteWidths(shape_));
        const std::int64_t end = isText() ? evidence_.text->valueCount() : evidence_.file.size();
        if (size > end - place_)
            return false;
        place_ += size;
        return true;
    }

    bool passOverRecords(const GridBlocks_s& blocks, const Widths_s& widths) {
        if (blocks.scalars > 0 && !enterRecord(scalarSize(blocks, widths)))
            return false;
        for (std::int64_t plane = 0; plane < blocks.planes; ++plane)
            if (!enterRecord(planeSize(blocks, widths)))
                return false;
        return true;
    }

    Evidence_s& evidence_;
    Reading_s shape_;
    io::Plot3DFile_s record_;
    std::int64_t place_ = 0; // of text the index of a value, of the others a position
};

std::optional<Chain_s> walk(Evidence_s& evidence, const Reading_s& shape, bool hasCount) {
    Walker walker(evidence, shape);
    const std::int32_t count = hasCount ? walker.takeCount().value_or(0) : 0;
    if (hasCount && count < 2)
        return std::nullopt;
    Chain_s chain;
    chain.firstAt = walker.position();
    for (; !walker.isAtEnd(); ++chain.grids) {
        if (chain.grids == 1)
            chain.secondAt = walker.position();
        if (chain.grids == mostChainedGrids || !walker.takeGrid())
            return std::nullopt;
    }
    const bool isChain = chain.grids >= 2 && (!hasCount || count == chain.grids);
    return isChain ? std::optional(chain) : std::nullopt;
}

} // namespace

std::optional<Chain_s> findChain(Evidence_s& evidence, bool hasCount) {
    for (const Reading_s& shape : shapesOf(evidence))
        if (auto chain = walk(evidence, shape, hasCount))
            return chain;
    return std::nullopt;
}

} // namespace plot3dlib
