// The readings that were tried on a file, in their order, with the first thing that did not fit.
#pragma once

#include <plot3d/FileInfo.h>

#include "info/Summary.h"
#include "manners/Command.h"

namespace plot3d::program {

/// Shortened: readings that follow one another and fail alike stand in one row, and of many rows of
/// a kind those are shown whose first misfit is furthest behind.
void printWhy(const FileInfo& info, analysis::Lists_e lists, const Surroundings_s& surroundings);

} // namespace plot3d::program
