// The tasks behind a progress bar: a tree in which each task counts steps of its own and gives
// shares of its length to sub-tasks.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quorvia::host {

/// One task as the bar sees it; it outlives the guest's object if a sub-task does.
class TaskNode {
public:
    TaskNode(TaskNode* parent, std::int64_t weight) : parent_(parent), weight_(weight) {}

    std::shared_ptr<TaskNode> addSubTask(std::int64_t weight);
    void setStepCount(std::int64_t steps) { stepCount_ = steps; }
    void countStep() { ++steps_; }
    /// The task has ended: it fills its share of the parent.
    void end();

    bool hasRunningSubTasks() const { return !subTasks_.empty(); }
    TaskNode* parent() const { return parent_; }
    /// From 0 to 1. Steps count 1 each and sub-tasks their weight.
    double fraction() const;

private:
    std::int64_t expectedSteps() const;

    TaskNode* parent_; // null for the top task, and once the parent has ended
    std::int64_t weight_;
    std::int64_t stepCount_ = 0;
    std::int64_t steps_ = 0;
    std::int64_t endedWeight_ = 0;
    std::vector<std::shared_ptr<TaskNode>> subTasks_; // those that still run
};

/// One bar on the user's screen. A bar that is opened while another stands, as that of a field
/// which a load makes the host fetch, counts and is not shown.
class ProgressBar {
public:
    explicit ProgressBar(std::int64_t steps);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    const std::shared_ptr<TaskNode>& top() const { return top_; }
    void showText(const std::string& text);
    /// Tells the observer how far the bar is.
    void showFraction();

private:
    void tell(bool isOpen);

    const bool isInner_;
    std::shared_ptr<TaskNode> top_ = std::make_shared<TaskNode>(nullptr, 0);
    std::string text_;
    double shown_ = 0.0; // the bar never goes back, even when a task gets more to do
};

} // namespace quorvia::host
