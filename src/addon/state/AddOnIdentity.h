// The add-on's identity at the host, which every lock call passes.
#pragma once

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Null until the entry has registered the add-on.
extern QuorAddOnHandle addOnID;

} // namespace quorvia::quorutildataio
