#include "services/ProgressBar.h"

#include <algorithm>
#include <new>

#include "state/HostState.h"

namespace quorvia::host {

void TaskNode::end() noexcept {
    for (const std::shared_ptr<TaskNode>& subTask : subTasks_)
        subTask->parent_ = nullptr;
    if (parent_ == nullptr)
        return;
    parent_->endedWeight_ += weight_;
    std::vector<std::shared_ptr<TaskNode>>& siblings = parent_->subTasks_;
    const auto isThis = [this](const std::shared_ptr<TaskNode>& task) {
        return task.get() == this;
    };
    siblings.erase(std::remove_if(siblings.begin(), siblings.end(), isThis), siblings.end());
}

// A task that never tells its steps, and has no sub-tasks, takes as many as it weighs.
std::int64_t TaskNode::expectedSteps() const {
    const bool isWhole = subTasks_.empty() && endedWeight_ == 0;
    return stepCount_ == 0 && isWhole ? weight_ : stepCount_;
}

double TaskNode::fraction() const {
    const std::int64_t expected = expectedSteps();
    double whole = static_cast<double>(expected) + static_cast<double>(endedWeight_);
    double done =
        static_cast<double>(std::min(steps_, expected)) + static_cast<double>(endedWeight_);
    for (const std::shared_ptr<TaskNode>& subTask : subTasks_) {
        whole += static_cast<double>(subTask->weight_);
        done += static_cast<double>(subTask->weight_) * subTask->fraction();
    }
    return whole > 0.0 ? done / whole : 0.0;
}

void ProgressBar::open() noexcept {
    shown_.open = true;
    isInner_ = hostState().openProgressBars++ > 0;
}

ProgressBar::~ProgressBar() {
    if (!shown_.open)
        return;
    --hostState().openProgressBars;
    shown_.open = false;
    tell();
}

void ProgressBar::makeRoomFor(const std::string& text) {
    shown_.text.reserve(text.size());
    hostState().log.progress.makeRoomFor(text);
}

void ProgressBar::showText(const std::string& text) noexcept {
    shown_.text = text;
    hostState().log.progress.add(text);
    showFraction();
}

void ProgressBar::showFraction() noexcept {
    if (!hostState().settings.progressObserver || isInner_)
        return;
    shown_.fraction = std::max(shown_.fraction, top_->fraction());
    tell();
}

void ProgressBar::tell() noexcept {
    const auto& observer = hostState().settings.progressObserver;
    try {
        if (observer && !isInner_)
            observer(shown_);
    } catch (const std::bad_alloc&) {
        ++hostState().log.lostEntries;
    }
}

} // namespace quorvia::host
