// What is converted: zones, variables and times, with the values in consecutive boxes, so that no
// writer needs to know where they come from, and none holds more than it asks for. Indices count
// from 0 and are those of what is converted; I varies fastest.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/Box.h>
#include <plot3d/Field.h>
#include <plot3d/FileInfo.h>
#include <plot3d/Zone.h>

namespace plot3d::program {

/// In which file of a PLOT3D data set a variable stands.
enum class Role_e : unsigned char { Coordinate, IBlank, Solution, Function };

struct ContentVariable_s {
    std::string name;
    Role_e role = Role_e::Function;
    int place = 0; // of a coordinate: 0 for X, 1 for Y, 2 for Z; of a function: its file, from 0
};

struct ContentZone_s {
    std::int64_t number = 1; // from 1, what the zone is called by its number in the data set
    std::string name;
    ZoneKind kind = ZoneKind::Ordered;
    Extent size;                   // of an unstructured zone its nodes along I
    std::int64_t elementCount = 0; // of an unstructured zone
    Box box;                       // where its points are in the data set's zone
    double time = 0.0;
    std::int32_t strand = 0;
    bool isBoundary = false;
    std::size_t fileStep = 0; // which of the files that follow one another in time it came from
    AuxiliaryData auxiliaryData;
    std::vector<double> scalars; // ahead of the zone's variables in a solution file; may be empty
};

class Contents {
public:
    virtual ~Contents() = default;

    /// 1 (lines), 2 or 3.
    virtual int dimensions() const = 0;
    /// Of the solution variables, where there are any.
    virtual Style style() const = 0;
    /// Species of an Overflow solution.
    virtual int speciesCount() const = 0;
    virtual const std::vector<ContentVariable_s>& variables() const = 0;
    virtual const std::vector<ContentZone_s>& zones() const = 0;
    /// In the order of time, at least one; `zones` are indices into zones().
    virtual const std::vector<TimeStep>& steps() const = 0;

    /// Nothing if the zone has no values of the variable.
    virtual std::optional<ValueType> type(std::size_t zone, std::size_t variable) const = 0;
    /// The first zone that has this very field: an earlier one, where zones share it.
    virtual std::size_t holder(std::size_t zone, std::size_t variable) const = 0;
    /// Fills `destination` with the values of a box without strides, of the field's type, in the
    /// machine's byte order. Throws Error. Cheapest zone by zone, and forwards in each field.
    virtual void read(std::size_t zone, std::size_t variable, const Box& box,
                      void* destination) = 0;
    /// Node indices from 0 of an unstructured zone, for each element its corners.
    virtual std::vector<std::int32_t> nodeMap(std::size_t zone) const = 0;
};

/// Points that are read at a time: few enough for a cache, many enough for a disk.
inline constexpr std::int64_t pointsPerBlock = std::int64_t{1} << 17;

/// All points of a zone, I fastest, in consecutive boxes of at most `mostPoints`.
void forEachBlock(const Extent& size, std::int64_t mostPoints,
                  const std::function<void(const Box& box, std::int64_t count)>& visit);

/// Names of the variables, in their order.
std::vector<std::string> namesOf(const Contents& contents);

/// The variables of a role, by their place.
std::vector<std::size_t> variablesOf(const Contents& contents, Role_e role);

/// The variable that holds I-blank; nothing if there is none.
std::optional<std::size_t> iBlankOf(const Contents& contents);

/// All values of a field at once, of its type.
std::vector<std::int32_t> readIntegers(Contents& contents, std::size_t zone, std::size_t variable);

} // namespace plot3d::program
