#include "session/ActionQueue.h"

#include <utility>

namespace quorvia::host {

void ActionQueue::push(DialogAction action, std::int64_t launch) {
    {
        const std::lock_guard lock(mutex_);
        actions_.push_back({std::move(action), launch});
        ++pushedCount_;
    }
    changed_.notify_one();
}

void ActionQueue::clear() {
    const std::lock_guard lock(mutex_);
    actions_.clear();
}

void ActionQueue::endForever() {
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        actions_.clear();
    }
    changed_.notify_one();
}

std::optional<DialogAction> ActionQueue::take(std::int64_t launch) {
    const std::lock_guard lock(mutex_);
    return takeLocked(launch);
}

DialogAction ActionQueue::wait(std::int64_t launch) {
    std::unique_lock lock(mutex_);
    std::optional<DialogAction> action;
    changed_.wait(lock, [&] { return ended_ || (action = takeLocked(launch)).has_value(); });
    return ended_ ? PressDialogButton_s{DialogButton_e::Cancel} : *std::move(action);
}

std::int64_t ActionQueue::pushedCount() const {
    const std::lock_guard lock(mutex_);
    return pushedCount_;
}

std::optional<DialogAction> ActionQueue::takeLocked(std::int64_t launch) {
    while (!actions_.empty()) {
        Entry_s entry = std::move(actions_.front());
        actions_.pop_front();
        if (entry.launch == launch)
            return std::move(entry.action);
    }
    return std::nullopt;
}

} // namespace quorvia::host
