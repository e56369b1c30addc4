// What a file that fits nothing was probably meant to be.
#pragma once

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

/// Takes a file that passes for plain binary for what it is, if it begins with whole Fortran
/// records of a header and goes on with the record that the header wants: then it was cut short,
/// and whatever fits it otherwise does so by chance. False: it does not begin so.
bool guessCutRecords(Evidence_s& evidence);

/// Looks for readings with a good header, whatever the size of the file, and among these for the
/// one whose data look like numbers and whose size comes nearest. Sets `reading`, `account` and
/// `isGuessed`; `form` too, where the file is Fortran with a broken end.
void guessReading(Evidence_s& evidence);

} // namespace plot3dlib
