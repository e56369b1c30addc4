// The record of one PLOT3D file on disk, grid, solution or function file: its stream, its
// structure, its grids, and the cursors of the number stream. docs/format.md tells the format.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "instructions/Plot3DStructure.h"
#include "plot3dfile/bytes/FileStream.h"
#include "plot3dfile/file/DetectionObserver.h"
#include "plot3dfile/file/Plot3DMisfit.h"
#include "plot3dfile/file/Plot3DRecordForm.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// Numbers of points of a grid; in an unstructured grid nodes, triangles and tetrahedra.
struct Plot3DGridDims_s {
    std::int32_t i;
    std::int32_t j;
    std::int32_t k;

    bool operator==(const Plot3DGridDims_s&) const = default;
};

/// What is found out of a file, from its bytes or from the options, and holds for another file of
/// the same structure. A copy of a record takes it over whole, so that a new field of the structure
/// belongs here.
struct Plot3DFileStructure_s : Plot3DRecordForm_s {
    Plot3DDataStructure_e dataStructure = Plot3DDataStructure_Unknown;
    bool isSolutionOrFunction = false; // false for a grid file
    Plot3DStyle_e style = Plot3DStyle_Unknown;
    bool hasIBlank = false;   // each grid carries an I-blank block
    bool isMultiGrid = false; // the file begins with a count of grids
    std::int32_t numGrids = 0;
    std::int32_t numVars = 0;    // real variables of a grid, I-blank not counted
    std::int32_t numScalars = 0; // scalars ahead of each grid's variables
    std::int32_t numSpecies = 0; // Overflow only: the header's second count
    std::int64_t fileSize = 0;   // bytes, measured when the record is created; 0 until then
    bool solutionsShareStructure = false; // the option as it stood when the file was detected
    bool relaxedChecks = false;           // records and files may be longer than expected
    bool inSegmentedRecord = false;       // inside a record that is stored as several segments
};

/// What stands here itself is the file's own: a copy takes over none of it but `gridDims`, as far
/// as they are in use.
struct Plot3DFile_s : Plot3DFileStructure_s {
    std::unique_ptr<FileStream> stream;     // null while the file is closed
    HostString fileName;                    // UTF-8 path
    std::vector<Plot3DGridDims_s> gridDims; // by grid index from 0; may be longer than numGrids
    double solutionTime = 0.0;
    std::int32_t repeatCount = 0; // text only: how many more times repeatValue is delivered
    double repeatValue = 0.0;
    // File positions, in bytes from the file's start, noted while the file is scanned:
    HostArray<std::int64_t> iBlankOffsets;  // by grid
    HostArray<std::int64_t> varOffsets;     // by grid times numVars plus variable
    HostArray<std::int64_t> auxDataOffsets; // by running number of the selected grid
    std::int64_t recordLength = -1;         // payload bytes of the current Fortran record
    std::int64_t nextRecordStart = 0;       // position of the next record's first marker
    std::int32_t lookahead = 32; // text only: character read, not consumed; -1 at end of file
    Plot3DMisfit_s misfit;       // of the last reading that was judged; None: it fits
    DetectionObserver* observer = nullptr; // borrowed
};

using Plot3DFilePtr = std::unique_ptr<Plot3DFile_s>;
/// In the order of the load options' list of names. The load owns the records.
using Plot3DFileList = std::vector<Plot3DFilePtr>;

/// Makes the record of a file that nobody has looked at. Null (not told): no memory for the name.
[[nodiscard]] Plot3DFilePtr makePlot3DFile(const std::string& fileName);

/// Frees the record and all that it owns, and clears the pointer.
void destroyPlot3DFile(Plot3DFilePtr& file);

/// Makes `copy` a record of the same structure for `fileName`, closed, without offset arrays,
/// solution time and reading state. False (not told): no memory; `copy` is null then.
[[nodiscard]] bool copyPlot3DFile(const Plot3DFile_s& source, Plot3DFilePtr& copy,
                                  const std::string& fileName);

/// Opens the file for reading. False (told): it does not open.
[[nodiscard]] bool openPlot3DFile(Plot3DFile_s& file);

/// Closes the stream, if it is open, and resets the reading state. Always true.
bool closePlot3DFile(Plot3DFile_s& file);

/// Moves the open stream to the file's start and resets the reading state.
void rewindPlot3DFile(Plot3DFile_s& file);

/// Notes what does not fit the reading that is being judged, of the grid with this index from 0.
/// False (not told): always, so that a judgement can end with it.
[[nodiscard]] inline bool refuseReading(Plot3DFile_s& file, Plot3DMisfit_e what,
                                        std::int64_t expected = 0, std::int64_t found = 0,
                                        std::int32_t gridIndex = 0) {
    // Of text one character is read ahead, but none before the first.
    const bool isAhead = file.encoding == Plot3DEncoding_Ascii && file.lookahead >= 0;
    const std::int64_t position = file.stream->tell();
    file.misfit = {what, gridIndex, isAhead && position > 0 ? position - 1 : position, expected,
                   found};
    return false;
}

/// Shows `text`, "\nFile: " and the file's name in one dialog.
void reportFileError(const Plot3DFile_s& file, const std::string& text);

/// Text of the message for a file that does not open.
std::string cannotOpenText(const std::string& fileName);
/// Text of the message, ahead of the file's name, for a file whose bytes can't be had.
inline constexpr const char* unreadableText = "The file could not be read.";

} // namespace quorvia::quorutildataio
