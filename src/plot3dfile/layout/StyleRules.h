// What tells one style from another: a row for each, in the order of trials. Whatever hangs on a
// style asks its row; docs/format.md and docs/variables.md tell the same in prose. Its word and its
// caption stand in instructions/InstructionWords.h.
#pragma once

#include <cstdint>
#include <span>

#include "instructions/Plot3DStructure.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Where the number of variables of a file stands.
enum class VariableCount_e : std::uint8_t {
    OfLayout,   // nowhere: each layout has a fixed number
    OfEachGrid, // in the header, behind the dimensions of each grid, the same for all
    OfFile      // in the header, behind all grids, together with the number of species
};

/// One of the scalars ahead of each grid's variables. A name that begins with I to N makes it an
/// integer of 4 bytes, as in Fortran; sizes reckon with one integer where there are species, and
/// with none elsewhere.
struct StyleScalar_s {
    const char* itemName; // of the auxiliary data; null: the solution time, which is none
    bool isOnDataSet;     // an item of the data set as well as of the zone
};

struct StyleRules_s {
    Plot3DStyle_e style;
    bool existsIn2D;
    bool existsIn1D;
    bool existsUnstructured; // in 3-D every style exists
    VariableCount_e variableCount;
    /// In file order; empty: the file has none, and its time is known from elsewhere if at all.
    std::span<const StyleScalar_s> scalars;
    /// Behind these scalars a gamma for each species follows, at least two. The variables go on
    /// behind the energy with gamma, a density for each species, and turbulence.
    bool hasSpecies;
};

/// All styles, in the order of trials.
std::span<const StyleRules_s> allStyleRules();

/// The row of a style. Of one that is not known: a row without scalars, in no table.
const StyleRules_s& styleRules(Plot3DStyle_e style);

/// The row of a solution or function file; of a grid file, which has no style, that of an unknown
/// one: what a manual description says there is meant for its companions.
const StyleRules_s& styleRulesOf(const Plot3DFileStructure_s& file);

/// Whether each grid begins with a block of scalars.
bool hasScalars(const Plot3DFile_s& file);

/// All scalars ahead of a grid's variables, the gammas by the header's count of species included.
std::int32_t scalarCount(const StyleRules_s& rules, std::int32_t speciesCount);

} // namespace quorvia::quorutildataio
