// The zones and variables of a frame. Both are numbered from 1 without gaps; their unique ids stay.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "model/Zone.h"

namespace quorvia::host {

/// Gives out identities; none comes twice.
class IdSource {
public:
    /// The first one follows on `last`.
    explicit IdSource(std::int64_t last = 0) : last_(last) {}
    std::int64_t next() { return ++last_; }
    std::int64_t last() const { return last_; }

private:
    std::int64_t last_;
};

struct Variable_s {
    std::string name; // trailing blanks belong to it
    std::int64_t uniqueId = 0;
};

class DataSet {
public:
    /// `ids` is borrowed and must outlive the data set.
    DataSet(IdSource& ids, std::string loader, std::string dataSetTitle,
            const std::vector<std::string>& variableNames);

    std::string loaderName;
    std::string title;
    AuxData auxData;

    /// An identity like those of zones and variables.
    std::int64_t uniqueId() const { return uniqueId_; }

    const std::vector<Variable_s>& variables() const { return variables_; }
    const std::vector<std::unique_ptr<Zone_s>>& zones() const { return zones_; }
    std::int32_t zoneCount() const { return static_cast<std::int32_t>(zones_.size()); }
    std::int32_t variableCount() const { return static_cast<std::int32_t>(variables_.size()); }

    /// Numbers from 1; null if there is no such zone or variable.
    Zone_s* zone(std::int64_t number) const {
        return isNumberOf(zones_, number) ? zones_[static_cast<std::size_t>(number - 1)].get()
                                          : nullptr;
    }
    const Variable_s* variable(std::int64_t number) const {
        return isNumberOf(variables_, number) ? &variables_[static_cast<std::size_t>(number - 1)]
                                              : nullptr;
    }
    Field_s* field(std::int64_t zoneNumber, std::int64_t variableNumber) const;

    // The next four throw std::bad_alloc; nothing has changed then.

    /// Appends the zone; its fields must be one for each variable. Gives it number and unique id.
    Zone_s& addZone(std::unique_ptr<Zone_s> zone);
    /// Appends a variable with one field for each zone, in their order.
    void addVariable(std::string name, std::vector<Field_s> fields);
    /// The numbers must exist. What stands behind the deleted is renumbered before any field ends,
    /// and `numbers` may end with the fields.
    void deleteZones(const std::set<std::int64_t>& numbers);
    void deleteVariables(const std::set<std::int64_t>& numbers);

    /// The present numbers of identities; 0 for one that is gone.
    std::int32_t zoneNumber(std::int64_t uniqueId) const;
    std::int32_t variableNumber(std::int64_t uniqueId) const;

    /// The highest strand of all zones; 0 if none has one.
    std::int32_t maxStrandId() const;

    /// For each zone, in order, the lowest number of a zone that holds the same storage of this
    /// variable; 0 where the field is empty. An entry that differs from the zone's own number is
    /// the zone that it shares the field with. Linear in the number of zones.
    std::vector<std::int32_t> fieldHolders(std::int64_t variableNumber) const;
    /// The same for node maps; 0 for ordered zones.
    std::vector<std::int32_t> nodeMapHolders() const;

private:
    template <typename Item>
    static bool isNumberOf(const std::vector<Item>& items, std::int64_t number) {
        return number >= 1 && number <= static_cast<std::int64_t>(items.size());
    }

    IdSource& ids_;
    std::int64_t uniqueId_;
    std::vector<Variable_s> variables_;
    std::vector<std::unique_ptr<Zone_s>> zones_;
    std::unordered_map<std::int64_t, Zone_s*> zonesById_;
    std::unordered_map<std::int64_t, std::int32_t> variableNumbersById_;
};

} // namespace quorvia::host
