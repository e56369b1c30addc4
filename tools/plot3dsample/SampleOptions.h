// What the user of plot3d-sample asked for.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::plot3dsample {

using plot3dwriter::FileForm_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::Layout_e;

/// Thrown with one line for the user: what was found, what was expected. Ends in exit code 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct SampleOptions_s {
    std::string caseName;
    std::string directory; ///< UTF-8
    FileForm_s form;
    bool hasIBlank = false;
    bool isSingleGrid = false;
    bool isSurface = false;
    bool hasBoundaries = false;      ///< a boundary file beside the grid file
    std::optional<FileKind_e> style; ///< kind of the files beside the grid file
    std::optional<Layout_e> layout;
    std::optional<std::int32_t> steps;     ///< at least 1
    std::array<std::int32_t, 3> size = {}; ///< points in I, J, K; 0: the case's own
};

/// Words of the command line. Those that name nothing throw UsageError.
void setEncoding(std::string_view word, FileForm_s& form);
FileKind_e styleNamed(std::string_view word);
Layout_e layoutNamed(std::string_view word);

/// "41", "41x31" or "41x31x5"; what is not given is 0.
std::array<std::int32_t, 3> sizeNamed(std::string_view word);

std::string nameOf(FileKind_e kind); ///< as in --style; "grid" for a grid file
std::string nameOf(Layout_e layout); ///< as in --layout

} // namespace quorvia::plot3dsample
