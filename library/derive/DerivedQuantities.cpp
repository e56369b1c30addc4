#include <plot3d/Derived.h>

#include <algorithm>
#include <cctype>
#include <optional>
#include <utility>

#include <plot3d/Error.h>

#include "derive/FlowRegion.h"
#include "derive/FlowVariables.h"
#include "derive/ZoneFlow.h"
#include "flow/FlowQuantities.h"

namespace plot3d {

namespace {

bool areAlike(std::string_view a, std::string_view b) {
    const auto lower = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

const plot3dlib::FlowQuantity_s& formulaOf(const DerivedQuantity& quantity) {
    for (const plot3dlib::FlowQuantity_s& formula : plot3dlib::flowQuantities())
        if (formula.number == quantity.number)
            return formula;
    throw Error(ErrorKind::Usage, "there is no quantity of this number",
                {{}, {}, {}, std::to_string(quantity.number), {}});
}

void requireZone(const DataSet& data, std::size_t zone) {
    if (zone >= data.zones().size())
        throw Error(
            ErrorKind::Usage, "there is no zone of this index",
            {{}, {}, "less than " + std::to_string(data.zones().size()), std::to_string(zone), {}});
}

/// Where the values that the formula needs are; empty if points beside the zone's are not known.
std::optional<plot3dlib::FlowRegion_s> regionFor(const DataSet& data, std::size_t zone,
                                                 const Box& box,
                                                 const plot3dlib::FlowQuantity_s& formula) {
    if (!formula.needs.coordinates)
        return plot3dlib::FlowRegion_s{zone, box, Box::whole(box.extent())};
    return regionWithNeighbours(data, zone, box, plot3dlib::flowVariablesOf(data));
}

bool lies(const Range& range, std::int64_t size) {
    return range.step >= 1 && range.first >= 0 && range.first <= range.last && range.last < size;
}

void requireBox(const Box& box, const Extent& size) {
    if (!lies(box.i, size.i) || !lies(box.j, size.j) || !lies(box.k, size.k))
        throw Error(ErrorKind::Usage, "the box leaves the zone, or has no points");
}

} // namespace

const std::vector<DerivedQuantity>& derivedQuantities() {
    static const std::vector<DerivedQuantity> quantities = [] {
        std::vector<DerivedQuantity> all;
        for (const plot3dlib::FlowQuantity_s& formula : plot3dlib::flowQuantities())
            all.push_back({formula.number, formula.word, formula.components});
        return all;
    }();
    return quantities;
}

const DerivedQuantity* findDerivedQuantity(std::string_view wordOrNumber) {
    for (const DerivedQuantity& quantity : derivedQuantities())
        if (areAlike(quantity.name, wordOrNumber) ||
            std::to_string(quantity.number) == wordOrNumber)
            return &quantity;
    return nullptr;
}

bool canDerive(const DataSet& data, std::size_t zone, const DerivedQuantity& quantity,
               std::string& reason) {
    requireZone(data, zone);
    const plot3dlib::FlowQuantity_s& formula = formulaOf(quantity);
    const auto region = regionFor(data, zone, Box::whole(data.zones()[zone].size), formula);
    reason = plot3dlib::whatIsMissing(data, region ? region->zone : zone, formula.needs);
    if (reason.empty() && !region)
        reason = "the points beside this boundary, which derivatives need, are not known";
    return reason.empty();
}

std::vector<std::vector<double>> derive(const DataSet& data, std::size_t zone,
                                        const DerivedQuantity& quantity, const Gas& gas,
                                        std::stop_token stop) {
    requireZone(data, zone);
    return derive(data, zone, quantity, Box::whole(data.zones()[zone].size), gas, stop);
}

std::vector<std::vector<double>> derive(const DataSet& data, std::size_t zone,
                                        const DerivedQuantity& quantity, const Box& box,
                                        const Gas& gas, std::stop_token stop) {
    std::string reason;
    if (!canDerive(data, zone, quantity, reason))
        throw Error(ErrorKind::Unsupported, quantity.name + " can't be computed: " + reason);
    requireBox(box, data.zones()[zone].size);
    const plot3dlib::FlowQuantity_s& formula = formulaOf(quantity);
    const plot3dlib::FlowRegion_s region = *regionFor(data, zone, box, formula);
    const plot3dlib::ZoneFlow values(data, region.zone, region.box, formula.needs, gas, stop);
    plot3dlib::Components components = formula.compute(values.flow(), values.constants(), stop);
    for (std::vector<double>& component : components)
        component = wantedOf(region, std::move(component));
    return components;
}

} // namespace plot3d
