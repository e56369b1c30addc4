// Whether a file is all right: what is wrong with it, and what a user should know of it.
#pragma once

#include <string>

#include <plot3d/FileInfo.h>

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

/// Sets `ok`, `problem` and `warnings` by what was found out.
void judge(Evidence_s& evidence, plot3d::FileInfo& info);

/// Sets the problem of a file that is something else altogether. False: it is not.
bool tellStranger(Evidence_s& evidence, plot3d::FileInfo& info);
void tellUnopened(const std::string& name, plot3d::FileInfo& info);
void tellUnreadable(const ExaminedFile& file, plot3d::FileInfo& info);

} // namespace plot3dlib
