// A grid with I-blank, and functions of which not all values count.
#pragma once

#include <string>
#include <vector>

#include "support/TemporaryDirectory.h"

namespace quorvia::host {

/// Writes the grids blanked.x of 5 x 3 x 2 and 2 x 2 x 1 points and the functions blanked.f; gives
/// both names. A function's value is i + 10 j + 100 k (from 0), 1000 more in the second grid. Of
/// the first grid the points with i = 0 have I-blank 0, and that with i = 1, j = k = 0 has -2; the
/// others have 1, as those of the second. The values of the first grid's points 1,0,0 and 2,0,0 are
/// NaN and infinite, that of 0,0,0 is the largest number.
std::vector<std::string> writeBlankedFiles(const testsupport::TemporaryDirectory& directory);

} // namespace quorvia::host
