#include "model/DataSet.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "model/Room.h"

namespace quorvia::host {

namespace {

// Moves the items whose numbers, from 1, are in `numbers` to the end of `taken`, which has room for
// them; `items` closes up. The moved items must outlive every renumbering: the end of a field calls
// the guest back.
template <typename Item>
void takeNumbered(std::vector<Item>& items, const std::set<std::int64_t>& numbers,
                  std::vector<Item>& taken) noexcept {
    std::size_t kept = 0;
    for (std::size_t index = 0; index < items.size(); ++index) {
        if (numbers.count(static_cast<std::int64_t>(index) + 1) != 0)
            taken.push_back(std::move(items[index]));
        else if (kept++ != index)
            items[kept - 1] = std::move(items[index]);
    }
    items.resize(kept);
}

// For each zone the lowest number of a zone for which `sharedThing` gives the same pointer. Most
// things of a large data set have one holder, and need not be looked up.
template <typename SharedThing>
std::vector<std::int32_t> lowestHolders(const std::vector<std::unique_ptr<Zone_s>>& zones,
                                        SharedThing sharedThing) {
    std::vector<std::int32_t> holders;
    holders.reserve(zones.size());
    std::unordered_map<const void*, std::int32_t> firstOf;
    for (const std::unique_ptr<Zone_s>& zone : zones) {
        const auto& thing = sharedThing(*zone);
        if (thing.use_count() <= 1)
            holders.push_back(thing == nullptr ? 0 : zone->number);
        else
            holders.push_back(firstOf.try_emplace(thing.get(), zone->number).first->second);
    }
    return holders;
}

} // namespace

DataSet::DataSet(IdSource& ids, std::string loader, std::string dataSetTitle,
                 const std::vector<std::string>& variableNames)
    : loaderName(std::move(loader)), title(std::move(dataSetTitle)), ids_(ids),
      uniqueId_(ids.next()) {
    for (const std::string& name : variableNames)
        addVariable(name, {});
}

Field_s* DataSet::field(std::int64_t zoneNumber, std::int64_t variableNumber) const {
    Zone_s* holder = zone(zoneNumber);
    if (holder == nullptr || !isNumberOf(variables_, variableNumber))
        return nullptr;
    return &holder->fields[static_cast<std::size_t>(variableNumber - 1)];
}

Zone_s& DataSet::addZone(std::unique_ptr<Zone_s> zone) {
    makeRoom(zones_);
    zonesById_.emplace(ids_.last() + 1, zone.get());
    zone->uniqueId = ids_.next();
    zone->number = zoneCount() + 1;
    zones_.push_back(std::move(zone));
    return *zones_.back();
}

void DataSet::addVariable(std::string name, std::vector<Field_s> fields) {
    makeRoom(variables_);
    for (const std::unique_ptr<Zone_s>& zone : zones_)
        makeRoom(zone->fields);
    variableNumbersById_.emplace(ids_.last() + 1, variableCount() + 1);
    variables_.push_back({std::move(name), ids_.next()});
    for (std::size_t index = 0; index < zones_.size(); ++index)
        zones_[index]->fields.push_back(std::move(fields[index]));
}

void DataSet::deleteZones(const std::set<std::int64_t>& numbers) {
    std::vector<std::unique_ptr<Zone_s>> deleted;
    makeRoom(deleted, numbers.size());
    takeNumbered(zones_, numbers, deleted);
    for (const std::unique_ptr<Zone_s>& zone : deleted)
        zonesById_.erase(zone->uniqueId);
    std::int32_t number = 0;
    for (const std::unique_ptr<Zone_s>& zone : zones_)
        zone->number = ++number;
}

void DataSet::deleteVariables(const std::set<std::int64_t>& numbers) {
    std::vector<Variable_s> deleted;
    std::vector<Field_s> deletedFields;
    makeRoom(deleted, numbers.size());
    makeRoom(deletedFields, numbers.size() * zones_.size());
    takeNumbered(variables_, numbers, deleted);
    for (const Variable_s& variable : deleted)
        variableNumbersById_.erase(variable.uniqueId);
    std::int32_t number = 0;
    for (const Variable_s& variable : variables_)
        variableNumbersById_.at(variable.uniqueId) = ++number;
    for (const std::unique_ptr<Zone_s>& zone : zones_)
        takeNumbered(zone->fields, numbers, deletedFields);
}

std::int32_t DataSet::zoneNumber(std::int64_t uniqueId) const {
    const auto found = zonesById_.find(uniqueId);
    return found != zonesById_.end() ? found->second->number : 0;
}

std::int32_t DataSet::variableNumber(std::int64_t uniqueId) const {
    const auto found = variableNumbersById_.find(uniqueId);
    return found != variableNumbersById_.end() ? found->second : 0;
}

std::int32_t DataSet::maxStrandId() const {
    std::int32_t highest = 0;
    for (const std::unique_ptr<Zone_s>& zone : zones_)
        highest = std::max(highest, zone->strandId);
    return highest;
}

std::vector<std::int32_t> DataSet::fieldHolders(std::int64_t variableNumber) const {
    const auto index = static_cast<std::size_t>(variableNumber - 1);
    return lowestHolders(
        zones_, [index](const Zone_s& zone) -> const auto& { return zone.fields[index].storage; });
}

std::vector<std::int32_t> DataSet::nodeMapHolders() const {
    return lowestHolders(
        zones_, [](const Zone_s& zone) -> const auto& { return zone.nodeMap; });
}

} // namespace quorvia::host
