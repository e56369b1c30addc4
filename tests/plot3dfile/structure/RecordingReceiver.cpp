#include "RecordingReceiver.h"

#include "plot3dfile/numbers/NumberStream.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {

namespace {

constexpr bool passOver = false; // for `store`
constexpr std::int32_t overflowIntegerIndex = 7;

const char* const kindNames[] = {"variable", "iblank", "scalars", "connectivity"};

Plot3DGridDims_s dimsOf(const Plot3DFile_s& file, std::int32_t grid) {
    return file.gridDims[static_cast<std::size_t>(grid)];
}

std::int64_t pointsOf(const Plot3DFile_s& file, std::int32_t grid, std::int32_t plane) {
    const Plot3DGridDims_s dims = dimsOf(file, grid);
    if (file.dataStructure == Plot3DDataStructure_Unstructured)
        return dims.i;
    return std::int64_t{dims.i} * dims.j * (plane >= 0 ? 1 : dims.k);
}

bool consumeScalars(Plot3DFile_s& file) {
    for (std::int32_t index = 0; index < file.numScalars; ++index) {
        std::int32_t integer = 0;
        double real = 0.0;
        const bool isInteger = file.style == Plot3DStyle_Overflow && index == overflowIntegerIndex;
        if (isInteger ? !readInteger(file, integer) : !readReal(file, real))
            return false;
    }
    return true;
}

bool consume(Plot3DFile_s& file, Plot3DItemKind_e kind, std::int32_t grid, std::int32_t plane) {
    const Plot3DGridDims_s dims = dimsOf(file, grid);
    const std::int64_t points = pointsOf(file, grid, plane);
    const std::int64_t connectivity = 4 * (std::int64_t{dims.j} + dims.k);
    switch (kind) {
    case Plot3DItem_Scalars:
        return consumeScalars(file);
    case Plot3DItem_Variable:
        return readReals(file, passOver, 0, points, nullptr, nullptr);
    case Plot3DItem_IBlank:
        return readIntegers(file, passOver, 0, points, nullptr, nullptr);
    case Plot3DItem_Connectivity:
        return readIntegers(file, passOver, 0, connectivity, nullptr, nullptr);
    }
    return false;
}

} // namespace

Plot3DItemReceiver_s RecordingReceiver::receiver() {
    return {takeItem, takesTimes ? takeTime : nullptr, this};
}

std::vector<std::string> RecordingReceiver::texts() const {
    std::vector<std::string> all;
    for (const Item_s& item : items)
        all.push_back(item.text);
    return all;
}

bool RecordingReceiver::takeItem(Plot3DFile_s& file, Plot3DItemKind_e kind, std::int32_t grid,
                                 std::int32_t zone, bool include, std::int32_t varIndex,
                                 std::int32_t plane, bool /*report*/, void* clientData) {
    const std::string text = std::string(kindNames[kind]) + " " + std::to_string(varIndex) +
                             " grid " + std::to_string(grid) + " zone " + std::to_string(zone) +
                             (include ? " in" : " out") + " plane " + std::to_string(plane);
    const Item_s item = {text, kind, grid, varIndex, plane, file.stream->tell()};
    return static_cast<RecordingReceiver*>(clientData)->note(item) &&
           consume(file, kind, grid, plane);
}

bool RecordingReceiver::takeTime(Plot3DFile_s& file, std::int32_t zone, bool include,
                                 void* clientData) {
    const std::string text = "time zone " + std::to_string(zone) + (include ? " in" : " out");
    return static_cast<RecordingReceiver*>(clientData)
        ->note({text, Plot3DItem_Scalars, -1, 0, noPlane, file.stream->tell()});
}

bool RecordingReceiver::note(Item_s item) {
    items.push_back(std::move(item));
    return std::ssize(items) != stopAfter;
}

} // namespace quorvia::quorutildataio
