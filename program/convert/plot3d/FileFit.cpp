#include "convert/plot3d/FileFit.h"

#include <limits>

#include "convert/contents/StyleForm.h"
#include "convert/output/Refusal.h"

namespace plot3d::program {

namespace {

std::string nameOf(const ContentZone_s& zone) {
    return "zone " + std::to_string(zone.number);
}

std::size_t coordinatesOf(Layout layout) {
    if (layout == Layout::OneD)
        return 1;
    return layout == Layout::TwoD ? 2 : 3;
}

void refuseUnfitVariables(const FilePlan_s& plan) {
    const std::size_t coordinates = coordinatesOf(plan.form.layout);
    const std::size_t count = plan.variables.size();
    if (plan.kind == FileKind::Grid && count != coordinates)
        refuseContents("a grid file in the layout " + wordOf(plan.form.layout) + " has " +
                       std::to_string(coordinates) + " coordinates, and there are " +
                       std::to_string(count));
    // Density and energy stand on either side of the momentum.
    const bool isFixed = styleForm(plan.style).variableCount == VariableCount_e::OfLayout;
    if (plan.kind == FileKind::Solution && isFixed && count != coordinates + 2)
        refuseContents("a solution file in the layout " + wordOf(plan.form.layout) + " has " +
                       std::to_string(coordinates + 2) + " variables, and there are " +
                       std::to_string(count));
}

void refuseUnfitShape(const ContentZone_s& zone, Layout layout) {
    const bool isUnstructured = zone.kind != ZoneKind::Ordered;
    if (isUnstructured != (layout == Layout::Unstructured))
        refuseContents(nameOf(zone) + " does not fit the layout " + wordOf(layout));
    if (zone.kind == ZoneKind::Quadrilaterals || zone.kind == ZoneKind::Bricks)
        refuseContents(nameOf(zone) + " has elements that PLOT3D has no place for");
    if ((layout == Layout::OneD && zone.size.j * zone.size.k != 1) ||
        (layout == Layout::TwoD && zone.size.k != 1))
        refuseContents(nameOf(zone) + " has more directions than the layout " + wordOf(layout));
    constexpr std::int64_t largest = std::numeric_limits<std::int32_t>::max();
    if (zone.size.i > largest || zone.size.j > largest || zone.size.k > largest ||
        zone.elementCount > largest)
        refuseContents(nameOf(zone) + " is too large for the 32-bit integers of PLOT3D");
}

void refuseMissingFields(const Contents& contents, const FilePlan_s& plan, std::size_t zone) {
    std::vector<std::size_t> needed = plan.variables;
    if (plan.iBlank)
        needed.push_back(*plan.iBlank);
    for (const std::size_t variable : needed)
        if (!contents.type(zone, variable))
            refuseContents(nameOf(contents.zones()[zone]) + " has no values of \"" +
                               contents.variables()[variable].name +
                               "\", which a PLOT3D file needs",
                           "leave the zone or the variable out with --zone or --variable");
}

} // namespace

std::string wordOf(Layout layout) {
    switch (layout) {
    case Layout::OneD:
        return "1d";
    case Layout::TwoD:
        return "2d";
    case Layout::ThreeDWhole:
        return "3d-whole";
    case Layout::ThreeDPlanes:
        return "3d-planes";
    case Layout::Unstructured:
        return "unstructured";
    }
    return "";
}

void refuseUnfit(const Contents& contents, const FilePlan_s& plan) {
    if (!plan.form.multiGrid && plan.zones.size() > 1)
        refuseContents("a file without a count of grids holds one grid, and there are " +
                           std::to_string(plan.zones.size()) + " zones at one time",
                       "choose one with --zone");
    if (plan.form.multiGrid && plan.form.layout == Layout::OneD)
        refuseContents("a 1-D file has one grid and no count of grids");
    refuseUnfitVariables(plan);
    for (const std::size_t zone : plan.zones) {
        refuseUnfitShape(contents.zones()[zone], plan.form.layout);
        refuseMissingFields(contents, plan, zone);
    }
}

} // namespace plot3d::program
