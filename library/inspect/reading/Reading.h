// One reading of a file: its structure, and where everything lies by it. Values are counted in file
// order, header not included; of text the values are all there is, so that a place in the file is
// the number of values ahead of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/FileInfo.h>

#include "plot3dfile/file/Plot3DFile.h"

namespace plot3dlib {

namespace io = quorvia::quorutildataio;

struct Reading_s : io::Plot3DFileStructure_s {
    std::vector<io::Plot3DGridDims_s> grids;
};

/// The reading that stands in a record whose header was accepted.
Reading_s readingOf(const io::Plot3DFile_s& file);
plot3d::FileKind kindOf(const io::Plot3DFileStructure_s& structure);
std::optional<plot3d::ByteOrder> byteOrderOf(const io::Plot3DRecordForm_s& form);
plot3d::Candidate candidateOf(const io::Plot3DFileStructure_s& structure);

enum class Part_e : std::uint8_t { Scalars, Variable, IBlank, Connectivity };

/// What stands at a place of the data.
struct Place_s {
    Part_e part = Part_e::Variable;
    std::int32_t grid = 0;     // index from 0
    std::int32_t variable = 0; // index from 0
    std::int64_t plane = -1;   // index from 0; -1 where planes do not stand by themselves
};

/// The blocks of one grid, in their order: scalars; for each plane the variables and I-blank;
/// connectivity. Numbers past 64 bits are the largest there is.
struct GridBlocks_s {
    std::int64_t scalars = 0; // their number
    std::int64_t planes = 1;
    std::int64_t planePoints = 0;  // of one variable, in one plane
    std::int64_t variables = 0;    // without I-blank
    std::int64_t iBlanks = 0;      // 0 or 1
    std::int64_t connectivity = 0; // integers
};
GridBlocks_s blocksOf(const Reading_s& reading, std::size_t gridIndex);

/// Widths of what the blocks hold: of bytes, or 1 for everything to count values.
struct Widths_s {
    std::int64_t real = 1;
    std::int64_t integer = 1;
    std::int64_t overflowSaving = 0; // bytes that the one integer among Overflow's scalars saves
};
Widths_s valueWidths();
Widths_s byteWidths(const Reading_s& reading);

std::int64_t scalarSize(const GridBlocks_s& blocks, const Widths_s& widths);
/// Of the variables and I-blank of one plane, and the connectivity: a Fortran record.
std::int64_t planeSize(const GridBlocks_s& blocks, const Widths_s& widths);
std::int64_t gridSize(const GridBlocks_s& blocks, const Widths_s& widths);
/// Of all grids.
std::int64_t dataSize(const Reading_s& reading, const Widths_s& widths);

/// What stands `offset` behind the beginning of a plane's record.
Place_s placeInPlane(const GridBlocks_s& blocks, const Widths_s& widths, std::int64_t offset);
/// What stands `offset` behind the header, without records.
Place_s placeInData(const Reading_s& reading, const Widths_s& widths, std::int64_t offset);

/// Numbers of the header, and bytes of the header of a plain binary file.
std::int64_t headerValues(const Reading_s& reading);
/// Fortran records that the header takes.
std::int32_t headerRecords(const Reading_s& reading);

} // namespace plot3dlib
