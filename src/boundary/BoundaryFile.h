// Reads a boundary file: plain text that names boundary conditions and says on which grid, and over
// which of its points, each boundary lies. docs/boundary-files.md tells the format.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// What a line says of a boundary. The ranges are resolved: they count from 1 and include their
/// ends.
struct Plot3DBoundaryLine_s {
    std::int32_t nameIndex = 0;  // into the list of names, from 1
    std::int32_t gridNumber = 0; // from 1
    std::int32_t iStart = 0;
    std::int32_t iEnd = 0;
    std::int32_t jStart = 0;
    std::int32_t jEnd = 0;
    std::int32_t kStart = 0;
    std::int32_t kEnd = 0;
    bool logicalField = false;      // carried along; nothing reads it
    std::int32_t trailingValue = 0; // the same
};

/// One boundary, and those behind it in the file.
struct Plot3DBoundary_s : Plot3DBoundaryLine_s {
    std::unique_ptr<Plot3DBoundary_s> next;

    Plot3DBoundary_s() = default;
    explicit Plot3DBoundary_s(const Plot3DBoundaryLine_s& line) : Plot3DBoundaryLine_s(line) {}
    Plot3DBoundary_s(const Plot3DBoundary_s&) = delete;
    Plot3DBoundary_s& operator=(const Plot3DBoundary_s&) = delete;
    /// Frees the chain behind it one by one, so that a long list does not use up the stack.
    ~Plot3DBoundary_s();
};

/// In the order of the file; null for none.
using Plot3DBoundaryList = std::unique_ptr<Plot3DBoundary_s>;

/// The boundary alone, without what follows it. Null (not told): no memory.
[[nodiscard]] Plot3DBoundaryList copyBoundary(const Plot3DBoundary_s& boundary);

/// Reads the options' `boundaryFile` for the grids of `gridFile`. `head` and `names` get what was
/// read, `count` is raised by the number of records. A file that does not open has no boundaries.
/// False (told): the file is not as it should be; the message has the line. What was read before,
/// that line's record included, is in the list.
[[nodiscard]] bool readBoundaryFile(const Plot3DLoadOptions_s& options,
                                    const Plot3DFile_s& gridFile, Plot3DBoundaryList& head,
                                    HostStringList& names, std::int64_t& count);

/// Reads one boundary line into `boundary`. False (not told): a token is missing or bad, or a range
/// is not in the grid; the other fields are filled all the same. `nameIndex` may be any number.
[[nodiscard]] bool parseBoundaryLine(const std::string& line, const Plot3DFile_s& gridFile,
                                     Plot3DBoundary_s& boundary);

} // namespace quorvia::quorutildataio
