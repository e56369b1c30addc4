// Quantities that follow from a solution's variables: pressure, temperature, Mach number, velocity,
// vorticity and the others that PLOT3D users know by number. docs/derived.md has the formulas.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include <plot3d/DataSet.h>

namespace plot3d {

/// What the formulas need beside the solution. Solutions are nondimensional, as PLOT3D has them:
/// density and speed of sound of the free stream are 1.
struct Gas {
    double gamma = 1.4;       // where the file has none for each point
    double gasConstant = 1.0; // in the units of the solution
};

struct DerivedQuantity {
    int number = 0;                      // 110: pressure, and so on
    std::string name;                    // "pressure": a word for command lines
    std::vector<std::string> components; // names of its variables: one, or three of a vector
};

/// All of them, by number.
const std::vector<DerivedQuantity>& derivedQuantities();

/// By word (case does not count) or number; null if there is none.
const DerivedQuantity* findDerivedQuantity(std::string_view wordOrNumber);

/// Whether the data set has what the quantity needs (density, momentum, energy; coordinates for
/// derivatives) in this zone. If not, `reason` says what is missing.
bool canDerive(const DataSet& data, std::size_t zone, const DerivedQuantity& quantity,
               std::string& reason);

/// The values at all points of a zone, I fastest: one list for each component. Reads what the
/// formula needs, one zone at a time. Not a number where the formula has no value. Throws Error.
std::vector<std::vector<double>> derive(const DataSet& data, std::size_t zone,
                                        const DerivedQuantity& quantity, const Gas& gas = {},
                                        std::stop_token stop = {});

/// The same at the points of a box of the zone. Reads no more than the box; for derivatives also
/// the points beside it and between its steps. Throws Error, Usage for a box that leaves the zone.
std::vector<std::vector<double>> derive(const DataSet& data, std::size_t zone,
                                        const DerivedQuantity& quantity, const Box& box,
                                        const Gas& gas = {}, std::stop_token stop = {});

} // namespace plot3d
