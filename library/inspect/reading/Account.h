// Whether a file has what a reading takes from it: every byte is accounted for, and where something
// is missing it is told in which grid and variable.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <plot3d/FileInfo.h>

#include "inspect/reading/ExaminedFile.h"
#include "inspect/reading/Reading.h"

namespace plot3dlib {

/// Where the file's data first depart from the reading.
struct Shortfall_s {
    Place_s place;
    std::int64_t position = 0; // in bytes, where the data end
    std::int64_t expected = 0; // bytes of the whole file, or of the record; of text numbers
    std::int64_t found = 0;
    std::int64_t record = 0; // its number from 1, where one is shorter than the header says
};

/// A Fortran record that holds more than is taken from it.
struct LongRecord_s {
    std::int64_t record = 0; // its number from 1
    std::int64_t position = 0;
    std::int64_t expected = 0; // bytes
    std::int64_t found = 0;
};

struct Account_s {
    plot3d::ByteAccount bytes;
    std::optional<Shortfall_s> shortfall;
    std::optional<LongRecord_s> longRecord;    // the first
    std::int64_t recordsBehind = 0;            // behind the last one that is taken
    std::int64_t numbersBehind = 0;            // of text
    std::int64_t endOfTaken = 0;               // position behind the last byte that is taken
    std::vector<std::int64_t> scalarPositions; // by grid, as far as they are in the file

    bool isExact() const { return bytes.missing == 0 && bytes.surplus == 0; }
};

/// Of plain binary and of Fortran files.
Account_s accountOf(ExaminedFile& file, const Reading_s& reading);

} // namespace plot3dlib
