#include "index/cgns/CgnsZone.h"

#include <algorithm>
#include <array>

#include "index/cgns/CgnsPointers.h"
#include "manners/ProgressWatch.h"

namespace plot3d::program {

namespace {

const char* const dataArray = "DataArray_t";

/// The standard's number for the elements of a kind.
std::int32_t elementType(ZoneKind kind) {
    switch (kind) {
    case ZoneKind::Triangles:
        return 5;
    case ZoneKind::Quadrilaterals:
        return 7;
    case ZoneKind::Tetrahedra:
        return 10;
    case ZoneKind::Bricks:
        return 17;
    case ZoneKind::Ordered:
        break;
    }
    return 0;
}

/// The first grid must have the standard's name; solutions go along.
std::string numbered(const std::string& name, std::size_t number) {
    return number == 0 ? name : name + std::to_string(number + 1);
}

} // namespace

CgnsZone::CgnsZone(const IndexedData& data, const std::vector<std::string>& names,
                   Originals& originals, CgnsTree& tree, SharedNodes_s& shared,
                   std::stop_token stop)
    : data_(data), names_(names), originals_(originals), tree_(tree), shared_(shared),
      stop_(std::move(stop)) {}

void CgnsZone::write(const CgnsNode& base, const std::string& name, const Series_s& series,
                     int cellDimension) {
    series_ = &series;
    cellDimension_ = cellDimension;
    const CgnsNode zone = writeZone(base, name);
    const std::vector<std::string> grids = writeGrids(zone);
    const std::vector<std::string> solutions = writeSolutions(zone);
    if (series.zones.size() < 2)
        return;
    const CgnsNode times = tree_.add(zone, "ZoneIterativeData", "ZoneIterativeData_t");
    putPointers(times, "GridCoordinatesPointers", grids);
    if (!solutions.empty())
        putPointers(times, "FlowSolutionPointers", solutions);
}

/// Index dimension by three: points, cells, and zeros.
CgnsNode CgnsZone::writeZone(const CgnsNode& base, const std::string& name) const {
    const Zone& facts = data_.zone(series_->zones.front());
    const bool isOrdered = facts.kind == ZoneKind::Ordered;
    const auto dimension = isOrdered ? static_cast<std::size_t>(cellDimension_) : std::size_t{1};
    const std::array<std::int64_t, 3> points = {facts.size.i, facts.size.j, facts.size.k};
    std::vector<std::int32_t> values(3 * dimension, 0);
    for (std::size_t place = 0; place < dimension; ++place) {
        values[place] = static_cast<std::int32_t>(points[place]);
        values[dimension + place] = static_cast<std::int32_t>(
            isOrdered ? std::max<std::int64_t>(points[place] - 1, 0) : facts.elementCount);
    }
    const std::array<hsize_t, 2> sizes = {3, dimension};
    CgnsNode zone = tree_.addIntegers(base, name, "Zone_t", sizes, values);
    if (!isOrdered)
        writeElements(zone);
    else if (shared_.structured)
        tree_.link(zone, "ZoneType", *shared_.structured);
    else
        shared_.structured =
            tree_.placeOf(tree_.addText(zone, "ZoneType", "ZoneType_t", "Structured"));
    return zone;
}

void CgnsZone::writeElements(const CgnsNode& zone) const {
    const std::size_t index = series_->zones.front();
    const Zone& facts = data_.zone(index);
    tree_.addText(zone, "ZoneType", "ZoneType_t", "Unstructured");
    constexpr std::array<hsize_t, 1> two = {2};
    const std::array<std::int32_t, 2> kind = {elementType(facts.kind), 0};
    const std::array<std::int32_t, 2> range = {1, static_cast<std::int32_t>(facts.elementCount)};
    const CgnsNode elements = tree_.addIntegers(zone, "Elements", "Elements_t", two, kind);
    tree_.addIntegers(elements, "ElementRange", "IndexRange_t", two, range);
    std::vector<std::int32_t> corners = data_.data().nodeMap(index);
    for (std::int32_t& corner : corners)
        ++corner; // the standard counts from 1
    const std::array<hsize_t, 1> sizes = {corners.size()};
    tree_.addIntegers(elements, "ElementConnectivity", dataArray, sizes, corners);
}

/// The zones that hold the coordinates of this one: the same for zones with one grid.
std::vector<std::size_t> CgnsZone::holdersOfGrid(std::size_t index) const {
    std::vector<std::size_t> holders;
    for (const IndexedVariable_s& variable : data_.variables())
        if (variable.coordinate)
            holders.push_back(data_.data().holder(index, variable.variable));
    return holders;
}

/// One grid for each set of coordinates; gives the name of the one of each time.
std::vector<std::string> CgnsZone::writeGrids(const CgnsNode& zone) {
    std::map<std::vector<std::size_t>, std::string> written;
    std::vector<std::string> names;
    for (const std::size_t index : series_->zones) {
        const auto [grid, isNew] = written.try_emplace(holdersOfGrid(index));
        if (isNew) {
            grid->second = numbered("GridCoordinates", written.size() - 1);
            writeGrid(zone, grid->second, index);
        }
        names.push_back(grid->second);
    }
    return names;
}

void CgnsZone::writeGrid(const CgnsNode& zone, const std::string& name, std::size_t index) {
    const CgnsNode grid = tree_.add(zone, name, "GridCoordinates_t");
    for (std::size_t place = 0; place < data_.variables().size(); ++place)
        if (data_.variables()[place].coordinate)
            writeField(grid, place, index);
}

/// Nothing if there are no variables beside the coordinates.
std::vector<std::string> CgnsZone::writeSolutions(const CgnsNode& zone) {
    std::vector<std::string> names;
    if (data_.variables().size() == data_.coordinateCount())
        return names;
    for (const std::size_t index : series_->zones) {
        names.push_back(numbered("FlowSolution", names.size()));
        writeSolution(zone, names.back(), index);
    }
    return names;
}

void CgnsZone::writeSolution(const CgnsNode& zone, const std::string& name, std::size_t index) {
    const CgnsNode solution = tree_.add(zone, name, "FlowSolution_t");
    if (shared_.gridLocation)
        tree_.link(solution, "GridLocation", *shared_.gridLocation);
    else
        shared_.gridLocation =
            tree_.placeOf(tree_.addText(solution, "GridLocation", "GridLocation_t", "Vertex"));
    for (std::size_t place = 0; place < data_.variables().size(); ++place)
        if (!data_.variables()[place].coordinate)
            writeField(solution, place, index);
}

void CgnsZone::writeField(const CgnsNode& parent, std::size_t place, std::size_t index) {
    const IndexedVariable_s& variable = data_.variables()[place];
    throwIfStopped(stop_);
    if (!data_.has(index, variable.variable))
        return;
    const std::size_t holder = data_.data().holder(index, variable.variable);
    const std::pair key(holder, variable.variable);
    if (const auto found = shared_.fields.find(key); found != shared_.fields.end()) {
        tree_.link(parent, names_[place], found->second);
        return;
    }
    const Source source = data_.data().source(index, variable.variable);
    const CgnsNode field = tree_.addExternal(parent, names_[place], dataArray, sizes(), source,
                                             originals_.pathOf(source));
    if (variable.coordinate || variable.isIBlank) // all others belong to one zone
        shared_.fields.emplace(key, tree_.placeOf(field));
}

std::vector<hsize_t> CgnsZone::sizes() const {
    const Zone& facts = data_.zone(series_->zones.front());
    std::vector<hsize_t> sizes = {static_cast<hsize_t>(facts.size.i)};
    if (facts.kind != ZoneKind::Ordered)
        return sizes;
    if (cellDimension_ > 1)
        sizes.insert(sizes.begin(), static_cast<hsize_t>(facts.size.j));
    if (cellDimension_ > 2)
        sizes.insert(sizes.begin(), static_cast<hsize_t>(facts.size.k));
    return sizes;
}

void CgnsZone::putPointers(const CgnsNode& parent, const std::string& name,
                           const std::vector<std::string>& nodes) {
    const std::array<hsize_t, 2> sizes = {nodes.size(), cgnsNameLength};
    tree_.addText(parent, name, dataArray, sizes, pointerText(nodes));
}

} // namespace plot3d::program
