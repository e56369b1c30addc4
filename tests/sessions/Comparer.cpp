#include "sessions/Comparer.h"

#include <map>

#include <fmt/core.h>

namespace quorvia::sessions {

namespace {

template <typename Value>
double valueIn(const host::FetchResult_s& fetched, std::size_t index) {
    return static_cast<double>(static_cast<const Value*>(fetched.values)[index]);
}

double valueAt(const host::FetchResult_s& fetched, std::size_t index) {
    if (fetched.type == singleType)
        return valueIn<float>(fetched, index);
    return fetched.type == doubleType ? valueIn<double>(fetched, index)
                                      : valueIn<std::int32_t>(fetched, index);
}

/// As DataSet::fieldHolders: the lowest zone that has the same contents.
std::vector<std::int32_t> expectedHolders(const DataSet_s& dataSet, std::size_t variable) {
    std::map<const Contents_s*, std::int32_t> firstOf;
    std::vector<std::int32_t> holders;
    std::int32_t number = 0;
    for (const Zone_s& zone : dataSet.zones) {
        const Contents_s* contents = zone.fields[variable].contents.get();
        ++number;
        holders.push_back(
            contents == nullptr ? 0 : firstOf.try_emplace(contents, number).first->second);
    }
    return holders;
}

class Comparison {
public:
    Comparison(host::ReferenceHost& host, const DataSet_s& expected)
        : host_(host), found_(*host.frame().dataSet()), expected_(expected) {}

    std::string find(bool fetches) {
        compareNames();
        for (std::int32_t number = 1; text_.empty() && number <= expected_.zoneCount(); ++number)
            compareZone(number);
        for (std::int32_t variable = 1; text_.empty() && variable <= expected_.variableCount();
             ++variable)
            compareFields(variable, fetches);
        return text_;
    }

private:
    template <typename Value>
    void same(const std::string& what, const Value& found, const Value& expected) {
        if (text_.empty() && !(found == expected))
            text_ = fmt::format("{}: {}, expected {}", what, found, expected);
    }

    void compareNames() {
        same("zones", found_.zoneCount(), expected_.zoneCount());
        same("variables", found_.variableCount(), expected_.variableCount());
        for (std::int32_t number = 1; text_.empty() && number <= expected_.variableCount();
             ++number)
            same(fmt::format("name of variable {}", number), found_.variable(number)->name,
                 expected_.variables[static_cast<std::size_t>(number - 1)]);
    }

    std::int32_t expectedParent(const Zone_s& zone) const {
        std::int32_t number = 0;
        for (const Zone_s& other : expected_.zones) {
            ++number;
            if (zone.parentId != 0 && other.id == zone.parentId)
                return number;
        }
        return 0;
    }

    void compareZone(std::int32_t number) {
        const host::Zone_s& found = *found_.zone(number);
        const Zone_s& expected = expected_.zones[static_cast<std::size_t>(number - 1)];
        const std::string zone = fmt::format("zone {}: ", number);
        same(zone + "name", found.name, expected.name);
        same(zone + "type", found.type, expected.type);
        same(zone + "size", fmt::format("{}x{}x{}", found.i, found.j, found.k),
             fmt::format("{}x{}x{}", expected.i, expected.j, expected.k));
        same(zone + "strand", found.strandId, expected.strand);
        same(zone + "time", found.solutionTime, expected.time);
        same(zone + "parent", found_.zoneNumber(found.parentZoneId), expectedParent(expected));
        const auto condition = found.auxData.find("Common.BoundaryCondition");
        same(zone + "boundary condition",
             condition != found.auxData.end() ? condition->second : std::string(),
             expected.boundaryCondition);
        compareNodes(zone, found, expected);
    }

    void compareNodes(const std::string& zone, const host::Zone_s& found, const Zone_s& expected) {
        const std::int32_t* nodes = found.nodeMap != nullptr ? found.nodeMap->nodes() : nullptr;
        same(zone + "has nodes", nodes != nullptr, expected.nodes != nullptr);
        if (!text_.empty() || nodes == nullptr)
            return;
        for (std::size_t index = 0; index < expected.nodes->size(); ++index)
            same(fmt::format("{}node {}", zone, index), nodes[index], (*expected.nodes)[index]);
    }

    void compareFields(std::int32_t variable, bool fetches) {
        const std::vector<std::int32_t> holders = found_.fieldHolders(variable);
        const std::vector<std::int32_t> expectedOnes =
            expectedHolders(expected_, static_cast<std::size_t>(variable - 1));
        for (std::int32_t number = 1; text_.empty() && number <= expected_.zoneCount(); ++number) {
            const std::string field = fmt::format("zone {}, variable {}: ", number, variable);
            const auto place = static_cast<std::size_t>(number - 1);
            same(field + "held by zone", holders[place], expectedOnes[place]);
            const host::Field_s& found = *found_.field(number, variable);
            const Field_s& expected =
                expected_.zones[place].fields[static_cast<std::size_t>(variable - 1)];
            same(field + "type", found.type, expected.type);
            if (expected.contents == nullptr || !text_.empty())
                continue;
            same(field + "deferred", found.state() == host::FieldState_e::Deferred,
                 expected.contents->isDeferred);
            if (fetches)
                compareValues(field, number, variable, expected.contents->values);
        }
    }

    void compareValues(const std::string& field, std::int32_t number, std::int32_t variable,
                       const std::vector<double>& expected) {
        const host::FetchResult_s fetched = host_.fetch(number, variable);
        if (!fetched.ok && text_.empty())
            text_ = field + "can't be read: " + fetched.error;
        same(field + "values", fetched.count, static_cast<std::int64_t>(expected.size()));
        for (std::size_t index = 0; text_.empty() && index < expected.size(); ++index)
            same(fmt::format("{}value {}", field, index), valueAt(fetched, index), expected[index]);
    }

    host::ReferenceHost& host_;
    const host::DataSet& found_;
    const DataSet_s& expected_;
    std::string text_;
};

} // namespace

std::string findDifference(host::ReferenceHost& host, const ExpectedHost_s& expected,
                           bool fetches) {
    const bool isThere = host.frame().dataSet() != nullptr;
    if (isThere != expected.dataSet.has_value())
        return isThere ? "a data set is there" : "no data set is there";
    if (host.frame().plotType() != expected.plotType)
        return fmt::format("plot type {}, expected {}", host.frame().plotType(), expected.plotType);
    return isThere ? Comparison(host, *expected.dataSet).find(fetches) : "";
}

} // namespace quorvia::sessions
