#include "dataset/ondemand/LoadOnDemand.h"

#include <limits>
#include <new>
#include <optional>

#include "dataset/ondemand/LongReads.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/numbers/TypedArrays.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::quorutildataio {

namespace {

Plot3DLodRecord_s* recordOf(QuorFieldHandle field) {
    return static_cast<Plot3DLodRecord_s*>(QuorUtilDataValueGetClientData(field));
}

/// Empty if the field's type is not that of the file's numbers: a host whose array has narrower
/// values would be written past its end.
std::optional<std::int64_t> widthInFile(std::int32_t type, const Plot3DRecordForm_s& form) {
    if (type == QuorFieldDataType_Int32)
        return integerWidth;
    const std::int32_t realType =
        form.isDoublePrecision ? QuorFieldDataType_Double : QuorFieldDataType_Float;
    return type == realType ? std::optional(realWidth(form)) : std::nullopt;
}

bool isByteCountSane(std::int64_t valueCount, std::int64_t width) {
    return valueCount >= 0 && valueCount <= std::numeric_limits<std::int64_t>::max() / width;
}

bool readField(const Plot3DLodRecord_s& record, QuorFieldHandle field) {
    const Plot3DVariable_s& variable = *record.variable;
    const std::unique_ptr<FileStream> stream = FileStream::open(variable.fileName);
    if (!stream) {
        QuorUtilDialogErrMsg(cannotOpenText(variable.fileName).c_str());
        return false;
    }
    if (!stream->seek(record.fileOffset))
        return false;
    void* const values = QuorUtilDataValueGetRawPtrByRef(field);
    const std::optional<std::int64_t> width =
        widthInFile(QuorUtilDataValueGetRefType(field), variable);
    if (values == nullptr || !width || !isByteCountSane(record.numValues, *width))
        return false;
    FetchWatch watch(*width * record.numValues);
    const WatchedReading watched(*stream, watch);
    return readNumbersAcrossSegments(*stream, variable, *width, record.numValues, values);
}

} // namespace

bool registerLodVariable(const std::shared_ptr<Plot3DVariable_s>& variable, std::int32_t zone,
                         std::int32_t var, std::int64_t fileOffset, std::int64_t numValues) {
    try {
        std::unique_ptr<Plot3DLodRecord_s> record(
            new Plot3DLodRecord_s{variable, fileOffset, numValues});
        if (!QuorUtilDataValueCustomLOD(zone, var, lodLoadCallback, lodUnloadCallback,
                                        lodCleanupCallback, nullptr, nullptr, record.get()))
            return false;
        record.release(); // the host's from now on
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool lodLoadCallback(QuorFieldHandle field) {
    const Plot3DLodRecord_s* record = recordOf(field);
    return record != nullptr && readLodVariable(*record, field);
}

bool lodUnloadCallback(QuorFieldHandle field) {
    static_cast<void>(recordOf(field));
    return true; // the values can be read again at any time
}

void lodCleanupCallback(QuorFieldHandle field) {
    delete recordOf(field);
}

bool readLodVariable(const Plot3DLodRecord_s& record, QuorFieldHandle field) {
    try {
        return readField(record, field);
    } catch (const InterruptedException&) {
        return false; // the user knows
    } catch (...) {
        QuorUtilDialogErrMsg("An unknown error occurred while reading data from the Plot3D file");
        return false;
    }
}

} // namespace quorvia::quorutildataio
