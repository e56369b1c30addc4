// The readings that were tried on a file, in their order, with the first thing that did not fit.
#pragma once

#include <plot3d/FileInfo.h>

#include "info/Summary.h"
#include "manners/Command.h"

namespace plot3d::program {

/// Shortened: readings that follow one another and fail alike stand in one row, and those that no
/// file can have are counted only.
void printWhy(const FileInfo& info, Lists_e lists, const Surroundings_s& surroundings);

} // namespace plot3d::program
