#include "app/macro/HandMadeDataSet.h"

#include <memory>
#include <utility>

namespace quorvia::host {
namespace {

constexpr const char* loaderName = "by hand";

/// False: there is no memory.
bool makeField(const HandMadeZone_s& made, const Zone_s& zone, std::int32_t variable,
               Field_s& field) {
    field.type = made.types[static_cast<std::size_t>(variable) - 1];
    field.location = made.cellCentred.count(variable) != 0 ? QuorValueLocation_CellCentred
                                                           : QuorValueLocation_Nodal;
    field.passive = made.passive.count(variable) != 0;
    if (field.passive)
        return true;
    field.storage = FieldStorage::stored(field.type, zone.valueCount(field.location));
    return field.storage != nullptr;
}

/// Null: there is no memory.
std::unique_ptr<Zone_s> makeZone(const HandMadeZone_s& made) {
    auto zone = std::make_unique<Zone_s>();
    zone->name = made.name;
    zone->type = made.type;
    zone->i = made.i;
    zone->j = made.j;
    zone->k = made.k;
    zone->strandId = made.strandId;
    zone->solutionTime = made.solutionTime;
    if (!zone->isOrdered())
        zone->nodeMap =
            std::make_shared<NodeMap>(zone->i, zone->j, static_cast<std::int32_t>(zone->k));
    zone->fields.resize(made.types.size());
    std::int32_t variable = 0;
    for (Field_s& field : zone->fields)
        if (!makeField(made, *zone, ++variable, field))
            return nullptr;
    return zone;
}

} // namespace

bool putIntoFrame(const HandMadeDataSet_s& made, Frame& frame) {
    DataSet& dataSet = frame.createDataSet(loaderName, made.title, made.variables);
    for (const HandMadeZone_s& zoneMade : made.zones) {
        std::unique_ptr<Zone_s> zone = makeZone(zoneMade);
        if (zone == nullptr) {
            frame.reset();
            return false;
        }
        dataSet.addZone(std::move(zone));
    }
    return true;
}

} // namespace quorvia::host
