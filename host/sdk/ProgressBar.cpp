#include "sdk/ProgressBar.h"

#include <algorithm>

#include "state/HostState.h"

namespace quorvia::host {

std::shared_ptr<TaskNode> TaskNode::addSubTask(std::int64_t weight) {
    subTasks_.push_back(std::make_shared<TaskNode>(this, weight));
    return subTasks_.back();
}

void TaskNode::end() {
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

ProgressBar::ProgressBar(std::int64_t steps) : isInner_(hostState().openProgressBars++ > 0) {
    top_->setStepCount(steps);
}

ProgressBar::~ProgressBar() {
    --hostState().openProgressBars;
    tell(false);
}

void ProgressBar::showText(const std::string& text) {
    text_ = text;
    hostState().log.progress.add(text);
    showFraction();
}

void ProgressBar::showFraction() {
    if (!hostState().settings.progressObserver || isInner_)
        return;
    shown_ = std::max(shown_, top_->fraction());
    tell(true);
}

void ProgressBar::tell(bool isOpen) {
    const auto& observer = hostState().settings.progressObserver;
    if (observer && !isInner_)
        observer({shown_, text_, isOpen});
}

} // namespace quorvia::host
