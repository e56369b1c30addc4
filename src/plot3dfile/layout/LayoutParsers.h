// What a PLOT3D file may look like: one parser for each of the 1-D, 2-D, 3-D and unstructured
// layouts. Without a receiver a parser judges: it reads the header by the structure that stands in
// the record, applies every plausibility test, fills `numGrids`, `numVars`, `numScalars`,
// `numSpecies` and `gridDims`, and reports nothing. With a receiver it walks: it hands every item
// of every grid, in file order, to the receiver. A parser begins by rewinding the open file and
// leaves the stream where it stopped. docs/format.md tells the layouts.
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

enum Plot3DItemKind_e : std::int32_t {
    Plot3DItem_Variable = 0,
    Plot3DItem_IBlank = 1,
    Plot3DItem_Scalars = 2,
    Plot3DItem_Connectivity = 3
};

constexpr std::int32_t wholeField = -1; // `plane` of a field that is stored as one block
constexpr std::int32_t noPlane = -999;  // `plane` of scalars and of unstructured data

/// Takes one item, with the stream at its first value. `grid` counts the grids of the file from 0;
/// `zone` counts the selected ones from 0 and keeps its value (-1 at first) across others;
/// `include` says whether this grid is selected. The item must be consumed in any case, since the
/// stream moves on only by what is read. `varIndex` counts from 0; of I-blank it is numVars.
/// `plane`: wholeField, noPlane, or the K plane's index from 0 in 3-D Planes. False stops the walk.
using Plot3DItemCallback = bool (*)(Plot3DFile_s& file, Plot3DItemKind_e kind, std::int32_t grid,
                                    std::int32_t zone, bool include, std::int32_t varIndex,
                                    std::int32_t plane, bool report, void* clientData);

/// Called ahead of each grid of a function file, which has no scalars to take its time from. False
/// stops the walk.
using Plot3DFunctionTimeCallback = bool (*)(Plot3DFile_s& file, std::int32_t zone, bool include,
                                            void* clientData);

/// Where a walk delivers. `functionTime` may be null. Borrowed for the walk.
struct Plot3DItemReceiver_s {
    Plot3DItemCallback item;
    Plot3DFunctionTimeCallback functionTime;
    void* clientData;
};

/// `gridSet` (grid numbers from 1; null or empty selects all) and `report` matter to a walk only.
/// False (not told): the header or the data do not fit. A walk also fails as walkGrids does: False
/// (told): a record is missing, with `report`.
[[nodiscard]] bool parse1D(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                           const Plot3DItemReceiver_s* receiver);
[[nodiscard]] bool parse2D(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                           const Plot3DItemReceiver_s* receiver);
[[nodiscard]] bool parse3D(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                           const Plot3DItemReceiver_s* receiver);
[[nodiscard]] bool parseUnstructured(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                                     const Plot3DItemReceiver_s* receiver);

/// The parser of the record's `dataStructure`; a structure outside the enumeration counts as done.
/// False (told), False (not told): as that parser.
[[nodiscard]] bool parseLayout(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                               const Plot3DItemReceiver_s* receiver);

} // namespace quorvia::quorutildataio
