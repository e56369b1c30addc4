#include "surfaces/PatchReads.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <plot3d/FieldReader.h>

namespace plot3d::scene {

namespace {

constexpr std::int64_t bytesPerPiece = std::int64_t{16} << 20;

std::array<Range, 3> rangesOf(const Box& box) {
    return {box.i, box.j, box.k};
}

/// Patches that one box read gives: planes of one direction, evenly apart.
struct Group_s {
    std::size_t axis = 2;
    Box box;
    std::vector<Patch_s> patches; // by their planes
};

/// The direction in which the patch has one index of several; K of others.
std::size_t axisOf(const Patch_s& patch, const Extent& size) {
    const std::array<std::int64_t, 3> sizes = {size.i, size.j, size.k};
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (rangesOf(patch.box)[axis].count() == 1 && sizes[axis] > 1)
            return axis;
    return 2;
}

/// Groups of all patches. Planes of constant K lie in one piece each and need no company.
std::vector<Group_s> groupsOf(const std::vector<Patch_s>& patches, const Extent& size) {
    std::vector<Group_s> groups;
    for (const Patch_s& patch : patches) {
        const std::size_t axis = axisOf(patch, size);
        const auto open = std::find_if(groups.begin(), groups.end(), [&](const Group_s& group) {
            return axis < 2 && group.axis == axis && group.patches.size() == 1 &&
                   rangesOf(group.box)[axis].first < rangesOf(patch.box)[axis].first;
        });
        if (open == groups.end()) {
            groups.push_back({axis, patch.box, {patch}});
            continue;
        }
        Range& planes = axis == 0 ? open->box.i : open->box.j;
        planes.last = rangesOf(patch.box)[axis].first;
        planes.step = planes.last - planes.first;
        open->patches.push_back(patch);
    }
    return groups;
}

/// A part of a group's box: some of its K planes, or of its rows where it has one plane.
std::vector<Box> partsOf(const Group_s& group, const Extent& size, std::int64_t width) {
    const bool hasPlanes = group.box.k.count() > 1;
    const Range& whole = hasPlanes ? group.box.k : group.box.j;
    const std::int64_t bytesEach = size.i * width * (hasPlanes ? size.j : 1);
    const std::int64_t most = std::max<std::int64_t>(1, bytesPerPiece / bytesEach);
    if (whole.step != 1 || whole.count() <= most)
        return {group.box};
    std::vector<Box> parts;
    for (std::int64_t first = whole.first; first <= whole.last; first += most) {
        Box part = group.box;
        Range& some = hasPlanes ? part.k : part.j;
        some.first = first;
        some.last = std::min(first + most - 1, whole.last);
        parts.push_back(part);
    }
    return parts;
}

/// Puts the values of a part where its patches have them.
void scatter(const Group_s& group, const Box& part, const double* values,
             const Destination_s& destination) {
    for (std::int64_t k = 0; k < part.k.count(); ++k)
        for (std::int64_t j = 0; j < part.j.count(); ++j)
            for (std::int64_t i = 0; i < part.i.count(); ++i) {
                const std::array<std::int64_t, 3> place = {i, j, k};
                const std::size_t plane =
                    group.patches.size() == 1 ? 0 : static_cast<std::size_t>(place[group.axis]);
                const Patch_s& patch = group.patches[plane];
                const Extent size = patch.box.extent();
                const std::int64_t pi = part.i.first + i * part.i.step - patch.box.i.first;
                const std::int64_t pj = part.j.first + j * part.j.step - patch.box.j.first;
                const std::int64_t pk = part.k.first + k * part.k.step - patch.box.k.first;
                const std::int64_t point = patch.firstPoint + (pk * size.j + pj) * size.i + pi;
                destination.values[static_cast<std::size_t>(point) * destination.stride] =
                    *values++;
            }
}

} // namespace

void addFieldReads(Pieces& pieces, const DataSet& data, std::size_t zone, std::size_t variable,
                   const std::vector<Patch_s>& patches, Destination_s destination) {
    const Extent size = data.zones()[zone].size;
    const std::int64_t bytes = width(data.type(zone, variable));
    for (Group_s& group : groupsOf(patches, size))
        for (const Box& part : partsOf(group, size, bytes))
            pieces.push_back(
                [&data, zone, variable, group, part, destination](const std::stop_token& stop) {
                    std::vector<double> values(static_cast<std::size_t>(part.count()));
                    data.reader(zone, variable).readAsDouble(part, values.data(), stop);
                    scatter(group, part, values.data(), destination);
                });
}

void addDerivedReads(Pieces& pieces, const DataSet& data, std::size_t zone,
                     const DerivedQuantity& quantity, const Gas& gas,
                     const std::vector<Patch_s>& patches, Destination_s destination) {
    for (Group_s& group : groupsOf(patches, data.zones()[zone].size))
        pieces.push_back(
            [&data, zone, &quantity, gas, group, destination](const std::stop_token& stop) {
                const auto values = lengthsOf(derive(data, zone, quantity, group.box, gas, stop));
                scatter(group, group.box, values.data(), destination);
            });
}

std::vector<double> lengthsOf(std::vector<std::vector<double>> components) {
    std::vector<double>& first = components.front();
    if (components.size() == 3)
        for (std::size_t point = 0; point < first.size(); ++point)
            first[point] = std::hypot(first[point], components[1][point], components[2][point]);
    return std::move(first);
}

} // namespace plot3d::scene
