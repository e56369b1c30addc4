#include "convert/contents/DataSetContents.h"

#include <algorithm>
#include <utility>

#include <plot3d/Error.h>

#include "convert/contents/VariableRoles.h"

namespace plot3d::program {

namespace {

/// The indices of `inner`, which counts within `outer`, in what `outer` counts in.
Range within(const Range& outer, const Range& inner) {
    return {outer.first + inner.first * outer.step, outer.first + inner.last * outer.step,
            outer.step * inner.step};
}

Box within(const Box& outer, const Box& inner) {
    return {within(outer.i, inner.i), within(outer.j, inner.j), within(outer.k, inner.k)};
}

bool isOfGrid(const ContentVariable_s& variable) {
    return variable.role == Role_e::Coordinate || variable.role == Role_e::IBlank;
}

[[noreturn]] void refuse(const std::string& message) {
    throw Error(ErrorKind::Unsupported, message);
}

} // namespace

DataSetContents::DataSetContents(const DataSet& data, const ContentSelection_s& selection,
                                 const SourceFacts_s& facts, Watch watch)
    : data_(data), facts_(facts), gas_(selection.gas), watch_(std::move(watch)) {
    addVariables(selection);
    addZones(selection);
    addSteps();
    for (const DerivedQuantity* quantity : selection.derived)
        addDerived(*quantity);
    countBytes();
}

void DataSetContents::addVariables(const ContentSelection_s& selection) {
    const std::vector<ContentVariable_s> all = variableRoles(data_, facts_);
    for (std::size_t variable = 0; variable < all.size(); ++variable) {
        const bool isSelected =
            std::binary_search(selection.variables.begin(), selection.variables.end(), variable);
        if (!isSelected && !(selection.keepsGrid && isOfGrid(all[variable])))
            continue;
        variables_.push_back(all[variable]);
        origins_.push_back({variable, nullptr, 0});
    }
    keepSolutionWhole(variables_, all);
}

void DataSetContents::addDerived(const DerivedQuantity& quantity) {
    std::string reason;
    const bool canAnywhere =
        std::any_of(zones_.begin(), zones_.end(), [&](const ContentZone_s& zone) {
            return canDerive(data_, static_cast<std::size_t>(zone.number - 1), quantity, reason);
        });
    if (!canAnywhere)
        refuse(quantity.name + " can't be derived: " + reason);
    for (std::size_t component = 0; component < quantity.components.size(); ++component) {
        variables_.push_back({quantity.components[component], Role_e::Function, placeOfDerived});
        origins_.push_back({0, &quantity, component});
    }
}

void DataSetContents::addZones(const ContentSelection_s& selection) {
    for (const analysis::SelectedZone_s& selected : selection.zones) {
        const Zone& zone = data_.zones()[selected.zone];
        if (zone.kind != ZoneKind::Ordered && selected.box != Box::whole(zone.size))
            refuse("zone " + std::to_string(selected.zone + 1) +
                   " is unstructured: its elements can't be cut by --i or --point");
        ContentZone_s content;
        content.number = static_cast<std::int64_t>(selected.zone) + 1;
        content.name = zone.name;
        content.kind = zone.kind;
        content.size = selected.box.extent();
        content.elementCount = zone.elementCount;
        content.box = selected.box;
        content.time = zone.time;
        content.strand = zone.strand;
        content.isBoundary = zone.parent.has_value();
        content.auxiliaryData = zone.auxiliaryData;
        if (selected.zone < facts_.zoneFiles.size())
            content.fileStep = facts_.zoneFiles[selected.zone];
        if (selected.zone < facts_.zoneScalars.size())
            content.scalars = facts_.zoneScalars[selected.zone];
        zones_.push_back(content);
    }
}

void DataSetContents::addSteps() {
    std::map<std::size_t, std::size_t> placeOf;
    for (std::size_t place = 0; place < zones_.size(); ++place)
        placeOf[static_cast<std::size_t>(zones_[place].number - 1)] = place;
    for (const TimeStep& step : data_.timeSteps()) {
        TimeStep kept;
        kept.time = step.time;
        for (const std::size_t zone : step.zones)
            if (const auto found = placeOf.find(zone); found != placeOf.end())
                kept.zones.push_back(found->second);
        steps_.push_back(kept);
    }
    dropUnselectedSteps();
}

/// Times of which nothing was selected but what is seen at all times; one of these is left if there
/// is nothing else.
void DataSetContents::dropUnselectedSteps() {
    const auto hasOwnZones = [this](const TimeStep& step) {
        return std::any_of(step.zones.begin(), step.zones.end(),
                           [this](std::size_t zone) { return zones_[zone].strand != 0; });
    };
    if (std::any_of(steps_.begin(), steps_.end(), hasOwnZones))
        std::erase_if(steps_, [&](const TimeStep& step) { return !hasOwnZones(step); });
    else
        steps_.resize(1);
}

void DataSetContents::countBytes() {
    for (std::size_t zone = 0; zone < zones_.size(); ++zone)
        for (std::size_t variable = 0; variable < variables_.size(); ++variable)
            if (const std::optional<ValueType> valueType = type(zone, variable))
                bytesToRead_ += zones_[zone].size.count() * width(*valueType);
}

std::optional<ValueType> DataSetContents::type(std::size_t zone, std::size_t variable) const {
    const Origin_s& origin = origins_[variable];
    const auto dataZone = static_cast<std::size_t>(zones_[zone].number - 1);
    if (origin.derived != nullptr) {
        std::string reason;
        return canDerive(data_, dataZone, *origin.derived, reason)
                   ? std::optional(ValueType::Float64)
                   : std::nullopt;
    }
    if (data_.kind(dataZone, origin.variable) == FieldKind::Empty)
        return std::nullopt;
    return data_.type(dataZone, origin.variable);
}

std::size_t DataSetContents::holder(std::size_t zone, std::size_t variable) const {
    const Origin_s& origin = origins_[variable];
    if (origin.derived != nullptr)
        return zone;
    const auto holderOf = [&](std::size_t place) {
        return data_.holder(static_cast<std::size_t>(zones_[place].number - 1), origin.variable);
    };
    const std::size_t wanted = holderOf(zone);
    // Zones come in the order of the data set, and the first that has the field is its holder,
    // unless that one was not selected.
    for (std::size_t place = 0; place < zone; ++place)
        if (static_cast<std::size_t>(zones_[place].number - 1) >= wanted &&
            holderOf(place) == wanted && zones_[place].box == zones_[zone].box)
            return place;
    return zone;
}

void DataSetContents::read(std::size_t zone, std::size_t variable, const Box& box,
                           void* destination) {
    if (watch_.stop.stop_requested())
        throw Error(ErrorKind::Interrupted, "interrupted");
    const Box dataBox = within(zones_[zone].box, box);
    const Origin_s& origin = origins_[variable];
    if (origin.derived != nullptr)
        readDerived(zone, origin, dataBox, static_cast<double*>(destination));
    else
        reader(zone, origin.variable).read(dataBox, destination, watch_.stop);
    tellProgress(box.count() * width(*type(zone, variable)));
}

const FieldReader& DataSetContents::reader(std::size_t zone, std::size_t variable) {
    if (zone != std::exchange(readersZone_, zone))
        readers_.clear();
    const auto found = readers_.find(variable);
    if (found != readers_.end())
        return found->second;
    const auto dataZone = static_cast<std::size_t>(zones_[zone].number - 1);
    return readers_.emplace(variable, data_.reader(dataZone, variable)).first->second;
}

void DataSetContents::readDerived(std::size_t zone, const Origin_s& origin, const Box& box,
                                  double* destination) {
    const auto dataZone = static_cast<std::size_t>(zones_[zone].number - 1);
    if (derived_.quantity != origin.derived || derived_.zone != zone)
        derived_ = {zone, origin.derived,
                    derive(data_, dataZone, *origin.derived, gas_, watch_.stop)};
    const std::vector<double>& values = derived_.values[origin.component];
    const Extent& size = data_.zones()[dataZone].size;
    for (std::int64_t k = box.k.first; k <= box.k.last; k += box.k.step)
        for (std::int64_t j = box.j.first; j <= box.j.last; j += box.j.step)
            for (std::int64_t i = box.i.first; i <= box.i.last; i += box.i.step)
                *destination++ = values[static_cast<std::size_t>((k * size.j + j) * size.i + i)];
}

void DataSetContents::tellProgress(std::int64_t byteCount) {
    bytesRead_ += byteCount;
    if (!watch_.progress)
        return;
    const double fraction =
        std::min(1.0, static_cast<double>(bytesRead_) / static_cast<double>(bytesToRead_));
    watch_.progress({"converting", fraction, bytesRead_});
}

std::vector<std::int32_t> DataSetContents::nodeMap(std::size_t zone) const {
    return data_.nodeMap(static_cast<std::size_t>(zones_[zone].number - 1));
}

} // namespace plot3d::program
