// What did not fit a trial, for a person.
#pragma once

#include <plot3d/FileInfo.h>

#include "inspect/reading/ExaminedFile.h"
#include "inspect/reading/Search.h"

namespace plot3dlib {

plot3d::Trial trialOf(const TrialNote_s& note, ExaminedFile& file);

} // namespace plot3dlib
