// Takes a data set out of a frame of the host.
#pragma once

#include <cstdint>

#include "model/Frame.h"
#include "open/Content.h"

namespace plot3dlib {

/// What becomes of fields whose place is not known: they are read now, or later through the host.
enum class HostFields_e : std::uint8_t { Fetched, LeftAtHost };

/// All of the data set but notes and files. Throws plot3d::Error if the frame has none, or if a
/// field could not be fetched. The host lock must be held.
Content_s contentOf(const quorvia::host::Frame& frame, HostFields_e hostFields);

} // namespace plot3dlib
