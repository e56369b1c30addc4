#include "session/ProgressFeed.h"

#include <utility>

namespace quorvia::host {

void ProgressFeed::put(const ProgressState_s& state) {
    const std::lock_guard lock(mutex_);
    last_ = state;
}

std::optional<ProgressState_s> ProgressFeed::take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(last_, std::nullopt);
}

} // namespace quorvia::host
