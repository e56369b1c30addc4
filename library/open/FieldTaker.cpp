#include "open/FieldTaker.h"

#include <bit>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <optional>
#include <utility>

#include <plot3d/Error.h>

#include "open/BoundaryRecords.h"
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

} // namespace

void FieldTaker::takeAll() {
    content_.fields.resize(content_.zones.size() * content_.variables.size());
    for (std::size_t variable = 0; variable < content_.variables.size(); ++variable)
        takeVariable(variable);
    for (std::size_t zone = 0; zone < content_.zones.size(); ++zone)
        straightenOffsets(zone);
    for (const auto& [zone, boundary] : boundaries_)
        takeBoundary(zone, *boundary);
}

void FieldTaker::takeVariable(std::size_t variable) {
    const std::vector<std::int32_t> holders =
        data_.fieldHolders(static_cast<std::int64_t>(variable) + 1);
    for (std::size_t zone = 0; zone < holders.size(); ++zone) {
        FieldRecord_s& record = content_.field(zone, variable);
        record.type = valueTypeOf(data_.zones()[zone]->fields[variable].type);
        record.holder = static_cast<std::uint32_t>(zone);
        const StoragePtr& storage = storageOf(zone, variable);
        if (storage == nullptr)
            continue;
        const auto holder = static_cast<std::size_t>(holders[zone] - 1);
        if (const BoundaryRecord* const boundary = boundaryRecordOf(*storage)) {
            boundaries_.try_emplace(zone, boundary);
            record.holder = static_cast<std::uint32_t>(holder);
        } else if (holder != zone) {
            record = content_.field(holder, variable);
        } else {
            takeField(zone, variable, storage);
        }
    }
}

void FieldTaker::takeField(std::size_t zone, std::size_t variable, const StoragePtr& storage) {
    FieldRecord_s& record = content_.field(zone, variable);
    record.type = valueTypeOf(storage->type());
    if (storage->valueCount() != content_.zones[zone].size.count()) {
        note(zone, variable, "left out, since its values do not stand at the points");
    } else if (!storage->isDeferred()) {
        record.kind = FieldKind::InMemory;
        record.place = static_cast<std::uint32_t>(content_.storedFields.size());
        content_.storedFields.push_back(storage);
    } else if (!takeFromFile(*storage, record)) {
        takeFromHost(zone, storage, record);
    }
}

bool FieldTaker::takeFromFile(const Storage& storage, FieldRecord_s& record) {
    const Plot3DLodRecord_s* const kept = fileRecordOf(storage);
    if (kept == nullptr || kept->numValues != storage.valueCount() ||
        kept->variable->encoding == Plot3DEncoding_Ascii ||
        !isStoredAs(storage.type(), *kept->variable))
        return false;
    record.kind = FieldKind::InFile;
    record.place = placeOf(*kept->variable);
    record.offset = kept->fileOffset;
    return true;
}

void FieldTaker::takeFromHost(std::size_t zone, const StoragePtr& storage, FieldRecord_s& record) {
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

/// The add-on, on its way past a field, misses the end of a segment that it would pass only by the
/// markers of others. So the field behind one with several ends in it is put where it must be.
void FieldTaker::straightenOffsets(std::size_t zone) {
    const std::int64_t count = content_.zones[zone].size.count();
    for (std::size_t variable = 1; variable < content_.variables.size(); ++variable) {
        const FieldRecord_s& ahead = content_.field(zone, variable - 1);
        FieldRecord_s& field = content_.field(zone, variable);
        if (ahead.kind != FieldKind::InFile || field.kind != FieldKind::InFile ||
            ahead.place != field.place)
            continue;
        const FileForm_s& form = content_.forms[field.place];
        const std::int64_t byteCount = count * plot3d::width(ahead.type);
        if (form.segmentEnds.size() < 2 || piecesOf(form, ahead.offset, byteCount).size() < 3)
            continue;
        const std::int64_t behind = positionBehind(form, ahead.offset, byteCount);
        const std::int64_t markers = 2 * form.markerBytes * std::ssize(form.segmentEnds);
        if (std::abs(field.offset - behind) <= markers) // else it is not the next one in the file
            field.offset = behind;
    }
}

void FieldTaker::takeBoundary(std::size_t zone, const BoundaryRecord& boundary) {
    const plot3d::Zone& shape = content_.zones[zone];
    const std::optional<plot3d::Box> box = boxOf(boundary);
    const bool isInParent = shape.parent && box && box->extent() == shape.size &&
                            gridSizeOf(boundary) == content_.zones[*shape.parent].size;
    for (std::size_t variable = 0; variable < content_.variables.size(); ++variable) {
        if (isInParent && mayTakePart(zone, variable))
            takePart(zone, variable, *box);
        else if (storageOf(zone, variable) != nullptr)
            takeFetched(zone, variable);
    }
}

bool FieldTaker::mayTakePart(std::size_t zone, std::size_t variable) const {
    const std::size_t parent = *content_.zones[zone].parent;
    const FieldKind kind = content_.field(parent, variable).kind;
    if (hostFields_ == HostFields_e::Fetched) // what was loaded just now belongs together
        return kind == FieldKind::InFile || kind == FieldKind::InMemory;
    const StoragePtr& storage = storageOf(zone, variable);
    const BoundaryRecord* const boundary = storage ? boundaryRecordOf(*storage) : nullptr;
    return boundary != nullptr && isFieldOfParent(*boundary, parent, variable);
}

/// Whether the field that the boundary was set up for is the one that the parent zone has.
bool FieldTaker::isFieldOfParent(const BoundaryRecord& boundary, std::size_t parent,
                                 std::size_t variable) const {
    if (boundary.varOrdinal > static_cast<std::int64_t>(variable) + 1)
        return false;
    const std::size_t first = variable - static_cast<std::size_t>(boundary.varOrdinal - 1);
    const FieldRecord_s& ofParent = content_.field(parent, variable);
    const FieldRecord_s& firstOfParent = content_.field(parent, first);
    return ofParent.kind == FieldKind::InFile && firstOfParent.kind == FieldKind::InFile &&
           ofParent.place == firstOfParent.place && firstOfParent.offset == boundary.gridOffset &&
           content_.forms[ofParent.place].file == boundary.file->fileName.view();
}

void FieldTaker::takePart(std::size_t zone, std::size_t variable, const plot3d::Box& box) {
    FieldRecord_s& record = content_.field(zone, variable);
    const std::size_t holder = record.holder;
    if (holder != zone && content_.field(holder, variable).kind == FieldKind::PartOf &&
        isSameInParents(zone, holder, variable)) {
        record = content_.field(holder, variable);
        return;
    }
    const std::size_t parent = *content_.zones[zone].parent;
    record.type = content_.field(parent, variable).type;
    record.kind = FieldKind::PartOf;
    record.holder = static_cast<std::uint32_t>(zone);
    record.place = static_cast<std::uint32_t>(content_.parts.size());
    content_.parts.push_back({parent, variable, box});
}

/// Whether the zones' grids have the same field.
bool FieldTaker::isSameInParents(std::size_t zone, std::size_t other, std::size_t variable) const {
    const std::optional<std::size_t> parent = content_.zones[zone].parent;
    const std::optional<std::size_t> parentOfOther = content_.zones[other].parent;
    return parent && parentOfOther &&
           content_.field(*parent, variable).holder ==
               content_.field(*parentOfOther, variable).holder;
}

/// The way of the add-on, where it leads to the right values.
void FieldTaker::takeFetched(std::size_t zone, std::size_t variable) {
    FieldRecord_s& record = content_.field(zone, variable);
    const std::size_t holder = std::exchange(record.holder, static_cast<std::uint32_t>(zone));
    const StoragePtr& storage = storageOf(zone, variable);
    const BoundaryRecord* const boundary = boundaryRecordOf(*storage);
    const bool isWanted = hostFields_ == HostFields_e::Fetched;
    const bool isRight = boundary != nullptr &&
                         isFetchedRight(*boundary, variable, content_.variables.size()) &&
                         (holder == zone || isSameInParents(zone, holder, variable));
    if (isWanted && !isRight)
        note(zone, variable, "left out, since the values at the boundary can't be told");
    else if (holder != zone && content_.field(holder, variable).kind != FieldKind::Empty)
        record = content_.field(holder, variable);
    else
        takeFromHost(zone, storage, record);
}

const FieldTaker::StoragePtr& FieldTaker::storageOf(std::size_t zone, std::size_t variable) const {
    return data_.zones()[zone]->fields[variable].storage;
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

void FieldTaker::note(std::size_t zone, std::size_t variable, const char* what) {
    content_.notes.push_back("Zone \"" + content_.zones[zone].name + "\", variable \"" +
                             content_.variables[variable].name + "\": " + what + ".");
}

} // namespace plot3dlib
