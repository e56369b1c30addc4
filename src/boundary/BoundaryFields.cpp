#include "boundary/BoundaryFields.h"

#include <memory>
#include <new>
#include <optional>

#include "dataset/items/NotedOffsets.h"
#include "dataset/ondemand/LongReads.h"
#include "plot3dfile/bytes/CheckedSize.h"
#include "plot3dfile/file/OpenedFile.h"
#include "plot3dfile/numbers/IndexRange.h"
#include "plot3dfile/numbers/TypedArrays.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

namespace {

class EndClientData {
public:
    void operator()(Plot3DBoundaryClientData_s* data) const {
        data->~Plot3DBoundaryClientData_s();
        char* block = static_cast<char*>(static_cast<void*>(data));
        QuorUtilStringDealloc(&block);
    }
};
using ClientDataPtr = std::unique_ptr<Plot3DBoundaryClientData_s, EndClientData>;

ClientDataPtr allocateClientData() {
    void* block = QuorUtilStringAlloc(sizeof(Plot3DBoundaryClientData_s), "Client Data");
    return ClientDataPtr(block != nullptr ? new (block) Plot3DBoundaryClientData_s : nullptr);
}

Plot3DBoundaryClientData_s* clientDataOf(QuorFieldHandle field) {
    return static_cast<Plot3DBoundaryClientData_s*>(QuorUtilDataValueGetClientData(field));
}

bool isInside(const Plot3DBoundary_s& boundary, const Plot3DGridDims_s& dims) {
    return boundary.iEnd <= dims.i && boundary.jEnd <= dims.j && boundary.kEnd <= dims.k;
}

/// Copies the selected values of a whole field, I fastest.
template <typename Number>
void copySelected(const Number* whole, const Plot3DGridDims_s& dims,
                  const Plot3DBoundaryRanges_s& ranges, Number* selected) {
    for (std::int64_t k = ranges.k.start; k <= ranges.k.end; ++k) {
        for (std::int64_t j = ranges.j.start; isInRange(ranges.k, k) && j <= ranges.j.end; ++j) {
            if (!isInRange(ranges.j, j))
                continue;
            const Number* row = whole + ((k - 1) * dims.j + (j - 1)) * dims.i;
            for (std::int64_t i = ranges.i.start; i <= ranges.i.end; ++i)
                if (isInRange(ranges.i, i))
                    *selected++ = row[i - 1];
        }
    }
}

/// One fetch: the whole field of the parent grid, from which the boundary's points are kept.
class BoundaryFetch {
public:
    BoundaryFetch(const Plot3DBoundaryClientData_s& data, QuorFieldHandle field)
        : data_(data), file_(*data.file), field_(field),
          ranges_(boundaryRanges(*data.boundary, data.skipI, data.skipJ, data.skipK)) {}

    bool run() {
        const OpenedFile opened(file_);
        if (!opened || !file_.stream->seek(data_.gridOffset) || !measureGrid())
            return false;
        FetchWatch watch(file_.encoding == Plot3DEncoding_Ascii ? file_.fileSize - data_.gridOffset
                                                                : byteCount_);
        const WatchedReading watched(*file_.stream, watch);
        return passOverOthers() && deliver();
    }

private:
    /// The record was filled from a header; what it says must suffice for the boundary.
    bool measureGrid() {
        const auto grid = static_cast<std::size_t>(data_.boundary->gridNumber) - 1;
        if (grid >= file_.gridDims.size())
            return false;
        dims_ = file_.gridDims[grid];
        CheckedSize points;
        points.addProduct({dims_.i, dims_.j, dims_.k});
        CheckedSize bytes;
        bytes.addProduct({points.value().value_or(-1), width()});
        if (!points.value() || !bytes.value() || !isInside(*data_.boundary, dims_))
            return false;
        points_ = *points.value();
        byteCount_ = *bytes.value();
        return true;
    }

    std::int64_t width() const { return realWidth(file_); }

    /// Moves on to the variable. The way there is counted in 32 bits, so that a variable which
    /// begins 2 GiB or more behind its grid's first is not found.
    bool passOverOthers() {
        const std::int64_t ahead = data_.varOrdinal - 1;
        if (ahead < 1)
            return true;
        CheckedSize values;
        values.addProduct({ahead, points_});
        if (!values.value())
            return false;
        if (file_.encoding == Plot3DEncoding_Ascii) {
            constexpr bool store = false;
            return readReals(file_, store, 0, *values.value(), nullptr, nullptr);
        }
        const auto distance = static_cast<std::int32_t>(
            static_cast<std::uint32_t>(*values.value()) * static_cast<std::uint32_t>(width()));
        return distance <= 0 || file_.stream->skip(distance);
    }

    bool deliver() {
        // Of the field itself: the zone that it was set up for may be gone, and others share it.
        switch (QuorUtilDataValueGetRefType(field_)) {
        case QuorFieldDataType_Int32:
            return deliverAs<std::int32_t>();
        case QuorFieldDataType_Float:
            return !file_.isDoublePrecision && deliverAs<float>();
        case QuorFieldDataType_Double:
            return file_.isDoublePrecision && deliverAs<double>();
        default:
            return false;
        }
    }

    template <typename Number>
    bool deliverAs() {
        const HostArray<char> whole = HostArray<char>::allocate(byteCount_, "Var Array");
        auto* const values = static_cast<Number*>(static_cast<void*>(whole.data()));
        if (!whole || !readValues(values))
            return false;
        const std::int64_t count =
            countInRange(ranges_.i) * countInRange(ranges_.j) * countInRange(ranges_.k);
        const HostArray<Number> selected = HostArray<Number>::allocate(count, "SubVarArray");
        if (!selected)
            return false;
        copySelected(values, dims_, ranges_, selected.data());
        QuorUtilDataValueArraySetByRef(field_, 1, count, selected.data());
        return true;
    }

    bool readValues(std::int32_t* values) {
        return readIntegers(file_, /*store=*/true, 0, points_, values, nullptr);
    }
    template <typename Real>
    bool readValues(Real* values) {
        return readReals(file_, /*store=*/true, 0, points_, values, nullptr);
    }

    const Plot3DBoundaryClientData_s& data_;
    Plot3DFile_s& file_;
    QuorFieldHandle field_;
    Plot3DBoundaryRanges_s ranges_;
    Plot3DGridDims_s dims_ = {0, 0, 0};
    std::int64_t points_ = 0;
    std::int64_t byteCount_ = 0; // of the whole field
};

bool setUpBoundaryVar(ClientDataPtr data, std::int32_t zone, std::int32_t var) {
    if (!QuorUtilDataValueCustomLOD(zone, var, loadBoundaryVar, unloadBoundaryVar,
                                    cleanUpBoundaryVar, nullptr, nullptr, data.get()))
        return false;
    static_cast<void>(data.release()); // the host's from now on
    return true;
}

} // namespace

Plot3DBoundaryRanges_s boundaryRanges(const Plot3DBoundary_s& boundary, std::int32_t skipI,
                                      std::int32_t skipJ, std::int32_t skipK) {
    return {{boundary.iStart, boundary.iEnd, skipI},
            {boundary.jStart, boundary.jEnd, skipJ},
            {boundary.kStart, boundary.kEnd, skipK}};
}

Plot3DSharedFile copyForFields(const Plot3DFile_s& file) {
    Plot3DFilePtr copy;
    static_cast<void>(copyPlot3DFile(file, copy, file.fileName.str())); // null if it fails
    return copy;
}

bool setUpBoundaryVars(const Plot3DFile_s& file, const Plot3DSharedFile& shared, std::int32_t skipI,
                       std::int32_t skipJ, std::int32_t skipK, const Plot3DBoundary_s& boundary,
                       std::int32_t zone, std::int32_t lastVar, std::int32_t firstVar) {
    constexpr std::int32_t firstOfGrid = 0;
    const std::optional<std::int64_t> gridOffset = notedOffset(
        file.varOffsets, fieldEntry(file, std::int64_t{boundary.gridNumber} - 1, firstOfGrid));
    for (std::int32_t var = firstVar; var <= lastVar; ++var) {
        ClientDataPtr data = allocateClientData();
        if (data == nullptr || !gridOffset || !shared)
            return false;
        data->gridOffset = *gridOffset;
        data->varOrdinal = std::int64_t{var} - firstVar + 1;
        data->zoneId = QuorUtilZoneGetUniqueID(zone);
        data->varId = QuorUtilVarGetUniqueID(var);
        data->skipI = skipI;
        data->skipJ = skipJ;
        data->skipK = skipK;
        data->file = shared;
        data->boundary = copyBoundary(boundary);
        if (data->boundary == nullptr || !setUpBoundaryVar(std::move(data), zone, var))
            return false;
    }
    return true;
}

bool loadBoundaryVar(QuorFieldHandle field) {
    const HostLock lock(addOnID);
    try {
        const Plot3DBoundaryClientData_s* data = clientDataOf(field);
        return data != nullptr && BoundaryFetch(*data, field).run();
    } catch (...) { // an interruption, or no memory; nothing may be thrown at the host
        return false;
    }
}

bool unloadBoundaryVar(QuorFieldHandle /*field*/) {
    return true; // the values can be read again at any time
}

void cleanUpBoundaryVar(QuorFieldHandle field) {
    const ClientDataPtr ended(clientDataOf(field));
}

} // namespace quorvia::quorutildataio
