// The add-on's identity at the host, which every lock call passes, and its name.
#pragma once

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Null until the entry has registered the add-on.
extern QuorAddOnHandle addOnID;

/// Under which the host knows add-on and loader, and keeps instructions and data sets.
inline constexpr const char* loaderName = "PLOT3D Loader";

} // namespace quorvia::quorutildataio
