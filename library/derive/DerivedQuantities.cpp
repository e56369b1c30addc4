#include <plot3d/Derived.h>

#include <algorithm>
#include <cctype>

#include <plot3d/Error.h>

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
    reason = plot3dlib::whatIsMissing(data, zone, formulaOf(quantity).needs);
    return reason.empty();
}

std::vector<std::vector<double>> derive(const DataSet& data, std::size_t zone,
                                        const DerivedQuantity& quantity, const Gas& gas,
                                        std::stop_token stop) {
    std::string reason;
    if (!canDerive(data, zone, quantity, reason))
        throw Error(ErrorKind::Unsupported, quantity.name + " can't be computed: " + reason);
    const plot3dlib::FlowQuantity_s& formula = formulaOf(quantity);
    const plot3dlib::ZoneFlow values(data, zone, formula.needs, gas, stop);
    return formula.compute(values.flow(), values.constants(), stop);
}

} // namespace plot3d
