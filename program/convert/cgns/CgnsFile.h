// A CGNS file that is being written through libcgns: a thin layer that throws, with 64-bit counts
// checked on their way into the library's 32-bit ones.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <cgnslib.h>

#include <plot3d/Box.h>
#include <plot3d/Field.h>
#include <plot3d/Zone.h>

namespace plot3d::program {

/// Numbers from 1 that libcgns has given to nodes.
struct CgnsZone_s {
    int base = 0;
    int zone = 0;
    int directions = 0; // 1 to 3; 1 for an unstructured zone
};

class CgnsFile {
public:
    /// `shownName` is what failures name. All of these throw Error (Refused).
    CgnsFile(const std::string& path, std::string shownName);
    ~CgnsFile();
    CgnsFile(const CgnsFile&) = delete;
    CgnsFile& operator=(const CgnsFile&) = delete;

    int addBase(const std::string& name, int cellDimension, int spaceDimension);
    /// `directions`: of an ordered zone, 1 to 3.
    CgnsZone_s addZone(int base, const std::string& name, ZoneKind kind, const Extent& size,
                       std::int64_t elementCount, int directions);
    /// `corners`: node indices from 0, for each element its corners.
    void addElements(const CgnsZone_s& zone, ZoneKind kind, std::int64_t elementCount,
                     const std::vector<std::int32_t>& corners);
    /// GridCoordinates_t nodes; the first of a zone must be called "GridCoordinates".
    void addGrid(const CgnsZone_s& zone, const std::string& name);
    /// A FlowSolution_t at the vertices; gives its number.
    int addSolution(const CgnsZone_s& zone, const std::string& name);
    /// The points of a box of the first grid of a zone.
    void putCoordinate(const CgnsZone_s& zone, const std::string& name, ValueType type,
                       const Box& box, const void* values);
    /// All points of the grid with number `grid`.
    void putWholeCoordinate(const CgnsZone_s& zone, int grid, const std::string& name,
                            ValueType type, const Extent& size, const void* values);
    void putField(const CgnsZone_s& zone, int solution, const std::string& name, ValueType type,
                  const Box& box, const void* values);
    void putTimes(int base, const std::vector<double>& times);
    /// For each time the names of the zones that are seen. Behind putTimes().
    void putZoneLists(int base, const std::vector<std::vector<std::string>>& zones);
    /// The names of the nodes of each time, for example of "FlowSolutionPointers".
    void putPointers(const CgnsZone_s& zone,
                     const std::vector<std::pair<std::string, std::vector<std::string>>>& lists);
    void finish();

private:
    using Sizes = std::array<cgsize_t, 3>;
    static Sizes firstOf(const Box& box);
    static Sizes lastOf(const Box& box);
    void check(int code) const;

    std::string shownName_;
    int file_ = 0;
    bool isOpen_ = false;
};

} // namespace plot3d::program
