#include "index/contents/IndexedData.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string_view>
#include <utility>

#include <fmt/core.h>

#include <plot3d/Error.h>
#include <plot3d/FileInfo.h>

#include "analysis/fields/IBlank.h"
#include "index/contents/Refusal.h"
#include "selection/Selection.h"

namespace plot3d::program {

namespace {

std::string numbered(std::size_t zone) {
    return "zone " + std::to_string(zone + 1);
}

/// Why the values of a data set were read when it was opened, by the first file that is the reason.
[[noreturn]] void refuseReadValues(const DataSet& data) {
    InspectOptions options;
    options.trials = false;
    const FileLists& lists = data.files();
    for (const auto* files : {&lists.grid, &lists.solution, &lists.function})
        for (const std::string& file : *files) {
            const FileInfo info = inspect(file, options);
            if (info.encoding == Encoding::Text)
                refuseIndex("is text, of which no other program can read the values in their place",
                            file);
            if (info.layout == Layout::ThreeDPlanes)
                refuseIndex("has its fields in planes, which no index can tell", file);
        }
    refuseIndex(
        "fields that stand in planes, or of which only a subset is loaded, are in no file as "
        "they are");
}

} // namespace

IndexedData::IndexedData(const DataSet& data, const std::vector<std::size_t>& variables,
                         const std::vector<analysis::SelectedZone_s>& zones)
    : data_(data) {
    for (const analysis::SelectedZone_s& selected : zones) {
        if (selected.box != Box::whole(zone(selected.zone).size))
            refuseIndex("an index tells of whole zones, and of " + numbered(selected.zone) +
                        " only some points are selected");
        zones_.push_back(selected.zone);
    }
    addVariables(variables);
    addSteps();
    addSeries();
}

void IndexedData::addVariables(const std::vector<std::size_t>& selected) {
    constexpr std::array<std::string_view, 3> coordinates = {"X", "Y", "Z"};
    const bool hasGrid = !data_.files().grid.empty();
    const std::optional<std::size_t> iBlank =
        hasGrid ? analysis::iBlankVariable(data_) : std::nullopt;
    const auto dimensions = static_cast<std::size_t>(data_.dimensions());
    for (std::size_t index = 0; index < data_.variables().size(); ++index) {
        IndexedVariable_s variable = {index, data_.variables()[index].name, {}, iBlank == index};
        if (hasGrid && index < dimensions && variable.name == coordinates[index])
            variable.coordinate = static_cast<int>(index);
        if (variable.coordinate)
            ++coordinateCount_;
        if (variable.coordinate || variable.isIBlank ||
            std::binary_search(selected.begin(), selected.end(), index))
            variables_.push_back(variable);
    }
}

void IndexedData::refuseTimesThatAreNotFinite() const {
    for (const TimeStep& step : steps_)
        if (steps_.size() > 1 && !std::isfinite(step.time))
            refuseIndex(fmt::format("one of the {} times is {}, which readers of this format don't "
                                    "know",
                                    steps_.size(), step.time));
}

void IndexedData::addSteps() {
    for (const TimeStep& step : data_.timeSteps()) {
        TimeStep kept = {step.time, {}};
        std::set_intersection(step.zones.begin(), step.zones.end(), zones_.begin(), zones_.end(),
                              std::back_inserter(kept.zones));
        steps_.push_back(std::move(kept));
    }
    const auto hasOwnZones = [this](const TimeStep& step) {
        return std::any_of(step.zones.begin(), step.zones.end(),
                           [this](std::size_t index) { return zone(index).strand != 0; });
    };
    if (std::any_of(steps_.begin(), steps_.end(), hasOwnZones))
        std::erase_if(steps_, [&](const TimeStep& step) { return !hasOwnZones(step); });
    else
        steps_.resize(1);
}

/// False if some grid is not there in one size at all times.
bool IndexedData::followStrands() {
    std::map<std::int32_t, std::size_t> placeOf;
    for (const TimeStep& step : steps_)
        for (const std::size_t index : step.zones) {
            if (zone(index).strand == 0)
                continue;
            const auto [found, isNew] = placeOf.try_emplace(zone(index).strand, series_.size());
            if (isNew)
                series_.push_back({{}, false});
            Series_s& series = series_[found->second];
            const Zone& first = zone(isNew ? index : series.zones.front());
            if (zone(index).size != first.size || zone(index).elementCount != first.elementCount)
                return false;
            series.zones.push_back(index);
        }
    return std::all_of(series_.begin(), series_.end(), [this](const Series_s& series) {
        return series.zones.size() == steps_.size();
    });
}

void IndexedData::addSeries() {
    isBroken_ = !followStrands();
    if (isBroken_)
        series_.clear();
    for (const std::size_t index : zones_)
        if (isBroken_ || zone(index).strand == 0)
            series_.push_back({{index}, zone(index).strand == 0});
    std::stable_sort(series_.begin(), series_.end(), [](const Series_s& a, const Series_s& b) {
        return a.zones.front() < b.zones.front();
    });
}

bool IndexedData::has(std::size_t zone, std::size_t variable) const {
    return data_.kind(zone, variable) != FieldKind::Empty;
}

void IndexedData::refuseFieldsOutsideFiles() const {
    for (const std::size_t index : zones_)
        for (const IndexedVariable_s& variable : variables_)
            switch (data_.kind(index, variable.variable)) {
            case FieldKind::Empty:
            case FieldKind::InFile:
                break;
            case FieldKind::PartOf:
                throw Error(ErrorKind::Unsupported,
                            numbered(index) + " is a boundary, a part of another zone",
                            {.next = "the same with --no-boundaries"});
            case FieldKind::AtHost:
                throw Error(ErrorKind::Unsupported,
                            "where another add-on's fields lie is not known: an index is made "
                            "without --addon",
                            {.next = "plot3d convert, which copies the values"});
            case FieldKind::InMemory:
                refuseReadValues(data_);
            }
}

void IndexedData::refuseMissingCoordinates() const {
    for (const std::size_t index : zones_)
        for (const IndexedVariable_s& variable : variables_)
            if (variable.coordinate && !has(index, variable.variable))
                refuseIndex(numbered(index) + " has no coordinates");
    if (coordinateCount_ == 0)
        refuseIndex("there is no grid file, and this format tells of values at points");
}

} // namespace plot3d::program
