// A frame of its own for a piece of work: a load of which the user of the host sees nothing.
#pragma once

#include <cstdint>
#include <string>

#include "checks/FaultPlan.h"
#include "checks/Transcript.h"
#include "model/Frame.h"
#include "state/HostLog.h"
#include "state/HostSettings.h"
#include "toolkit/ScriptedUser.h"

namespace quorvia::host {

struct HostState_s;

/// While it lives, the host has one more frame, which is current, and everything else as at the
/// start: settings, log, counts and faults, a scripted user of its own, a free lock. When it ends
/// the frame is closed, and all comes back as it was; what the guest did against the contract
/// meanwhile stands at the end of the violations. Loaders, dialogs and handles are those of the
/// host. Several end in the opposite order to that in which they were made.
class SeparateFrame {
public:
    /// Throws std::bad_alloc, and nothing has changed then.
    SeparateFrame();
    ~SeparateFrame();
    SeparateFrame(const SeparateFrame&) = delete;
    SeparateFrame& operator=(const SeparateFrame&) = delete;

    Frame& frame() { return frame_; }
    ScriptedUser& user() { return user_; }

private:
    struct Balances_s {
        std::int64_t entryLockDepth = 0;
        std::int64_t guestLockDepth = 0;
        std::int64_t openUndoStates = 0;
        std::int64_t openProgressBars = 0;
        std::int64_t timeDeferrers = 0;
        bool solutionTimesChanged = false;
    };
    /// Once to put aside what is there, once to bring it back.
    void exchange() noexcept;

    HostState_s& host_;
    Frame& before_;
    ScriptedUser user_;
    User* otherUser_ = &user_;
    HostSettings_s settings_;
    HostLog_s log_;
    FaultPlan faults_;
    Transcript transcript_;
    std::string lastError_;
    Balances_s balances_;
    Frame& frame_; // last, so that nothing is left undone if there is no memory for it
};

} // namespace quorvia::host
