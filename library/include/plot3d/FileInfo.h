// What one file is, told from its bytes alone: no load, no host. Of a plain binary file at most
// 64 KiB are read, of Fortran records the markers; a text file is read through once.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/Field.h>
#include <plot3d/Watch.h>

namespace plot3d {

enum class FileKind : std::uint8_t { Grid, Solution, Function, Boundary, Name };
enum class Encoding : std::uint8_t { Text, Binary, Fortran };
enum class Layout : std::uint8_t { OneD, TwoD, ThreeDWhole, ThreeDPlanes, Unstructured };
enum class Style : std::uint8_t { Classic, Function, Overflow, Swift };

/// Points of a structured grid along I, J, K (1 where a direction is missing); nodes, triangles and
/// tetrahedra of an unstructured one.
struct GridSize {
    std::int32_t i = 1;
    std::int32_t j = 1;
    std::int32_t k = 1;

    bool operator==(const GridSize&) const = default;
};

/// Ahead of the variables of each grid, where the style has them.
struct Scalars {
    std::optional<double> mach;
    std::optional<double> alpha; // degrees
    std::optional<double> reynolds;
    std::optional<double> time;
};

/// One reading of a file that was tried. `encoding` is sniffed ahead of all trials.
struct Candidate {
    FileKind kind = FileKind::Grid;
    Layout layout = Layout::ThreeDWhole;
    std::optional<Style> style; // of solution and function files
    bool multiGrid = false;
    bool iBlank = false;
    int precision = 32;                 // bits of a real
    std::optional<ByteOrder> byteOrder; // of binary and Fortran files; of plain binary it is tried
    bool relaxed = false;               // of Fortran: records may be longer than the header says
};

/// The first thing that does not fit a reading, or is wrong with a file. What is not known is
/// empty. `expected` and `found` are for a person, units included: "940,528 bytes", "a count of
/// grids between 1 and 100,000".
struct Misfit {
    std::string what;                 // one sentence without the file's name
    std::optional<std::int64_t> byte; // position in the file, from 0
    std::optional<std::int64_t> line; // of a text file, from 1
    std::optional<std::int64_t> column;
    std::string expected;
    std::string found;
};

struct Trial {
    Candidate candidate;
    std::optional<Misfit> misfit; // empty: the reading fits
};

/// The account of a file's bytes: used + surplus - missing = size.
struct ByteAccount {
    std::int64_t size = 0;
    std::int64_t used = 0;    // taken by the reading, markers included
    std::int64_t missing = 0; // the reading goes on behind the file's end by so many; of text two
                              // for each missing number, the least that it takes
    std::int64_t surplus = 0; // in the file, and not taken
};

struct FileProblem {
    Misfit misfit;
    std::vector<std::string> next; // arguments of a command to type: {"plot3d", "info", ...}
};

struct FileInfo {
    std::string file;
    bool ok = false; // taken by a reading, and no byte is missing
    std::optional<FileKind> kind;
    std::vector<FileKind> alsoFits; // further kinds that the file could be taken for
    std::optional<Encoding> encoding;
    std::optional<int> markerBytes;     // 4 or 8, of Fortran records
    std::optional<ByteOrder> byteOrder; // of binary and Fortran files
    std::optional<int> precision;       // 32 or 64; null for text, whose reals are read as 64
    std::optional<Layout> layout;
    std::optional<Style> style;
    bool multiGrid = false;
    bool iBlank = false;
    std::vector<GridSize> grids;
    std::int32_t variables = 0;     // of each grid
    std::vector<Scalars> scalars;   // one for each grid, where the style has them
    std::vector<std::string> names; // of a name file: the names; of a boundary file: its boundaries
    ByteAccount bytes;
    std::optional<FileProblem> problem; // why it is not ok
    std::vector<FileProblem> warnings;  // it is, but holds more than is taken from it, or the like
    std::vector<Trial> trials;          // in their order, up to the one that fits and behind it;
                                        // what a layout does not have is not tried
};

struct InspectOptions {
    std::optional<FileKind> as; // take it for this kind; otherwise told from name and bytes
    bool allReadings = false;   // go on behind the first reading that fits: what else it could mean
    bool trials = true;         // fill FileInfo::trials; without, a look at many files is quicker
};

/// Never fails because of what the file holds: that is told in the result. Throws Error
/// (Interrupted, NoMemory) only; a file that can't be opened is a problem of the result.
FileInfo inspect(const std::string& file, const InspectOptions& options = {},
                 const Watch& watch = {});

} // namespace plot3d
