#include "desktop/ValueFetch.h"

#include "describe/FetchSeries.h"

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
    return field != nullptr && field->state != FieldState::Empty && !field->statistics;
}

void copyFromHolders(DataSetOutcome_s& dataSet) {
    for (ZoneOutcome_s& zone : dataSet.zones) {
        for (FieldOutcome_s& field : zone.fields) {
            if (const auto* holder = findField(dataSet, {field.sharedWith, field.variable})) {
                field.statistics = holder->statistics;
                field.error = holder->error;
            }
        }
    }
}

/// Without those that nobody wants, each once, in the order asked for.
std::vector<FieldAddress_s> holdersOf(const DataSetOutcome_s& dataSet,
                                      const std::vector<FieldAddress_s>& fields) {
    std::vector<FieldAddress_s> holders;
    for (const FieldAddress_s asked : fields) {
        const FieldAddress_s address = holderOf(dataSet, asked);
        if (isWanted(findField(dataSet, address)))
            holders.push_back(address);
    }
    return holders;
}

std::int64_t countBytes(const DataSetOutcome_s& dataSet,
                        const std::vector<FieldAddress_s>& holders) {
    std::int64_t count = 0;
    for (const FieldAddress_s address : holders)
        count += byteCountOf(*findField(dataSet, address));
    return count;
}

FetchEnd_e fetchHolders(ReferenceHost& host, DataSetOutcome_s& dataSet,
                        const std::vector<FieldAddress_s>& fields, const FetchObserver& observer) {
    const std::vector<FieldAddress_s> holders = holdersOf(dataSet, fields);
    FetchSeries series(host, countBytes(dataSet, holders), observer);
    for (const FieldAddress_s address : holders) {
        FieldOutcome_s& field = *findField(dataSet, address);
        if (!series.mayGoOn())
            return FetchEnd_e::Stopped;
        if (!isWanted(&field))
            continue; // asked for twice, and fetched by now
        if (!series.fetch(address.zone, field))
            return FetchEnd_e::Stopped;
        if (field.error)
            return FetchEnd_e::Failed;
    }
    return FetchEnd_e::Done;
}

} // namespace

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

FetchEnd_e fetchFields(ReferenceHost& host, DataSetOutcome_s& dataSet,
                       const std::vector<FieldAddress_s>& fields, const FetchObserver& observer) {
    const FetchEnd_e end = fetchHolders(host, dataSet, fields, observer);
    copyFromHolders(dataSet);
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

} // namespace quorvia::host
