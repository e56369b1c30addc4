// What a file's first integers say of its grids, whatever stands behind them.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

struct HeaderGuess_s {
    io::Plot3DRecordForm_s form;
    bool isMultiGrid = false;
    std::int32_t dimensions = 3; // 2 or 3
    std::vector<io::Plot3DGridDims_s> grids;
    /// What stands behind it: of text values, of the others bytes without the markers of records.
    std::int64_t dataSize = 0;
    std::int64_t headerEnd = 0; // of text the index of the next value, of the others the position
};

/// Headers of nothing but a count of grids and dimensions that the file may begin with. Sizes are
/// at least 1, but for the second and third, which may be 0.
std::vector<HeaderGuess_s> guessHeaders(Evidence_s& evidence);

/// Points of all grids; -1 past what 64 bits can count.
std::int64_t pointsOf(const HeaderGuess_s& guess);

/// An integer at a position of a binary or Fortran file.
std::optional<std::int32_t> integerAt(ExaminedFile& file, std::int64_t position, bool byteSwap);

} // namespace plot3dlib
