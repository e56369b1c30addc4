// The front door of the PLOT3D writer: a description and a form become a file.
// The writer shares no code with the loader, so that the one can bear witness against the other.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plot3dwriter/FileDescription.h"
#include "plot3dwriter/FileForm.h"

namespace quorvia::plot3dwriter {

enum class BlockKind_e { Scalars, Variable, IBlank, Connectivity };

/// Where a block of the written file begins. A block that begins exactly where a segment of a
/// Fortran record ends has the position of that end, ahead of the markers.
struct BlockPosition_s {
    BlockKind_e kind = BlockKind_e::Variable;
    std::int32_t grid = 0;     ///< from 0
    std::int32_t variable = 0; ///< from 0; the count of variables for I-blank; otherwise 0
    std::int32_t plane = -1;   ///< K plane from 0 in 3-D Planes, otherwise -1
    std::int64_t position = 0; ///< of the first value's first byte, in bytes from the file's start
};

struct WriteOutcome_s {
    std::string
        problem; ///< empty if all was written; one line, which names the file, if there is one
    std::int64_t byteCount = 0;          ///< size of the file
    std::vector<BlockPosition_s> blocks; ///< in file order
};

/// Writes the file `path` (UTF-8), over what may have been there. Values are asked for one by one
/// and nothing but a small buffer is held in memory. If writing fails half-way the file is removed.
/// Exceptions of the description's own functions pass through.
WriteOutcome_s writePlot3DFile(const std::string& path, const FileDescription_s& description,
                               const FileForm_s& form);

/// The same bytes in memory, for small files in tests; holes become zero bytes.
/// `problem` is as above, and `bytes` is then unspecified.
WriteOutcome_s writePlot3DBytes(std::string& bytes, const FileDescription_s& description,
                                const FileForm_s& form);

} // namespace quorvia::plot3dwriter
