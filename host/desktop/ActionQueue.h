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
    void push(DialogAction action);
    /// Forgets what was not taken yet.
    void clear();
    /// From now on wait() gives Cancel: there are no more windows.
    void endForever();

    /// Nothing if there is none.
    std::optional<DialogAction> take();
    /// The next action; waits until there is one.
    DialogAction wait();

    /// How many actions were ever pushed: tells whether a picture of the dialog is older than what
    /// the user has done since.
    std::int64_t pushedCount() const;

private:
    DialogAction takeFront();

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<DialogAction> actions_;
    std::int64_t pushedCount_ = 0;
    bool ended_ = false;
};

} // namespace quorvia::host
