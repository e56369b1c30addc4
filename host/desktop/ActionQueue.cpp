#include "desktop/ActionQueue.h"

#include <utility>

namespace quorvia::host {

void ActionQueue::push(DialogAction action) {
    {
        const std::lock_guard lock(mutex_);
        actions_.push_back(std::move(action));
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

std::optional<DialogAction> ActionQueue::take() {
    const std::lock_guard lock(mutex_);
    if (actions_.empty())
        return std::nullopt;
    return takeFront();
}

DialogAction ActionQueue::wait() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return ended_ || !actions_.empty(); });
    if (ended_)
        return PressDialogButton{DialogButton::Cancel};
    return takeFront();
}

std::int64_t ActionQueue::pushedCount() const {
    const std::lock_guard lock(mutex_);
    return pushedCount_;
}

DialogAction ActionQueue::takeFront() {
    DialogAction action = std::move(actions_.front());
    actions_.pop_front();
    return action;
}

} // namespace quorvia::host
