// What the user did at a dialog, on its way from the windows' thread to the guest's.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>

#include "toolkit/DialogAction.h"

namespace quorvia::host {

/// All operations may be called from either thread.
class ActionQueue {
public:
    /// `launch` is the one whose window the user saw: Dialog_s::lastLaunch.
    void push(DialogAction action, std::int64_t launch);
    /// Forgets what was not taken yet.
    void clear();
    /// From now on wait() gives Cancel: there are no more windows.
    void endForever();

    /// The next action at the window of `launch`; those at other windows, which may have been used
    /// a moment before they closed, are forgotten. Nothing if there is none.
    std::optional<DialogAction> take(std::int64_t launch);
    /// The same, but waits until there is one.
    DialogAction wait(std::int64_t launch);

    /// How many actions were ever pushed: tells whether a picture of the dialog is older than what
    /// the user has done since.
    std::int64_t pushedCount() const;

private:
    struct Entry_s {
        DialogAction action;
        std::int64_t launch;
    };
    std::optional<DialogAction> takeLocked(std::int64_t launch);

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Entry_s> actions_;
    std::int64_t pushedCount_ = 0;
    bool ended_ = false;
};

} // namespace quorvia::host
