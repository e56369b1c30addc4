// The last state of a progress bar, on its way from the guest's thread to the windows'. A load of
// many files tells thousands of states; the windows look as often as the eye does.
#pragma once

#include <mutex>
#include <optional>

#include "state/HostSettings.h"

namespace quorvia::host {

class ProgressFeed {
public:
    void put(const ProgressState_s& state);
    /// The last state, if one was put since the last time.
    std::optional<ProgressState_s> take();

private:
    std::mutex mutex_;
    std::optional<ProgressState_s> last_;
};

} // namespace quorvia::host
