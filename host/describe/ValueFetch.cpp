#include "describe/ValueFetch.h"

#include <algorithm>
#include <cstddef>
#include <set>

namespace quorvia::host {
namespace {

/// The field itself, or the one of another zone that it shares its values with.
FieldAddress_s holderOf(const DataSetOutcome_s& dataSet, FieldAddress_s address) {
    const FieldOutcome_s* field = findField(dataSet, address);
    if (field != nullptr && field->sharedWith != 0)
        return {field->sharedWith, address.variable};
    return address;
}

bool isWanted(const FieldOutcome_s* field) {
    return field != nullptr && field->state != FieldState_e::Empty && !field->statistics;
}

void copyFromHolder(const DataSetOutcome_s& dataSet, FieldOutcome_s& field) {
    if (const auto* holder = findField(dataSet, {field.sharedWith, field.variable})) {
        field.statistics = holder->statistics;
        field.error = holder->error;
    }
}

void copyFromHolders(DataSetOutcome_s& dataSet) {
    for (ZoneOutcome_s& zone : dataSet.zones)
        for (FieldOutcome_s& field : zone.fields)
            copyFromHolder(dataSet, field);
}

/// Of what fetching all of them comes to.
std::int64_t countBytes(const DataSetOutcome_s& dataSet,
                        const std::vector<FieldAddress_s>& fields) {
    std::vector<FieldAddress_s> holders;
    for (const FieldAddress_s asked : fields) {
        const FieldAddress_s holder = holderOf(dataSet, asked);
        if (isWanted(findField(dataSet, holder)))
            holders.push_back(holder);
    }
    std::sort(holders.begin(), holders.end());
    holders.erase(std::unique(holders.begin(), holders.end()), holders.end());
    std::int64_t count = 0;
    for (const FieldAddress_s holder : holders)
        count += byteCountOf(*findField(dataSet, holder));
    return count;
}

enum class AtFailure_e { GoOn, End };

FetchEnd_e fetchInOrder(ReferenceHost& host, DataSetOutcome_s& dataSet,
                        const std::vector<FieldAddress_s>& fields, AtFailure_e atFailure,
                        const FetchObserver& observer) {
    FetchSeries series(host, countBytes(dataSet, fields), observer);
    std::set<FieldAddress_s> failed;
    for (const FieldAddress_s asked : fields) {
        const FieldAddress_s address = holderOf(dataSet, asked);
        FieldOutcome_s* holder = findField(dataSet, address);
        if (isWanted(holder) && failed.count(address) == 0) {
            if (!series.mayGoOn() || !series.fetch(address.zone, *holder))
                return FetchEnd_e::Stopped;
            if (holder->error)
                failed.insert(address);
            if (holder->error && atFailure == AtFailure_e::End)
                return FetchEnd_e::Failed;
        }
        if (address != asked)
            copyFromHolder(dataSet, *findField(dataSet, asked));
    }
    return FetchEnd_e::Done;
}

} // namespace

bool fetchValues(ReferenceHost& host, DataSetOutcome_s& dataSet, const FetchObserver& observer) {
    return fetchInOrder(host, dataSet, fieldsOf(dataSet), AtFailure_e::GoOn, observer) !=
           FetchEnd_e::Stopped;
}

FetchEnd_e fetchFields(ReferenceHost& host, DataSetOutcome_s& dataSet,
                       const std::vector<FieldAddress_s>& fields, const FetchObserver& observer) {
    const FetchEnd_e end = fetchInOrder(host, dataSet, fields, AtFailure_e::End, observer);
    copyFromHolders(dataSet); // also where nobody asked
    return end;
}

DataSetOutcome_s withoutValues(DataSetOutcome_s dataSet) {
    for (ZoneOutcome_s& zone : dataSet.zones) {
        for (FieldOutcome_s& field : zone.fields) {
            field.statistics.reset();
            field.error.reset();
        }
    }
    return dataSet;
}

FieldOutcome_s* findField(DataSetOutcome_s& dataSet, FieldAddress_s address) {
    return const_cast<FieldOutcome_s*>(
        findField(static_cast<const DataSetOutcome_s&>(dataSet), address));
}

const FieldOutcome_s* findField(const DataSetOutcome_s& dataSet, FieldAddress_s address) {
    const auto zone = static_cast<std::size_t>(address.zone) - 1;
    const auto variable = static_cast<std::size_t>(address.variable) - 1;
    if (zone >= dataSet.zones.size() || variable >= dataSet.zones[zone].fields.size())
        return nullptr;
    return &dataSet.zones[zone].fields[variable];
}

std::vector<FieldAddress_s> fieldsOf(const DataSetOutcome_s& dataSet) {
    std::vector<FieldAddress_s> fields;
    for (const ZoneOutcome_s& zone : dataSet.zones)
        for (const FieldOutcome_s& field : zone.fields)
            fields.push_back({zone.number, field.variable});
    return fields;
}

} // namespace quorvia::host
