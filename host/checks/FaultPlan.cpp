#include "checks/FaultPlan.h"

namespace quorvia::host {

bool FaultPlan::isPlanned(OperationId operation, std::int64_t call) {
    return failures_.erase({operation.index(), call}) != 0 &&
           operation.traits().failure == Failure_e::Possible;
}

void FaultPlan::failCall(OperationId operation, std::int64_t n) {
    failures_.insert({operation.index(), calls(operation) + n});
}

bool FaultPlan::countStep() {
    ++steps_;
    if (interruptAt_ != 0 && steps_ >= interruptAt_)
        interrupt();
    return !isInterrupted();
}

void FaultPlan::interruptAtStep(std::int64_t n) {
    interruptAt_ = n;
    steps_ = 0;
}

void FaultPlan::endInterruption() noexcept {
    interrupted_.store(false, std::memory_order_relaxed);
    wasInterrupted_ = false;
}

void FaultPlan::endLoadOfDialog() noexcept {
    if (interrupted_.exchange(false, std::memory_order_relaxed))
        wasInterrupted_ = true;
    if (steps_ > 0) // at the first launch nothing has run yet
        interruptAt_ = 0;
}

void FaultPlan::clear() {
    calls_.fill(0);
    failures_.clear();
    interruptAt_ = 0;
    steps_ = 0;
    endInterruption();
}

void FaultPlan::swap(FaultPlan& other) noexcept {
    calls_.swap(other.calls_);
    failures_.swap(other.failures_);
    std::swap(steps_, other.steps_);
    std::swap(interruptAt_, other.interruptAt_);
    std::swap(wasInterrupted_, other.wasInterrupted_);
    const bool isInterrupted = interrupted_.exchange(other.interrupted_, std::memory_order_relaxed);
    other.interrupted_.store(isInterrupted, std::memory_order_relaxed);
}

} // namespace quorvia::host
