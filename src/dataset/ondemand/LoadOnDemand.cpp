#include "dataset/ondemand/LoadOnDemand.h"

#include <limits>
#include <new>

#include "dataset/ondemand/LongReads.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/numbers/TypedArrays.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::quorutildataio {

namespace {

Plot3DLodRecord_s* recordOf(QuorFieldHandle field) {
    return static_cast<Plot3DLodRecord_s*>(QuorUtilDataValueGetClientData(field));
}

std::int64_t widthAtHost(std::int32_t type) {
    switch (type) {
    case QuorFieldDataType_Float:
    case QuorFieldDataType_Int32:
        return 4;
    case QuorFieldDataType_Double:
        return 8;
    default:
        return 0;
    }
}

std::int64_t widthInFile(std::int32_t type, const Plot3DVariable_s& variable) {
    const bool isInteger = type == QuorFieldDataType_Int32;
    return !isInteger && variable.isDoublePrecision ? 8 : 4;
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
    const std::int32_t type = QuorUtilDataValueGetRefType(field);
    const std::int64_t width = widthInFile(type, variable);
    // A host whose array has narrower values than the file would be written past its end.
    if (values == nullptr || width != widthAtHost(type) ||
        !isByteCountSane(record.numValues, width))
        return false;
    FetchWatch watch(width * record.numValues);
    const WatchedReading watched(*stream, watch);
    return readNumbersAcrossSegments(*stream, variable, width, record.numValues, values);
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
