// What did not fit the last reading of a file that was judged, as numbers. Noted by the layout
// parsers at the cost of a plain store; who wants words makes them elsewhere.
#pragma once

#include <cstdint>

namespace quorvia::quorutildataio {

enum class Plot3DMisfit_e : std::uint8_t {
    None,
    NotInLayout, // the layout has no such style, no I-blank, or no count of grids; nothing was read
    // A record, or a line, of integers alone: the count of grids, or the header of a 1-D file.
    IntegersMissing,  // no such record, or no integer where one should stand
    IntegersLineEnds, // the line ends too early. expected: integers, found: those ahead of its end
    IntegersLineGoesOn, // the line does not end behind them. expected: integers
    IntegersRecord,     // the record is of another length. expected, found: bytes
    GridCount,          // not positive, or the file too small. expected: the most, found: the count
    // The dimensions and what follows them in the header.
    DimensionsMissing,  // no such record, or no integer where one should stand
    DimensionsLineEnds, // ahead of the last dimension. expected: dimensions, found: those before
    Dimension,          // one is below 1. expected: 1, found: the first such
    NoElements,         // neither triangles nor tetrahedra
    TwoKindsOfElements, // triangles and tetrahedra. expected: triangles, found: tetrahedra
    NotNodesAlone,      // no 1 in an element's place. expected: 1, found: the first other number
    GridsPassEnd,       // with one byte for each point. expected: their end, found: the file's
    VariablesMissing,   // no count of variables where one should stand
    VariablesDiffer,    // expected: those of the first grid, found: those of this one
    SpeciesMissing,     // no counts of variables and species where they should stand
    HeaderGoesOn, // its record or line does not end behind it. expected: its end, found: there
    // The data behind the header.
    GridCountUnknown, // of a 1-D file that a reading with a count of grids preceded
    GridTooBig,       // points, or elements, of one grid. expected: the most, found: the number
    SizePasses64Bits,
    DataSize,       // plain binary. expected, found: bytes behind the header
    ScalarsMissing, // no such record, or no number where one should stand
    ScalarsRecord,  // the record is of another length. expected, found: bytes
    ScalarsLine,    // the line does not end behind them. expected: their number
    DataMissing,    // no record of variables
    DataRecord      // the record is of another length. expected, found: bytes
};

struct Plot3DMisfit_s {
    Plot3DMisfit_e what = Plot3DMisfit_e::None;
    std::int32_t grid = 0;     // index from 0
    std::int64_t position = 0; // in bytes from the file's start: where reading had come to
    std::int64_t expected = 0; // what they count is told with `what`; numbers past 64 bits are
    std::int64_t found = 0;    // the largest there is
};

} // namespace quorvia::quorutildataio
