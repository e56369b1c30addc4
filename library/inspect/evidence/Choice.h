// Which of the readings of a file is what it is.
#pragma once

#include <vector>

#include <plot3d/FileInfo.h>

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

/// What the trials came to.
struct Choice_s {
    std::vector<TrialNote_s> trials;
    std::vector<plot3d::FileKind> alsoFits;
};

/// Tries the readings of the expected kind, or of all kinds, and sets `loaded`, `reading`,
/// `account` and `text` of the evidence. A reading that accounts for every byte is preferred to one
/// that does not; otherwise the order is grid, solution, function, and within a kind that of a
/// load. `allReadings` of the options goes on to all kinds, and behind what fits.
Choice_s chooseReading(Evidence_s& evidence, const plot3d::InspectOptions& options);

/// Whether the reading accounts for every byte of the file; of text, for every number.
bool isExact(Evidence_s& evidence, const Reading_s& reading);

} // namespace plot3dlib
