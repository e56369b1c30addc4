#include "sessions/PlainBinary.h"

#include <algorithm>
#include <optional>

namespace quorvia::sessions {

namespace {

struct Reading_s {
    Layout_e layout;
    FileKind_e kind;
    bool isMultiGrid;
    bool isDouble;
    bool hasIBlank;

    bool operator==(const Reading_s& other) const {
        return layout == other.layout && kind == other.kind && isMultiGrid == other.isMultiGrid &&
               isDouble == other.isDouble && hasIBlank == other.hasIBlank;
    }
};

/// The integers ahead of the values, as they were written.
std::vector<std::int64_t> headerOf(const FileModel_s& file) {
    std::vector<std::int64_t> header;
    if (file.isMultiGrid)
        header.push_back(file.gridCount());
    const bool isLine = file.layout == Layout_e::Unstructured && file.kind != FileKind_e::Grid;
    for (const GridDims_s& dims : file.grids) {
        header.push_back(dims.i);
        if (file.layout != Layout_e::OneD)
            header.push_back(isLine ? 1 : dims.j);
        if (file.layout != Layout_e::OneD && file.layout != Layout_e::TwoD)
            header.push_back(isLine ? 1 : dims.k);
        if (file.isFunction())
            header.push_back(file.functionCount);
    }
    if (file.kind == FileKind_e::OverflowSolution)
        header.insert(header.end(), {file.variableCount(), 0}); // no species
    return header;
}

std::int64_t scalarsOf(const Reading_s& reading, std::int64_t species) {
    if (reading.kind == FileKind_e::Grid || reading.kind == FileKind_e::Function)
        return 0;
    if (reading.kind == FileKind_e::OverflowSolution)
        return 11 + std::max<std::int64_t>(species, 2);
    return reading.kind == FileKind_e::SwiftSolution && reading.layout != Layout_e::OneD ? 5 : 4;
}

/// Bytes of the whole file in this reading; nothing if the header alone tells that it is another.
/// Integers behind the header are values: as counts they are absurd.
std::optional<std::int64_t> sizeIn(const Reading_s& reading,
                                   const std::vector<std::int64_t>& header) {
    std::size_t place = 0;
    const auto next = [&]() -> std::int64_t {
        return place < header.size() ? header[place++] : -1;
    };
    const std::int64_t grids = reading.isMultiGrid ? next() : 1;
    const bool isGrid = reading.kind == FileKind_e::Grid;
    const std::int64_t width = reading.isDouble ? 8 : 4;
    std::int64_t points = 0;
    std::int64_t elements = 0;
    std::int64_t variables = coordinateCount(reading.layout) + (isGrid ? 0 : 2);
    if (grids < 1)
        return std::nullopt;
    for (std::int64_t grid = 0; grid < grids; ++grid) {
        const std::int64_t i = next();
        const std::int64_t j = reading.layout == Layout_e::OneD ? 1 : next();
        const std::int64_t k =
            reading.layout == Layout_e::OneD || reading.layout == Layout_e::TwoD ? 1 : next();
        const bool isLine = reading.layout == Layout_e::Unstructured;
        if (i < 1 || (isLine ? isGrid && (j < 0 || k < 0 || (j == 0) == (k == 0)) : j < 1 || k < 1))
            return std::nullopt;
        points += isLine ? i : i * j * k;
        elements += isLine && isGrid ? j + k : 0;
        if (reading.kind == FileKind_e::Function) {
            const std::int64_t count = next();
            if (count < 0 || (grid > 0 && count != variables))
                return std::nullopt;
            variables = count;
        }
    }
    std::int64_t species = 0;
    std::int64_t tail = 0;
    if (reading.kind == FileKind_e::OverflowSolution) {
        variables = next();
        species = next();
        tail = 2 * width;
        if (variables < 0 || species < 0)
            return std::nullopt;
    }
    return static_cast<std::int64_t>(place) * 4 + points * variables * width + elements * 16 +
           (reading.hasIBlank ? points * 4 : 0) + grids * width * scalarsOf(reading, species) +
           tail;
}

std::vector<Reading_s> readingsInOrder(bool isGrid) {
    using Kinds = std::vector<FileKind_e>;
    const Kinds kinds = isGrid ? Kinds{FileKind_e::Grid}
                               : Kinds{FileKind_e::ClassicSolution, FileKind_e::Function,
                                       FileKind_e::OverflowSolution, FileKind_e::SwiftSolution};
    std::vector<Reading_s> readings;
    for (const Layout_e layout :
         {Layout_e::ThreeDWhole, Layout_e::TwoD, Layout_e::OneD, Layout_e::Unstructured})
        for (const FileKind_e kind : kinds)
            for (const bool isMultiGrid : {true, false})
                for (const bool isDouble : {false, true})
                    for (const bool hasIBlank : {false, true}) {
                        const bool isFlat =
                            layout == Layout_e::OneD || layout == Layout_e::Unstructured;
                        const bool exists = !(hasIBlank && (!isGrid || isFlat)) &&
                                            !(isMultiGrid && layout == Layout_e::OneD) &&
                                            !(kind == FileKind_e::OverflowSolution &&
                                              layout != Layout_e::ThreeDWhole) &&
                                            !(kind == FileKind_e::SwiftSolution &&
                                              layout == Layout_e::Unstructured);
                        if (exists)
                            readings.push_back({layout, kind, isMultiGrid, isDouble, hasIBlank});
                    }
    return readings;
}

} // namespace

bool isUnmistakable(const FileModel_s& file) {
    if (file.form.encoding != Encoding_e::Binary)
        return true;
    const bool isGrid = file.kind == FileKind_e::Grid;
    const bool isLine = file.layout == Layout_e::Unstructured && !isGrid;
    const Reading_s written = {isLine ? Layout_e::ThreeDWhole : file.layout, file.kind,
                               file.isMultiGrid, file.isDouble(), file.hasIBlank};
    const std::vector<std::int64_t> header = headerOf(file);
    const std::optional<std::int64_t> size = sizeIn(written, header);
    for (const Reading_s& reading : readingsInOrder(isGrid))
        if (sizeIn(reading, header) == size)
            return reading == written;
    return false;
}

} // namespace quorvia::sessions
