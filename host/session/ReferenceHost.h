// The reference host as its programs and tests see it: frames, the services that a guest calls, and
// what a user does at the host: import files, answer questions, look at values, interrupt.
// Everything runs on the thread of the caller; requestInterrupt and interruptRequested alone may
// come from elsewhere.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/Frame.h"
#include "state/HostLog.h"
#include "state/HostSettings.h"
#include "state/Loader.h"
#include "toolkit/ScriptedUser.h"
#include "toolkit/Toolkit.h"

namespace quorvia::host {

struct HostState_s;

/// How an import ended.
struct LoadResult_s {
    bool ok = false; // of a selection: instructions were handed over and taken in this import
    bool interrupted = false; // by the user, or by interruptAtStep
    std::string hostError;    // what stopped the host itself, want of memory too; empty for nothing
};

/// The values of one field.
struct FetchResult_s {
    bool ok = false;
    std::string error;            // why not; several messages are joined by line ends
    const void* values = nullptr; // I fastest, then J, then K; valid until the next fetch or unload
    std::int64_t count = 0;       // values
    std::int32_t type = QuorFieldDataType_Invalid;
};

class ReferenceHost {
public:
    static ReferenceHost& instance();
    ReferenceHost(const ReferenceHost&) = delete;
    ReferenceHost& operator=(const ReferenceHost&) = delete;

    /// Everything as at the start: the data sets are discarded (with their clean-up callbacks), and
    /// all frames but the first,
    /// settings, log, script, faults and counts are new, unique ids begin again, the lock is free,
    /// and the user is the scripted one. Loaders, state-change callbacks, dialogs (closed, with
    /// their values) and the handles of guests stay; what is held from before is no concern of
    /// later leak checks.
    void reset();
    /// Empties the log alone.
    void clearLog();

    HostSettings_s& settings();
    const HostLog_s& log() const;
    /// The current one: imports go there, and fetches go by its numbers.
    Frame& frame();
    /// All of them; the first one is there always.
    const std::vector<std::unique_ptr<Frame>>& frames() const;
    /// An empty frame; the current one stays. Throws std::bad_alloc.
    Frame& addFrame();
    void makeCurrent(Frame& frame);
    /// Ends the frame and its data set, with the clean-up callbacks. If it was current, the first
    /// one is from now on; of the first frame the data set alone ends.
    void closeFrame(Frame& frame);
    /// How deep the guest holds the host's lock, by all its means together.
    std::int64_t lockDepth() const;
    /// Bytes of values fetched on demand that are in memory now.
    std::int64_t fetchedBytes() const;

    // ---- What the user does ---------------------------------------------------------------------

    /// The registered loaders, in order; an import goes to the last one.
    const std::vector<Loader_s>& loaders() const;
    std::vector<std::string> loaderNames() const;
    /// Hands `files` to the loader registered last, as the import menu does.
    LoadResult_s importSelection(const std::vector<std::string>& files, bool advanced, bool append);
    /// Hands the loader instructions, as a macro or a layout does.
    LoadResult_s importInstructions(const std::vector<std::string>& instructions);
    /// The same for a loader that need not be the last one: one of loaders(), or a copy.
    LoadResult_s importInstructions(const std::vector<std::string>& instructions,
                                    const Loader_s& loader);

    /// Who answers the host and works with its dialogs: `user`, which must live on; null for the
    /// scripted user, who does at first.
    void setUser(User* user);
    ScriptedUser& script();
    /// The dialogs that guests have made.
    const Toolkit& toolkit() const;
    /// Of the scripted user: answers to the questions to come, in order; once they are used up,
    /// `afterwards` answers all.
    void setAnswers(std::deque<bool> answers, bool afterwards);
    /// What the scripted user picks in file dialogs, one entry for each; none left means Cancel.
    void setFileChoices(std::deque<std::vector<std::string>> choices);
    /// Stops the load or read that runs. Safe in a signal handler. It stands until an import ends
    /// or shows a dialog, or until clearFaults or reset.
    void requestInterrupt() noexcept;
    bool interruptRequested() const noexcept;

    /// The values of a field, numbers from 1; a deferred field is fetched if it is not in memory.
    FetchResult_s fetch(std::int32_t zone, std::int32_t variable);
    /// Drops fetched values. False: nothing was in memory, or the guest does not allow it.
    bool unload(std::int32_t zone, std::int32_t variable);
    void unloadAll();
    /// Tells the callbacks of the guest that the host has changed (15 and other codes).
    void sendStateChange(std::int32_t code);

    // ---- Faults on purpose ----------------------------------------------------------------------
    // Operations are called by their names in QuorUtil.h, and those of the utility library
    // "createTaskProgressBar", "TaskProgress::step" and so on. Unknown names throw
    // std::invalid_argument.

    /// The n-th call from now, from 1, fails as the operation fails: a false or null result, or its
    /// exception. Operations that cannot fail carry on. Several may be set for one operation.
    void failCall(std::string_view operation, std::int64_t n);
    /// Calls since reset, or since clearFaults.
    std::int64_t callCount(std::string_view operation) const;
    /// The n-th step of an import (setMessage, step and stepWithMessage counted together, from 1)
    /// and every one after it asks the guest to stop. Of an import that shows a dialog the first
    /// load is meant, and no other that the user begins from there.
    void interruptAtStep(std::int64_t n);
    /// Steps of the last import, or since the last interruptAtStep if that is later.
    std::int64_t stepCount() const;
    /// No fault, no interruption, and all counts of calls and steps from 0.
    void clearFaults();

    /// Every operation, and those among them that failCall can make fail.
    static std::vector<std::string> operationNames();
    static std::vector<std::string> operationsThatCanFail();

    // ---- Checks ---------------------------------------------------------------------------------

    /// While it is on, each call adds a line to log().transcript. Switching it on numbers the
    /// handles from 1 again and empties the transcript.
    void recordTranscript(bool on);
    /// Adds a violation for each handle and each block of memory that the guest still holds, and
    /// for a lock that is held. Imports and fetches do it by themselves for what they began.
    void checkForLeaks();

    /// For the services and the session; not for programs.
    HostState_s& state() { return state_; }

private:
    ReferenceHost();
    HostState_s& state_;
};

} // namespace quorvia::host
