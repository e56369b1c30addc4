// Adding a zone.
#include <limits>
#include <memory>
#include <utility>

#include "services/NewFields.h"

using namespace quorvia::host;

namespace {

constexpr std::int32_t highestZone = 2147483646;

struct NewZone_s {
    std::unique_ptr<Zone_s> zone = std::make_unique<Zone_s>();
    std::int64_t zoneType = 0, strand = 0, parent = 0, connectShare = 0;
    bool defersFields = false;
    std::vector<std::int32_t> types;
};

bool productFits(std::int64_t a, std::int64_t b, std::int64_t& product) {
    return !__builtin_mul_overflow(a, b, &product);
}

/// Whether the bytes of a field, and of the node map, can be counted.
bool fitsMemory(const Zone_s& zone) {
    constexpr std::int64_t widestValue = 8;
    constexpr std::int64_t nodeNumber = 4;
    std::int64_t count = 0;
    std::int64_t bytes = 0;
    if (zone.isOrdered())
        return productFits(zone.i, zone.j, count) && productFits(count, zone.k, count) &&
               productFits(count, widestValue, bytes);
    return productFits(zone.i, widestValue, bytes) && productFits(zone.j, zone.k, count) &&
           productFits(count, nodeNumber, bytes);
}

// The sizes may come from a file or from a user, so that a bad one is no breach of the contract.
bool sizesAreSound(Call& call, const Zone_s& zone) {
    for (const auto& [key, size] :
         {std::pair("IMax", zone.i), {"JMax", zone.j}, {"KMax", zone.k}}) {
        if (size < 1)
            return call.refuse(key, " is ", size, "; a zone needs at least 1");
    }
    return fitsMemory(zone) ||
           call.refuse("the zone has more points or elements than memory has addresses");
}

bool cornersFitType(Call& call, const Zone_s& zone) {
    switch (zone.type) {
    case QuorZoneType_Ordered:
        return true;
    case QuorZoneType_Triangles:
        return zone.k == 3 || call.violate("a triangle has 3 corners (\"KMax\")");
    case QuorZoneType_Tetrahedra:
        return zone.k == 4 || call.violate("a tetrahedron has 4 corners (\"KMax\")");
    default:
        return call.violate("there is no zone type ", zone.type);
    }
}

// The types of a zone that does not name them are those of its parent, or of the zone before it.
std::vector<std::int32_t> inheritedTypes(const DataSet& data, std::int64_t parent) {
    const Zone_s* model = data.zone(parent != 0 ? parent : data.zoneCount());
    std::vector<std::int32_t> types(data.variables().size(), QuorFieldDataType_Float);
    for (std::size_t index = 0; model != nullptr && index < types.size(); ++index)
        types[index] = model->fields[index].type;
    return types;
}

bool readZone(Call& call, const DataSet& data, QuorArgListHandle arguments, NewZone_s& zoneToAdd) {
    ArgumentReader reader(call, arguments,
                          {"Name", "ZoneType", "IMax", "JMax", "KMax", "StrandID", "SolutionTime",
                           "ParentZone", "ConnectShareZone", "VarDataType", "DeferVarCreation"});
    Zone_s& zone = *zoneToAdd.zone;
    zone.name = reader.text("Name");
    zoneToAdd.zoneType = reader.integer("ZoneType");
    zone.i = reader.integer("IMax");
    zone.j = reader.integer("JMax");
    zone.k = reader.integer("KMax");
    zoneToAdd.strand = reader.integerOr("StrandID", 0);
    zone.solutionTime = reader.realOr("SolutionTime", 0.0);
    zoneToAdd.parent = reader.integerOr("ParentZone", 0);
    zoneToAdd.connectShare = reader.integerOr("ConnectShareZone", 0);
    zoneToAdd.defersFields = reader.integerOr("DeferVarCreation", 0) == 1;
    const std::size_t varCount = data.variables().size();
    zoneToAdd.types = reader.has("VarDataType") ? readTypes(call, reader, varCount)
                                                : inheritedTypes(data, zoneToAdd.parent);
    return reader.ok() && zoneToAdd.types.size() == varCount;
}

bool checkNumbers(Call& call, const DataSet& data, NewZone_s& zoneToAdd) {
    Zone_s& zone = *zoneToAdd.zone;
    if (zoneToAdd.zoneType < 0 || zoneToAdd.zoneType > QuorZoneType_Tetrahedra)
        return call.violate("there is no zone type ", zoneToAdd.zoneType);
    zone.type = static_cast<std::int32_t>(zoneToAdd.zoneType);
    if (zoneToAdd.strand < 0 || zoneToAdd.strand > std::numeric_limits<std::int32_t>::max())
        return call.violate("\"StrandID\" is ", zoneToAdd.strand);
    zone.strandId = static_cast<std::int32_t>(zoneToAdd.strand);
    if (zoneToAdd.parent != 0) {
        const Zone_s* parent = data.zone(zoneToAdd.parent);
        if (parent == nullptr)
            return call.violate("\"ParentZone\" ", zoneToAdd.parent, " does not exist");
        zone.parentZoneId = parent->uniqueId;
    }
    return sizesAreSound(call, zone) && cornersFitType(call, zone);
}

bool connectZone(Call& call, const DataSet& data, NewZone_s& zoneToAdd) {
    Zone_s& zone = *zoneToAdd.zone;
    if (zoneToAdd.connectShare == 0) {
        if (!zone.isOrdered())
            zone.nodeMap =
                std::make_shared<NodeMap>(zone.i, zone.j, static_cast<std::int32_t>(zone.k));
        return true;
    }
    const Zone_s* source = data.zone(zoneToAdd.connectShare);
    if (source == nullptr)
        return call.violate("\"ConnectShareZone\" ", zoneToAdd.connectShare, " does not exist");
    if (!call.host().settings.sharingAllowed)
        return call.refuse("sharing is not allowed");
    if (source->type != zone.type || zone.isOrdered() || source->i != zone.i || source->j != zone.j)
        return call.refuse("the zones can't share a node map: their types or sizes differ");
    zone.nodeMap = source->nodeMap;
    return true;
}

bool addZone(Call& call, QuorArgListHandle arguments) {
    DataSet* data = call.dataSet();
    if (data == nullptr)
        return false;
    NewZone_s zoneToAdd;
    if (!readZone(call, *data, arguments, zoneToAdd) || !checkNumbers(call, *data, zoneToAdd) ||
        !connectZone(call, *data, zoneToAdd))
        return false;
    if (data->zoneCount() >= highestZone)
        return call.refuse("the data set holds all the zones that it can");
    Zone_s& zone = *zoneToAdd.zone;
    zone.fields.resize(zoneToAdd.types.size());
    for (std::size_t index = 0; index < zone.fields.size(); ++index) {
        zone.fields[index].type = zoneToAdd.types[index];
        if (!createField(call, zone.fields[index], zone.valueCount(QuorValueLocation_Nodal),
                         zoneToAdd.defersFields))
            return false;
    }
    data->addZone(std::move(zoneToAdd.zone));
    call.note([&] { return describeTypes(zoneToAdd.types); });
    return true;
}

} // namespace

extern "C" {

bool QuorUtilDataSetAddZoneX(QuorArgListHandle arguments) {
    Call call("QuorUtilDataSetAddZoneX", arguments);
    return call.serve([&] { return addZone(call, arguments); });
}

} // extern "C"
