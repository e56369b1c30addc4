// The account of a text file by one reading.
#pragma once

#include "inspect/reading/Account.h"
#include "inspect/reading/TextScan.h"

namespace plot3dlib {

/// Values that the reading takes, header included.
std::int64_t valuesOf(const Reading_s& reading);

/// Whether the file has exactly these values, integers where I-blank and connectivity stand, and
/// integers in the header.
bool fitsExactly(const TextScan& scan, const Reading_s& reading);

/// Missing are two bytes for each missing number, the least that it can take.
Account_s accountOfText(ExaminedFile& file, TextScan& scan, const Reading_s& reading);

} // namespace plot3dlib
