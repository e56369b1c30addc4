// The progress part of the utility library.
#include <new>
#include <utility>

#include "quorvia/QuorUtilityLibrary.h"
#include "services/Call.h"
#include "services/ProgressBar.h"

namespace quorvia {

namespace {

using host::Call;

class HostTask : public TaskProgress {
public:
    HostTask(std::shared_ptr<host::ProgressBar> bar, std::shared_ptr<host::TaskNode> node)
        : bar_(std::move(bar)), node_(std::move(node)) {}

    ~HostTask() override {
        Call call("TaskProgress::~TaskProgress", self());
        if (node_->hasRunningSubTasks())
            call.violation("the task ends before its sub-task");
        node_->end();
        call.host().transcript.forgetName(this);
    }

    std::unique_ptr<TaskProgress>& createSubTask(std::unique_ptr<TaskProgress>& subTask,
                                                 std::int64_t weight) override {
        Call call("TaskProgress::createSubTask", self(), weight);
        if (weight < 0)
            call.violation("negative weight");
        node_->makeRoomForSubTask();
        auto node = std::make_shared<host::TaskNode>(node_.get(), weight > 0 ? weight : 0);
        auto created = std::make_unique<HostTask>(bar_, node);
        node_->addSubTask(std::move(node));
        call.out(created->self());
        subTask = std::move(created);
        return subTask;
    }

    void setStepCount(std::int64_t steps) override {
        Call call("TaskProgress::setStepCount", self(), steps);
        if (steps < 0)
            call.violation("negative number of steps");
        node_->setStepCount(steps > 0 ? steps : 0);
    }

    bool setMessage(const std::string& text) override {
        Call call("TaskProgress::setMessage", self(), text);
        call.tryTo([&] {
            bar_->makeRoomFor(text);
            bar_->showText(text);
        });
        return call.result(mayGoOn(call));
    }

    bool step() override {
        Call call("TaskProgress::step", self());
        node_->countStep();
        bar_->showFraction();
        return call.result(mayGoOn(call));
    }

    bool stepWithMessage(const std::string& text) override {
        Call call("TaskProgress::stepWithMessage", self(), text);
        call.tryTo([&] {
            bar_->makeRoomFor(text);
            node_->countStep();
            bar_->showText(text);
        });
        return call.result(mayGoOn(call));
    }

    host::TaskName_s self() const { return {this}; }

private:
    static bool mayGoOn(Call& call) {
        const bool uninterrupted = call.host().faults.countStep();
        return uninterrupted && !call.fails();
    }

    std::shared_ptr<host::ProgressBar> bar_;
    std::shared_ptr<host::TaskNode> node_;
};

} // namespace

TaskProgress::~TaskProgress() = default;

std::unique_ptr<TaskProgress> createTaskProgressBar(std::int64_t steps) {
    Call call("createTaskProgressBar", steps);
    if (call.fails())
        throw std::bad_alloc();
    auto bar = std::make_shared<host::ProgressBar>(steps);
    auto task = std::make_unique<HostTask>(bar, bar->top());
    bar->open();
    call.out(task->self());
    return task;
}

} // namespace quorvia
