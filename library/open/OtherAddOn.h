// An add-on in a dynamic library, as a guest of the host in place of the linked-in one.
#pragma once

#include <string>

#include "state/Loader.h"

namespace plot3dlib {

/// The loader that the add-on at `path` has registered. Opens the library the first time; it stays
/// until the program ends, since fields of open data sets are read by its code. Throws
/// plot3d::Error (NotFound, Unsupported). The host lock must be held.
const quorvia::host::Loader_s& loaderOfAddOn(const std::string& path);

} // namespace plot3dlib
