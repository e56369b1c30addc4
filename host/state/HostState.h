// All that the reference host knows, in one place that its services share.
#pragma once

#include <cstdint>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/FaultPlan.h"
#include "checks/HandleRegistry.h"
#include "checks/MemoryLedger.h"
#include "checks/TextParts.h"
#include "checks/Transcript.h"
#include "model/FieldCache.h"
#include "model/FrameList.h"
#include "state/HostLog.h"
#include "state/HostSettings.h"
#include "state/Loader.h"
#include "toolkit/ScriptedUser.h"
#include "toolkit/Toolkit.h"

namespace quorvia::host {

struct HostState_s {
    HostSettings_s settings;
    HostLog_s log;
    FaultPlan faults;
    Transcript transcript;

    SerialSource serials;
    std::int64_t resetSerial = 0; // what was given out up to here is no concern of leak checks
    HandleRegistry handles{serials};
    MemoryLedger memory{serials};

    std::int64_t entryLockDepth = 0; // of QuorUtilLockOn
    std::int64_t guestLockDepth = 0; // of QuorUtilLockStart
    std::int64_t openUndoStates = 0;
    std::int64_t openProgressBars = 0;
    std::int64_t timeDeferrers = 0;
    bool solutionTimesChanged = false; // and nobody was told yet
    std::string lastError;

    std::vector<Loader_s> loaders;
    std::vector<QuorStateChangeCallback> stateChangeCallbacks;
    Toolkit toolkit;
    ScriptedUser script;
    User* user = &script; // never null

    FieldCache cache; // outlives the frames, whose fields it counts
    FrameList frames;

    /// The current one.
    Frame& frame() const { return frames.current(); }

    std::int64_t lockDepth() const { return entryLockDepth + guestLockDepth; }
    /// A breach of the contract by the guest, put together from parts (checks/TextParts). Needs no
    /// memory: without it the violation is counted, and told as soon as there is some.
    template <typename... Parts>
    void addViolation(const Parts&... parts) noexcept {
        try {
            log.violations.push_back(joined(parts...));
        } catch (const std::bad_alloc&) {
            ++log.lostViolations;
        }
    }
    /// Likewise, for QuorUtilPostLastErrorMessage.
    template <typename... Parts>
    void keepLastError(const Parts&... parts) noexcept {
        try {
            lastError = joined(parts...);
        } catch (const std::bad_alloc&) {
            lastError = "no memory"; // so short a text needs none
        }
    }
    /// Says in the log what could not be kept there.
    void tellLosses();

    /// Brings a field into memory, within the budget that is set now.
    bool fetch(FieldStorage& storage);
    /// Logs the message; a text that only tells is shown to the user, a question was. Needs no
    /// memory of the host's.
    void showMessage(MessageKind_e kind, std::string_view text,
                     std::optional<bool> answer = std::nullopt);
    void tellSolutionTimes();
    /// Those that are there now; one that a callback adds is not called.
    void callStateChangeCallbacks(std::int32_t code);

private:
    template <typename Show>
    void show(Show showIt);
};

/// The state of the one host.
HostState_s& hostState();

} // namespace quorvia::host
