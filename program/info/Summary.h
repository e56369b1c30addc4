// A file for a person: a few lines that tell what it is, and what is wrong with it.
#pragma once

#include <plot3d/FileInfo.h>

#include "analysis/findings/Findings.h"
#include "manners/Command.h"

namespace plot3d::program {

void printSummary(const FileInfo& info, analysis::Lists_e lists,
                  const Surroundings_s& surroundings);

} // namespace plot3d::program
