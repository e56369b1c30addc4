// What the style of a solution or function file decides of its form: where the number of variables
// stands, and which scalars are ahead of each grid's variables. docs/format.md tells the same.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include <plot3d/FileInfo.h>

namespace plot3d::program {

/// Where the number of variables of a file stands.
enum class VariableCount_e : std::uint8_t {
    OfLayout,   // nowhere: density, the momentum in each direction and energy
    OfEachGrid, // behind the sizes of each grid
    OfFile      // behind the sizes of all grids, with the number of species behind it
};

struct StyleForm_s {
    VariableCount_e variableCount = VariableCount_e::OfLayout;
    int scalarCount = 0;                      // of each grid; the species' come behind them
    std::optional<std::size_t> integerScalar; // which of them is an integer, from 0
    /// A gamma of each species, at least two, stands behind the scalars, and records may have more
    /// of them; species have variables. In plain binary readers want the file to be longer.
    bool hasSpecies = false;
};

/// The compiler asks it of every style.
StyleForm_s styleForm(Style style);

/// How many scalars a grid has: with species at least so many. In 1-D there are four wherever there
/// are any.
int scalarCount(Style style, Layout layout, int speciesCount);

} // namespace plot3d::program
