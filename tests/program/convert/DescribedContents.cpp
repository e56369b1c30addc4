#include "program/convert/DescribedContents.h"

#include <utility>

#include <plot3d/Error.h>

namespace quorvia::testsupport {

using namespace plot3d;
using namespace plot3d::program;
using plot3dwriter::FileDescription_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::GridDims_s;
using plot3dwriter::Layout_e;

DescribedContents::DescribedContents(FileDescription_s grid, std::optional<FileDescription_s> other,
                                     ValueType type)
    : grid_(std::move(grid)), other_(std::move(other)), type_(type) {
    addVariables();
    addZones();
}

void DescribedContents::addVariables() {
    for (int place = 0; place < plot3dwriter::variableCount(grid_); ++place)
        variables_.push_back(
            {std::string(1, static_cast<char>('X' + place)), Role_e::Coordinate, place});
    if (grid_.hasIBlank)
        variables_.push_back({"IBlank", Role_e::IBlank, 0});
    const Role_e role =
        other_ && other_->kind == FileKind_e::Function ? Role_e::Function : Role_e::Solution;
    for (int place = 1; other_ && place <= plot3dwriter::variableCount(*other_); ++place)
        variables_.push_back({"V" + std::to_string(place), role, 0});
}

void DescribedContents::nameFunctions(const std::string& name) {
    for (ContentVariable_s& variable : variables_)
        if (variable.role == Role_e::Function)
            variable.name = name;
}

void DescribedContents::addZones() {
    steps_.emplace_back();
    for (std::size_t index = 0; index < grid_.grids.size(); ++index) {
        const GridDims_s& dims = grid_.grids[index];
        ContentZone_s zone;
        zone.number = static_cast<std::int64_t>(index) + 1;
        zone.name = "zone " + std::to_string(zone.number);
        zone.size = {dims.i, dims.j, dims.k};
        if (grid_.layout == Layout_e::Unstructured) {
            zone.kind = dims.j > 0 ? ZoneKind::Triangles : ZoneKind::Tetrahedra;
            zone.size = {dims.i, 1, 1};
            zone.elementCount = dims.j + dims.k;
        }
        zone.box = Box::whole(zone.size);
        if (other_ && !other_->scalars.empty())
            zone.scalars = other_->scalars[index];
        zones_.push_back(zone);
        steps_.front().zones.push_back(index);
    }
}

int DescribedContents::dimensions() const {
    if (grid_.layout == Layout_e::OneD)
        return 1;
    return grid_.layout == Layout_e::TwoD ? 2 : 3;
}

Style DescribedContents::style() const {
    if (other_ && other_->kind == FileKind_e::SwiftSolution)
        return Style::Swift;
    return other_ && other_->kind == FileKind_e::OverflowSolution ? Style::Overflow
                                                                  : Style::Classic;
}

std::optional<ValueType> DescribedContents::type(std::size_t, std::size_t variable) const {
    return variables_[variable].role == Role_e::IBlank ? ValueType::Int32 : type_;
}

double DescribedContents::value(std::size_t zone, std::size_t variable, std::int64_t i,
                                std::int64_t j, std::int64_t k) const {
    const bool isOfGrid = variables_[variable].role == Role_e::Coordinate;
    const std::size_t ofGrid =
        static_cast<std::size_t>(plot3dwriter::variableCount(grid_)) + (grid_.hasIBlank ? 1 : 0);
    const FileDescription_s& file = isOfGrid ? grid_ : *other_;
    return file.value(static_cast<std::int32_t>(zone),
                      static_cast<std::int32_t>(isOfGrid ? variable : variable - ofGrid),
                      static_cast<std::int32_t>(i), static_cast<std::int32_t>(j),
                      static_cast<std::int32_t>(k));
}

void DescribedContents::read(std::size_t zone, std::size_t variable, const Box& box,
                             void* destination) {
    if (++reads_ >= failingRead && failingRead > 0)
        throw Error(ErrorKind::Unreadable, "a read failed");
    std::size_t index = 0;
    for (std::int64_t k = box.k.first; k <= box.k.last; ++k)
        for (std::int64_t j = box.j.first; j <= box.j.last; ++j)
            for (std::int64_t i = box.i.first; i <= box.i.last; ++i, ++index) {
                if (variables_[variable].role == Role_e::IBlank) {
                    static_cast<std::int32_t*>(destination)[index] =
                        grid_.iblank(static_cast<std::int32_t>(zone), static_cast<std::int32_t>(i),
                                     static_cast<std::int32_t>(j), static_cast<std::int32_t>(k));
                    continue;
                }
                const double real = everyValue ? *everyValue : value(zone, variable, i, j, k);
                if (type_ == ValueType::Float64)
                    static_cast<double*>(destination)[index] = real;
                else
                    static_cast<float*>(destination)[index] = static_cast<float>(real);
            }
}

std::vector<std::int32_t> DescribedContents::nodeMap(std::size_t zone) const {
    std::vector<std::int32_t> nodes;
    for (std::int64_t element = 0; element < zones_[zone].elementCount; ++element)
        for (std::int32_t corner = 0; corner < cornerCount(zones_[zone].kind); ++corner)
            nodes.push_back(grid_.corner(static_cast<std::int32_t>(zone), element, corner) - 1);
    return nodes;
}

} // namespace quorvia::testsupport
