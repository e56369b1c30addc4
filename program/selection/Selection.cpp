#include "selection/Selection.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <set>

#include <fmt/core.h>

#include <plot3d/Error.h>

#include "console/options/OptionTable.h"
#include "selection/IndexRange.h"
#include "selection/NamePattern.h"
#include "selection/NumberChecks.h"
#include "selection/NumberList.h"
#include "selection/TimeRange.h"

namespace plot3d::program {
namespace {

constexpr const char* selectionGroup = "Selection";

std::vector<std::size_t> indicesTo(std::size_t count) {
    std::vector<std::size_t> indices(count);
    std::iota(indices.begin(), indices.end(), std::size_t{0});
    return indices;
}

IndexRange_s rangeOf(const std::string& text) {
    return text.empty() ? IndexRange_s() : parseIndexRange(text);
}

IndexRange_s single(std::int64_t index) {
    return {index, index, 1};
}

std::optional<Box> boxOf(const Extent& size, const IndexRange_s& i, const IndexRange_s& j,
                         const IndexRange_s& k) {
    const auto along = [](const IndexRange_s& range, std::int64_t count) {
        return resolved(range, count);
    };
    const auto iRange = along(i, size.i);
    const auto jRange = along(j, size.j);
    const auto kRange = along(k, size.k);
    if (!iRange || !jRange || !kRange)
        return std::nullopt;
    return Box{*iRange, *jRange, *kRange};
}

} // namespace

void SelectionArguments::declareWithoutBlank(console::OptionTable& table) {
    const console::OptionTable options = table.under(selectionGroup);
    options.text("--variable", variables_, "NAMES",
                 "Variables by name, separated by commas; * and ? stand for any characters and for "
                 "one");
    options.text("--zone", zones_, "LIST", "Zones by number from 1, such as 1,3-5");
    options.text("--time", times_, "TIME",
                 "Solution times: one, a range such as 0.5:2, or first or last");
    options
        .text("--i", i_, "RANGE",
              "Indices along I: FIRST,LAST,STEP from 1, each of which may be left out; -1 is the "
              "last; one number is that index alone")
        .check(parsedBy(parseIndexRange));
    options.text("--j", j_, "RANGE", "Along J, likewise").check(parsedBy(parseIndexRange));
    options.text("--k", k_, "RANGE", "Along K, likewise").check(parsedBy(parseIndexRange));
    options.text("--point", point_, "I,J,K", "One point of each zone, by its indices from 1")
        .check(parsedBy(parsePoint))
        .excludes({"--i", "--j", "--k"});
}

void SelectionArguments::declare(console::OptionTable& table) {
    declareWithoutBlank(table);
    table.under(selectionGroup)
        .text("--blank", blank_, "skip|keep",
              "What becomes of points whose I-blank is 0 (default: skip)");
}

bool SelectionArguments::isEverything() const {
    const std::string* const all[] = {&variables_, &zones_, &times_, &i_, &j_, &k_, &point_};
    return std::all_of(std::begin(all), std::end(all),
                       [](const std::string* text) { return text->empty(); });
}

std::vector<std::size_t> SelectionArguments::variables(const DataSet& data) const {
    if (variables_.empty())
        return indicesTo(data.variables().size());
    std::vector<std::string> names;
    for (const Variable& variable : data.variables())
        names.push_back(variable.name);
    return namesThatMeet(names, variables_);
}

std::vector<std::size_t> SelectionArguments::zonesAtTimes(const DataSet& data) const {
    if (times_.empty())
        return indicesTo(data.zones().size());
    std::vector<double> times;
    for (const TimeStep& step : data.timeSteps())
        times.push_back(step.time);
    std::set<std::size_t> zones;
    for (const std::size_t step : parseTimes(times_, times))
        zones.insert(data.timeSteps()[step].zones.begin(), data.timeSteps()[step].zones.end());
    return {zones.begin(), zones.end()};
}

std::vector<std::size_t> SelectionArguments::zones(const DataSet& data) const {
    const std::vector<std::size_t> seen = zonesAtTimes(data);
    if (zones_.empty())
        return seen;
    const std::vector<std::size_t> named = parseNumberList(zones_, data.zones().size(), "zone");
    std::vector<std::size_t> both;
    std::set_intersection(seen.begin(), seen.end(), named.begin(), named.end(),
                          std::back_inserter(both));
    if (both.empty())
        throw Error(ErrorKind::Usage,
                    fmt::format("none of the zones {} is seen at time {}", zones_, times_));
    return both;
}

std::optional<Box> SelectionArguments::box(const Zone& zone) const {
    if (point_.empty())
        return boxOf(zone.size, rangeOf(i_), rangeOf(j_), rangeOf(k_));
    const auto [i, j, k] = parsePoint(point_);
    return boxOf(zone.size, single(i), single(j), single(k));
}

std::vector<analysis::SelectedZone_s> SelectionArguments::selectedZones(const DataSet& data) const {
    std::vector<analysis::SelectedZone_s> selected;
    for (const std::size_t zone : zones(data))
        if (const auto points = box(data.zones()[zone]))
            selected.push_back({zone, *points});
    if (selected.empty())
        throw Error(ErrorKind::Usage, "no zone holds a point of the indices that are asked for");
    return selected;
}

} // namespace plot3d::program
