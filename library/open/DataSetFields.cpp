// The fields of a data set: where they are, and their values.
#include <plot3d/DataSet.h>

#include <cstring>
#include <limits>
#include <utility>

#include <plot3d/Error.h>
#include <plot3d/FieldReader.h>

#include "open/DataSetContent.h"
#include "open/Facts.h"
#include "open/HostLock.h"
#include "read/FieldValues.h"
#include "session/ReferenceHost.h"
#include "state/HostState.h"

namespace plot3d {

namespace {

using namespace plot3dlib;

void demandIndex(const char* what, std::size_t index, std::size_t count) {
    if (index < count)
        return;
    throw Error(ErrorKind::Usage, std::string("There is no such ") + what + ".",
                expecting("an index below " + std::to_string(count), std::to_string(index)));
}

const FieldRecord_s& fieldOf(const Content_s& content, std::size_t zone, std::size_t variable) {
    demandIndex("zone", zone, content.zones.size());
    demandIndex("variable", variable, content.variables.size());
    return content.field(zone, variable);
}

void demandKind(const FieldRecord_s& field, FieldKind kind, const char* message) {
    if (field.kind != kind)
        throw Error(ErrorKind::Usage, message);
}

Source sourceOf(const Content_s& content, const FieldRecord_s& field, const Extent& size) {
    const FileForm_s& form = content.forms[field.place];
    return {form.file, field.type, form.order,
            piecesOf(form, field.offset, size.count() * width(field.type))};
}

FieldReader readerOf(const Content_s& content, std::size_t zone, std::size_t variable);

FieldReader readerOfStored(const FieldRecord_s& field, const Extent& size,
                           std::shared_ptr<const quorvia::host::FieldStorage> storage) {
    const void* const values = storage->values();
    return FieldReader(valuesInMemory(field.type, size, values, std::move(storage)));
}

FieldReader readerOfPart(const Content_s& content, const PartOf& part) {
    auto whole = std::make_shared<const FieldReader>(readerOf(content, part.zone, part.variable));
    return FieldReader(valuesOfPart(std::move(whole), part.box));
}

FieldReader readerAtHost(const FieldRecord_s& field, const Extent& size,
                         std::weak_ptr<quorvia::host::FieldStorage> weak,
                         std::shared_ptr<KeptFrame> frame) {
    const auto withValues = [weak = std::move(weak), frame = std::move(frame)](
                                const auto& use, const std::stop_token& stop) {
        const HostLock lock;
        const auto storage = weak.lock();
        if (storage == nullptr)
            throw Error(ErrorKind::Unreadable, "The host does not have the field any more.");
        if (frame != nullptr)
            return frame->withValues(*storage, use, stop);
        if (!quorvia::host::ReferenceHost::instance().state().fetch(*storage))
            throw Error(ErrorKind::Unreadable, "The host could not fetch the values.");
        use(storage->values());
    };
    return FieldReader(valuesAtHost(field.type, size, withValues));
}

FieldReader readerOf(const Content_s& content, std::size_t zone, std::size_t variable) {
    const FieldRecord_s& field = fieldOf(content, zone, variable);
    const Extent& size = content.zones[zone].size;
    switch (field.kind) {
    case FieldKind::InFile:
        return FieldReader(sourceOf(content, field, size), size);
    case FieldKind::InMemory:
        return readerOfStored(field, size, content.storedFields[field.place]);
    case FieldKind::PartOf:
        return readerOfPart(content, content.parts[field.place]);
    case FieldKind::AtHost:
        return readerAtHost(field, size, content.fieldsAtHost[field.place], content.frame);
    case FieldKind::Empty:
        break;
    }
    throw Error(ErrorKind::Usage, "Zone \"" + content.zones[zone].name +
                                      "\" has no values of variable \"" +
                                      content.variables[variable].name + "\".");
}

} // namespace

FieldKind DataSet::kind(std::size_t zone, std::size_t variable) const {
    return fieldOf(*content_, zone, variable).kind;
}

ValueType DataSet::type(std::size_t zone, std::size_t variable) const {
    return fieldOf(*content_, zone, variable).type;
}

Source DataSet::source(std::size_t zone, std::size_t variable) const {
    const FieldRecord_s& field = fieldOf(*content_, zone, variable);
    demandKind(field, FieldKind::InFile, "The field does not lie in a file as it is.");
    return sourceOf(*content_, field, content_->zones[zone].size);
}

PartOf DataSet::partOf(std::size_t zone, std::size_t variable) const {
    const FieldRecord_s& field = fieldOf(*content_, zone, variable);
    demandKind(field, FieldKind::PartOf, "The field is not part of another one.");
    return content_->parts[field.place];
}

std::size_t DataSet::holder(std::size_t zone, std::size_t variable) const {
    return fieldOf(*content_, zone, variable).holder;
}

std::vector<std::int32_t> DataSet::nodeMap(std::size_t zone) const {
    demandIndex("zone", zone, content_->zones.size());
    if (content_->nodeMaps.empty() || content_->nodeMaps[zone] == nullptr)
        return {};
    const quorvia::host::NodeMap& map = *content_->nodeMaps[zone];
    const std::int32_t* const nodes = map.nodes();
    if (nodes == nullptr)
        return {};
    std::vector<std::int32_t> fromZero(nodes, nodes + map.elementCount() * map.cornerCount());
    for (std::int32_t& node : fromZero)
        --node;
    return fromZero;
}

FieldReader DataSet::reader(std::size_t zone, std::size_t variable) const {
    return readerOf(*content_, zone, variable);
}

void DataSet::read(std::size_t zone, std::size_t variable, void* destination) const {
    reader(zone, variable).read(destination);
}

void DataSet::read(std::size_t zone, std::size_t variable, const Box& box,
                   void* destination) const {
    reader(zone, variable).read(box, destination);
}

std::vector<double> DataSet::values(std::size_t zone, std::size_t variable) const {
    demandIndex("zone", zone, content_->zones.size());
    return values(zone, variable, Box::whole(content_->zones[zone].size));
}

std::vector<double> DataSet::values(std::size_t zone, std::size_t variable, const Box& box) const {
    const FieldReader fieldReader = reader(zone, variable);
    std::vector<double> all(static_cast<std::size_t>(box.count()));
    fieldReader.readAsDouble(box, all.data());
    return all;
}

} // namespace plot3d
