// How the reference host is to behave: what a user of the host, or a test, may choose.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "state/HostLog.h"

namespace quorvia::host {

/// What a progress bar shows at one moment.
struct ProgressState_s {
    double fraction = 0.0; // of the whole bar, from 0 to 1; never goes back
    std::string text;      // the text shown last
    bool open = true;      // false once, when the bar closes
};

struct HostSettings_s {
    std::int32_t version = 1000377;  // what the host claims to be
    bool sharingAllowed = true;      // fields and node maps may be shared between zones
    bool refuseInstructions = false; // do not take the instructions that repeat a load
    bool plainArrays =
        true; // false: stored fields have no plain array and are written value by value
    /// Times for file names, one for each name, in order. Without a list the host's own rule finds
    /// them; an empty list, or one of another length than the names, finds none.
    std::optional<std::vector<double>> timesFromFileNames;
    std::int64_t memoryLimitBytes = 0; // budget for values fetched on demand; 0 for none
    /// Called at each change of a progress bar, and for each message once it is answered.
    std::function<void(const ProgressState_s&)> progressObserver;
    std::function<void(const Message_s&)> messageObserver;
};

} // namespace quorvia::host
