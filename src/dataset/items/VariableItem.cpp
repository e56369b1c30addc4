#include "dataset/items/VariableItem.h"

#include <optional>

#include "dataset/items/NotedOffsets.h"
#include "dataset/items/SetupProgress.h"
#include "dataset/ondemand/LoadOnDemand.h"
#include "dataset/ondemand/Plot3DVarRepo.h"
#include "plot3dfile/bytes/CheckedSize.h"
#include "plot3dfile/layout/LayoutParsers.h"
#include "plot3dfile/numbers/IndexRange.h"
#include "plot3dfile/numbers/TypedArrays.h"
#include "plot3dfile/timestep/GridPoints.h"

namespace quorvia::quorutildataio {

namespace {

struct VariableItem_s {
    std::int32_t grid; // from 0
    std::int32_t hostZone;
    std::int32_t hostVar;
    std::int32_t plane;
    bool isIBlank;
    bool isWholeField; // one block holds the field, rather than one of its K planes
    Plot3DGridDims_s dims;
    Plot3DGridRanges_s ranges;
    std::int64_t valueCount; // of the block
};

/// Where an eager read delivers: an array, or a handle and the host's function for single values.
struct Destination_s {
    void* dest = nullptr;
    QuorFieldSetFunction setValue = nullptr;
    std::int32_t type = QuorFieldDataType_Invalid;
};

std::int64_t valueWidth(const Plot3DFile_s& file, bool isIBlank) {
    return isIBlank ? integerWidth : realWidth(file);
}

bool failWith(bool report, const char* text) {
    if (report)
        QuorUtilDialogErrMsg(text);
    return false;
}

/// Nothing is told of a read that the user has stopped.
bool failItem(const Plot3DFile_s& file, const VariableItem_s& item, bool report) {
    return failWith(report && !file.stream->wasStopped(),
                    item.isIBlank ? "Error loading IBlank Variable." : "Error loading Variable.");
}

void notePosition(const Plot3DFile_s& file, const VariableItem_s& item, std::int32_t varIndex,
                  std::int64_t position) {
    if (item.isIBlank)
        noteOffset(file.iBlankOffsets, item.grid, position);
    else
        noteOffset(file.varOffsets, fieldEntry(file, item.grid, varIndex), position);
}

bool hasFilePrecision(const Plot3DFile_s& file, std::int32_t type) {
    return type == (file.isDoublePrecision ? QuorFieldDataType_Double : QuorFieldDataType_Float);
}

/// Its variables have the precision of the files that they came with, and the load's own message
/// names one of those.
void reportFunctionPrecision(const Plot3DFile_s& file, std::int32_t type) {
    if (file.style != Plot3DStyle_Function ||
        (type != QuorFieldDataType_Float && type != QuorFieldDataType_Double))
        return;
    reportFileError(file, file.isDoublePrecision
                              ? "The function file has values of 64 bits, its variables of 32."
                              : "The function file has values of 32 bits, its variables of 64.");
}

bool checkType(const Plot3DFile_s& file, const VariableItem_s& item, std::int32_t type,
               bool report) {
    if (item.isIBlank || hasFilePrecision(file, type))
        return true;
    if (report)
        reportFunctionPrecision(file, type);
    return failWith(report, "Datatype mismatch while attempting to replace a solution var.");
}

bool readBlock(Plot3DFile_s& file, const VariableItem_s& item, bool store,
               const Destination_s& target) {
    const std::int64_t planesBefore = item.isWholeField ? 0 : item.plane;
    std::int64_t firstIndex = 0;
    if (__builtin_mul_overflow(planesBefore, item.valueCount, &firstIndex))
        return false;
    return item.isIBlank
               ? readIntegers(file, store, firstIndex, item.valueCount, target.dest,
                              target.setValue)
               : readReals(file, store, firstIndex, item.valueCount, target.dest, target.setValue);
}

/// The block of a grid that is not loaded, or of a field that stays in the file. The length of the
/// former goes by the ends of the index ranges, like that of a loaded one.
bool readPast(Plot3DFile_s& file, const VariableItem_s& item, bool report) {
    return readBlock(file, item, false, Destination_s()) || failItem(file, item, report);
}

/// A deferred block is not read, but the walk goes on behind it.
bool defer(Plot3DFile_s& file, const VariableItem_s& item, std::int64_t position, bool report) {
    const std::int32_t type = QuorUtilDataValueGetType(item.hostZone, item.hostVar);
    if (!checkType(file, item, type, report))
        return false;
    CheckedSize byteCount;
    byteCount.addProduct({item.valueCount, valueWidth(file, item.isIBlank)});
    if (!byteCount.value() ||
        !registerLodVariable(Plot3DVarRepo::instance().getVariable(file), item.hostZone,
                             item.hostVar, position, item.valueCount)) {
        failWith(report, "Failed to set up the variable.");
        return failItem(file, item, report);
    }
    return readPast(file, item, report);
}

Destination_s findDestination(const VariableItem_s& item) {
    Destination_s target;
    QuorUtilDataValueGetRawPtr(item.hostZone, item.hostVar, &target.dest, &target.type);
    if (target.dest != nullptr)
        return target;
    const QuorFieldHandle field = QuorUtilDataValueGetWritableRef(item.hostZone, item.hostVar);
    if (field == nullptr)
        return Destination_s();
    return {field, QuorUtilDataValueRefGetSetFunc(field), QuorUtilDataValueGetRefType(field)};
}

bool readSubset(Plot3DFile_s& file, const VariableItem_s& item, const Destination_s& target) {
    return readIndexRange(file, item.plane, item.dims.i, item.dims.j, item.dims.k, item.ranges.i,
                          item.ranges.j, item.ranges.k, item.isIBlank, target.dest,
                          target.setValue);
}

bool readNow(Plot3DFile_s& file, const VariableItem_s& item, bool report) {
    const bool isFirstBlock = item.isWholeField || item.plane == 0;
    if (isFirstBlock && !QuorUtilDataValueAlloc(item.hostZone, item.hostVar))
        return failWith(report, "Unable to allocate memory for variable.");
    const Destination_s target = findDestination(item);
    if (!checkType(file, item, target.type, report))
        return false;
    if (target.dest == nullptr)
        return failItem(file, item, report);
    const bool ok =
        item.ranges.isSubset ? readSubset(file, item, target) : readBlock(file, item, true, target);
    return ok || failItem(file, item, report);
}

} // namespace

bool setUpVariableItem(Plot3DFile_s& file, std::int32_t grid, std::int32_t zone, bool include,
                       std::int32_t varIndex, std::int32_t plane, bool isIBlank, bool report,
                       const Plot3DItemContext_s& context) {
    const bool isUnstructured = file.dataStructure == Plot3DDataStructure_Unstructured;
    VariableItem_s item;
    item.grid = grid;
    item.hostZone = context.firstZone + zone;
    item.hostVar = context.firstVar + varIndex;
    item.plane = plane;
    item.isIBlank = isIBlank;
    item.isWholeField = plane == wholeField || isUnstructured;

    const bool go = !include || FieldSteps(item.hostZone, grid + 1, file).step(item.hostVar);
    item.dims = file.gridDims[static_cast<std::size_t>(grid)];
    item.ranges = resolveGridRanges(context.iRange, context.jRange, context.kRange, item.dims,
                                    isUnstructured);
    const std::int64_t position = file.stream->tell();
    notePosition(file, item, varIndex, position);
    const std::optional<std::int64_t> count =
        item.isWholeField ? countUpToEnds(item.ranges)
                          : std::int64_t{item.dims.i} * item.dims.j; // two 32-bit factors fit
    if (!go || !count)
        return false;
    item.valueCount = *count;

    if (!include)
        return readPast(file, item, report);
    const bool canStayInFile = file.encoding != Plot3DEncoding_Ascii && item.isWholeField;
    if (canStayInFile && !item.ranges.isSubset)
        return defer(file, item, position, report);
    return readNow(file, item, report);
}

} // namespace quorvia::quorutildataio
