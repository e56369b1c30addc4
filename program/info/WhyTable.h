// Every reading that was tried on a file, in its order, with the first thing that did not fit.
#pragma once

#include <plot3d/FileInfo.h>

#include "manners/Command.h"

namespace plot3d::program {

void printWhy(const FileInfo& info, const Surroundings_s& surroundings);

} // namespace plot3d::program
