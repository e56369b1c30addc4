#include "convert/cgns/CgnsFile.h"

#include <algorithm>
#include <utility>

#include <hdf5.h>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace {

constexpr std::size_t pointerLength = 32;

DataType_t typeOf(ValueType type) {
    switch (type) {
    case ValueType::Float32:
        return RealSingle;
    case ValueType::Float64:
        return RealDouble;
    case ValueType::Int32:
        return Integer;
    }
    return DataTypeNull;
}

ElementType_t elementOf(ZoneKind kind) {
    switch (kind) {
    case ZoneKind::Triangles:
        return TRI_3;
    case ZoneKind::Quadrilaterals:
        return QUAD_4;
    case ZoneKind::Tetrahedra:
        return TETRA_4;
    case ZoneKind::Bricks:
        return HEXA_8;
    case ZoneKind::Ordered:
        break;
    }
    return ElementTypeNull;
}

std::string padded(std::string name) {
    name.resize(pointerLength, ' ');
    return name;
}

} // namespace

CgnsFile::CgnsFile(const std::string& path, std::string shownName)
    : shownName_(std::move(shownName)) {
    // At the program's end the library would go over a file that a full disk left open, and crash.
    // Whatever is written is closed before.
    static_cast<void>(H5dont_atexit()); // says no if it was asked before
    check(cg_set_file_type(CG_FILE_HDF5));
    check(cg_open(path.c_str(), CG_MODE_WRITE, &file_));
    isOpen_ = true;
}

CgnsFile::~CgnsFile() {
    if (isOpen_)
        cg_close(file_); // what was not finished is thrown away by its owner
}

void CgnsFile::check(int code) const {
    if (code == CG_OK)
        return;
    ErrorFacts facts;
    facts.file = shownName_;
    throw Error(ErrorKind::Refused, std::string("the file can't be written: ") + cg_get_error(),
                std::move(facts));
}

int CgnsFile::addBase(const std::string& name, int cellDimension, int spaceDimension) {
    int base = 0;
    check(cg_base_write(file_, name.c_str(), cellDimension, spaceDimension, &base));
    check(cg_simulation_type_write(file_, base, TimeAccurate));
    return base;
}

CgnsZone_s CgnsFile::addZone(int base, const std::string& name, ZoneKind kind, const Extent& size,
                             std::int64_t elementCount, int directions) {
    const bool isOrdered = kind == ZoneKind::Ordered;
    CgnsZone_s zone = {base, 0, isOrdered ? directions : 1};
    const std::array<std::int64_t, 3> points = {size.i, size.j, size.k};
    std::vector<cgsize_t> sizes; // vertices, cells, vertices on the boundary
    for (int place = 0; place < zone.directions; ++place)
        sizes.push_back(static_cast<cgsize_t>(points[static_cast<std::size_t>(place)]));
    for (int place = 0; place < zone.directions; ++place)
        sizes.push_back(isOrdered ? sizes[static_cast<std::size_t>(place)] - 1
                                  : static_cast<cgsize_t>(elementCount));
    sizes.resize(3 * static_cast<std::size_t>(zone.directions), 0);
    check(cg_zone_write(file_, base, name.c_str(), sizes.data(),
                        isOrdered ? Structured : Unstructured, &zone.zone));
    return zone;
}

void CgnsFile::addElements(const CgnsZone_s& zone, ZoneKind kind, std::int64_t elementCount,
                           const std::vector<std::int32_t>& corners) {
    std::vector<cgsize_t> nodes(corners.begin(), corners.end());
    for (cgsize_t& node : nodes)
        ++node;
    int section = 0;
    check(cg_section_write(file_, zone.base, zone.zone, "Elements", elementOf(kind), 1,
                           static_cast<cgsize_t>(elementCount), 0, nodes.data(), &section));
}

void CgnsFile::addGrid(const CgnsZone_s& zone, const std::string& name) {
    int grid = 0;
    check(cg_grid_write(file_, zone.base, zone.zone, name.c_str(), &grid));
}

int CgnsFile::addSolution(const CgnsZone_s& zone, const std::string& name) {
    int solution = 0;
    check(cg_sol_write(file_, zone.base, zone.zone, name.c_str(), Vertex, &solution));
    return solution;
}

CgnsFile::Sizes CgnsFile::firstOf(const Box& box) {
    return {static_cast<cgsize_t>(box.i.first + 1), static_cast<cgsize_t>(box.j.first + 1),
            static_cast<cgsize_t>(box.k.first + 1)};
}

CgnsFile::Sizes CgnsFile::lastOf(const Box& box) {
    return {static_cast<cgsize_t>(box.i.last + 1), static_cast<cgsize_t>(box.j.last + 1),
            static_cast<cgsize_t>(box.k.last + 1)};
}

void CgnsFile::putCoordinate(const CgnsZone_s& zone, const std::string& name, ValueType type,
                             const Box& box, const void* values) {
    int coordinate = 0;
    check(cg_coord_partial_write(file_, zone.base, zone.zone, typeOf(type), name.c_str(),
                                 firstOf(box).data(), lastOf(box).data(), values, &coordinate));
}

void CgnsFile::putWholeCoordinate(const CgnsZone_s& zone, int grid, const std::string& name,
                                  ValueType type, const Extent& size, const void* values) {
    check(cg_goto(file_, zone.base, "Zone_t", zone.zone, "GridCoordinates_t", grid, "end"));
    const Sizes sizes = lastOf(Box::whole(size));
    check(cg_array_write(name.c_str(), typeOf(type), zone.directions, sizes.data(), values));
}

void CgnsFile::putField(const CgnsZone_s& zone, int solution, const std::string& name,
                        ValueType type, const Box& box, const void* values) {
    int field = 0;
    check(cg_field_partial_write(file_, zone.base, zone.zone, solution, typeOf(type), name.c_str(),
                                 firstOf(box).data(), lastOf(box).data(), values, &field));
}

void CgnsFile::putTimes(int base, const std::vector<double>& times) {
    const auto count = static_cast<cgsize_t>(times.size());
    check(cg_biter_write(file_, base, "BaseIterativeData", count));
    check(cg_goto(file_, base, "BaseIterativeData_t", 1, "end"));
    check(cg_array_write("TimeValues", RealDouble, 1, &count, times.data()));
}

void CgnsFile::putZoneLists(int base, const std::vector<std::vector<std::string>>& zones) {
    std::size_t most = 1;
    for (const std::vector<std::string>& names : zones)
        most = std::max(most, names.size());
    std::vector<int> counts;
    std::string text;
    for (std::vector<std::string> names : zones) {
        counts.push_back(static_cast<int>(names.size()));
        names.resize(most, "Null");
        for (const std::string& name : names)
            text += padded(name);
    }
    const std::array<cgsize_t, 3> sizes = {static_cast<cgsize_t>(pointerLength),
                                           static_cast<cgsize_t>(most),
                                           static_cast<cgsize_t>(zones.size())};
    check(cg_goto(file_, base, "BaseIterativeData_t", 1, "end"));
    check(cg_array_write("NumberOfZones", Integer, 1, &sizes[2], counts.data()));
    check(cg_array_write("ZonePointers", Character, 3, sizes.data(), text.data()));
}

void CgnsFile::putPointers(
    const CgnsZone_s& zone,
    const std::vector<std::pair<std::string, std::vector<std::string>>>& lists) {
    check(cg_ziter_write(file_, zone.base, zone.zone, "ZoneIterativeData"));
    for (const auto& [name, nodes] : lists) {
        std::string text;
        for (const std::string& node : nodes)
            text += padded(node);
        const std::array<cgsize_t, 2> sizes = {static_cast<cgsize_t>(pointerLength),
                                               static_cast<cgsize_t>(nodes.size())};
        check(cg_goto(file_, zone.base, "Zone_t", zone.zone, "ZoneIterativeData_t", 1, "end"));
        check(cg_array_write(name.c_str(), Character, 2, sizes.data(), text.data()));
    }
}

void CgnsFile::finish() {
    isOpen_ = false;
    check(cg_close(file_));
}

} // namespace plot3d::program
