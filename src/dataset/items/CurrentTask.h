// The progress task of the dataset stage. Stages deep inside a load show their texts and count
// their steps on it, so that they need no task argument.
#pragma once

#include <memory>

#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::quorutildataio {

/// Process-wide; empty between loads. Loads cannot overlap under the host's lock.
extern std::unique_ptr<TaskProgress> currentTask;

} // namespace quorvia::quorutildataio
