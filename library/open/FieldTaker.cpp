#include "open/FieldTaker.h"

#include <bit>
#include <cstring>
#include <utility>

#include <plot3d/Error.h>

#include "session/ReferenceHost.h"
#include "state/HostState.h"

namespace plot3dlib {

namespace {

namespace host = quorvia::host;
using namespace quorvia::quorutildataio;
using plot3d::Error;
using plot3d::ErrorKind;
using plot3d::FieldKind;

plot3d::ValueType valueTypeOf(std::int32_t type) {
    switch (type) {
    case QuorFieldDataType_Double:
        return plot3d::ValueType::Float64;
    case QuorFieldDataType_Int32:
        return plot3d::ValueType::Int32;
    default:
        return plot3d::ValueType::Float32;
    }
}

bool isStoredAs(std::int32_t type, const Plot3DRecordForm_s& form) {
    const std::int32_t realType =
        form.isDoublePrecision ? QuorFieldDataType_Double : QuorFieldDataType_Float;
    return type == QuorFieldDataType_Int32 || type == realType;
}

bool isLittleEndian(const Plot3DRecordForm_s& form) {
    return (std::endian::native == std::endian::little) != form.byteSwap;
}

FileForm_s formOf(const Plot3DVariable_s& file) {
    FileForm_s form;
    form.file = file.fileName;
    form.order = isLittleEndian(file) ? plot3d::ByteOrder::Little : plot3d::ByteOrder::Big;
    if (file.encoding == Plot3DEncoding_FortranUnformatted) {
        form.markerBytes = file.markerSize;
        form.segmentEnds = file.segmentBoundaries;
    }
    return form;
}

/// In the parent zone, indices from 0; nothing where the zone leaves points of it out.
std::optional<plot3d::Box> boxOf(const Plot3DBoundaryClientData_s& record) {
    if (record.skipI != 1 || record.skipJ != 1 || record.skipK != 1)
        return std::nullopt;
    const Plot3DBoundary_s& boundary = *record.boundary;
    return plot3d::Box{{boundary.iStart - 1, boundary.iEnd - 1, 1},
                       {boundary.jStart - 1, boundary.jEnd - 1, 1},
                       {boundary.kStart - 1, boundary.kEnd - 1, 1}};
}

/// Of the boundary's grid, as its file tells it.
std::optional<plot3d::Extent> gridSizeOf(const Plot3DBoundaryClientData_s& record) {
    const auto grid = static_cast<std::size_t>(record.boundary->gridNumber - 1);
    if (grid >= record.file->gridDims.size())
        return std::nullopt;
    const Plot3DGridDims_s& dims = record.file->gridDims[grid];
    return plot3d::Extent{dims.i, dims.j, dims.k};
}

/// Whether only this file can have given the grid's zone the variables that it begins with. Of
/// several function files a boundary shows the last one in the place of the first.
bool isOnlyFileOfItsVariables(const Plot3DFile_s& file, std::size_t firstVariable,
                              std::size_t variableCount) {
    return file.style != Plot3DStyle_Function ||
           firstVariable + static_cast<std::size_t>(file.numVars) == variableCount;
}

} // namespace

void FieldTaker::takeAll() {
    content_.fields.resize(content_.zones.size() * content_.variables.size());
    for (std::size_t variable = 0; variable < content_.variables.size(); ++variable)
        takeVariable(variable);
}

void FieldTaker::takeVariable(std::size_t variable) {
    const std::vector<std::int32_t> holders =
        data_.fieldHolders(static_cast<std::int64_t>(variable) + 1);
    for (std::size_t zone = 0; zone < holders.size(); ++zone) {
        FieldRecord_s& record = content_.field(zone, variable);
        const host::Field_s& field = data_.zones()[zone]->fields[variable];
        record.type = valueTypeOf(field.type);
        record.holder = static_cast<std::uint32_t>(zone);
        if (field.storage == nullptr)
            continue;
        const auto holder = static_cast<std::size_t>(holders[zone] - 1);
        if (holder != zone)
            record = content_.field(holder, variable);
        else
            takeField(zone, variable, field.storage);
    }
}

void FieldTaker::takeField(std::size_t zone, std::size_t variable,
                           const std::shared_ptr<Storage>& storage) {
    FieldRecord_s& record = content_.field(zone, variable);
    record.type = valueTypeOf(storage->type());
    if (storage->valueCount() != content_.zones[zone].size.count()) {
        content_.notes.push_back("Zone \"" + content_.zones[zone].name + "\", variable \"" +
                                 content_.variables[variable].name +
                                 "\": left out, since its values do not stand at the points.");
        return;
    }
    if (!storage->isDeferred()) {
        record.kind = FieldKind::InMemory;
        record.place = static_cast<std::uint32_t>(content_.storedFields.size());
        content_.storedFields.push_back(storage);
    } else if (!takeFromFile(*storage, record) &&
               !takeFromParent(zone, variable, *storage, record)) {
        takeFromHost(zone, storage, record);
    }
}

bool FieldTaker::takeFromFile(const Storage& storage, FieldRecord_s& record) {
    const LodRecord* const kept = fileRecordOf(storage);
    if (kept == nullptr || kept->numValues != storage.valueCount() ||
        kept->variable->encoding == Plot3DEncoding_Ascii ||
        !isStoredAs(storage.type(), *kept->variable))
        return false;
    record.kind = FieldKind::InFile;
    record.place = placeOf(*kept->variable);
    record.offset = kept->fileOffset;
    return true;
}

bool FieldTaker::takeFromParent(std::size_t zone, std::size_t variable, const Storage& storage,
                                FieldRecord_s& record) {
    const BoundaryRecord* const kept = boundaryRecordOf(storage);
    const std::optional<std::size_t> parent = content_.zones[zone].parent;
    if (kept == nullptr || !parent || !isFieldOfParent(*kept, *parent, variable))
        return false;
    const std::optional<plot3d::Box> box = boxOf(*kept);
    if (!box || box->extent() != content_.zones[zone].size)
        return false;
    record.kind = FieldKind::PartOf;
    record.place = static_cast<std::uint32_t>(content_.parts.size());
    content_.parts.push_back({*parent, variable, *box});
    return true;
}

/// Whether the boundary's values are points of the field that the parent zone has.
bool FieldTaker::isFieldOfParent(const BoundaryRecord& boundary, std::size_t parent,
                                 std::size_t variable) const {
    if (gridSizeOf(boundary) != content_.zones[parent].size ||
        boundary.varOrdinal > static_cast<std::int64_t>(variable) + 1)
        return false;
    const std::size_t first = variable - static_cast<std::size_t>(boundary.varOrdinal - 1);
    const FieldRecord_s& ofParent = content_.field(parent, variable);
    const FieldRecord_s& firstOfParent = content_.field(parent, first);
    if (ofParent.kind != firstOfParent.kind)
        return false;
    switch (ofParent.kind) {
    case FieldKind::InFile:
        return ofParent.place == firstOfParent.place &&
               firstOfParent.offset == boundary.gridOffset &&
               content_.forms[ofParent.place].file == boundary.file->fileName.view();
    case FieldKind::InMemory:
        return hostFields_ == HostFields_e::Fetched &&
               isOnlyFileOfItsVariables(*boundary.file, first, content_.variables.size());
    default:
        return false;
    }
}

void FieldTaker::takeFromHost(std::size_t zone, const std::shared_ptr<Storage>& storage,
                              FieldRecord_s& record) {
    if (hostFields_ == HostFields_e::LeftAtHost) {
        record.kind = FieldKind::AtHost;
        record.place = static_cast<std::uint32_t>(content_.fieldsAtHost.size());
        content_.fieldsAtHost.push_back(storage);
        return;
    }
    host::HostState_s& state = host::ReferenceHost::instance().state();
    const auto copy = Storage::stored(storage->type(), storage->valueCount());
    if (copy == nullptr || !state.fetch(*storage))
        throw Error(ErrorKind::Unreadable,
                    "The values of zone \"" + content_.zones[zone].name + "\" could not be read.");
    std::memcpy(copy->values(), storage->values(), static_cast<std::size_t>(copy->byteCount()));
    state.cache.drop(*storage);
    record.kind = FieldKind::InMemory;
    record.place = static_cast<std::uint32_t>(content_.storedFields.size());
    content_.storedFields.push_back(copy);
}

/// Of the file's form among all; files that several time steps name stand there once.
std::uint32_t FieldTaker::placeOf(const Plot3DVariable_s& file) {
    const auto known = placesByRecord_.find(&file);
    if (known != placesByRecord_.end())
        return known->second;
    FileForm_s form = formOf(file);
    const auto next = static_cast<std::uint32_t>(content_.forms.size());
    const auto [place, isNew] = placesByForm_.try_emplace(form, next);
    if (isNew)
        content_.forms.push_back(std::move(form));
    return placesByRecord_[&file] = place->second;
}

} // namespace plot3dlib
