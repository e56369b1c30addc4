// Counts of calls and of progress steps, and what is to go wrong at which count.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>

#include "checks/Operations.h"

namespace quorvia::host {

class FaultPlan {
public:
    /// Counts one call; true if it is to fail. Operations that have no way to fail never do.
    bool countCall(OperationId operation) {
        const std::int64_t call = ++calls_[operation.index()];
        return !failures_.empty() && isPlanned(operation, call);
    }
    std::int64_t calls(OperationId operation) const { return calls_[operation.index()]; }
    /// `n` counts from 1 and from now.
    void failCall(OperationId operation, std::int64_t n);

    /// Counts one progress step; false if the guest is to stop.
    bool countStep();
    std::int64_t steps() const { return steps_; }
    void restartSteps() { steps_ = 0; }
    /// `n` counts from 1.
    void interruptAtStep(std::int64_t n);

    /// Safe in a signal handler.
    void interrupt() noexcept { interrupted_.store(true, std::memory_order_relaxed); }
    bool isInterrupted() const noexcept { return interrupted_.load(std::memory_order_relaxed); }
    /// An import has ended; the plan for later steps stands.
    void endInterruption() noexcept;
    /// A dialog comes up, so that a load that ran from it has ended. The user may begin another,
    /// which neither the interruption nor the plan of one is about.
    void endLoadOfDialog() noexcept;
    /// Whether a load of the dialog was interrupted since the import began.
    bool wasInterrupted() const noexcept { return wasInterrupted_; }

    void clear();
    /// Exchanges plans, counts and interruptions. Whoever interrupts from elsewhere meanwhile
    /// interrupts one of the two.
    void swap(FaultPlan& other) noexcept;

private:
    /// Takes the failure of that call out of the plan.
    bool isPlanned(OperationId operation, std::int64_t call);

    std::array<std::int64_t, operationCount> calls_{};
    std::set<std::pair<std::size_t, std::int64_t>> failures_; // operation and call
    std::int64_t steps_ = 0;
    std::int64_t interruptAt_ = 0; // 0 for never
    std::atomic<bool> interrupted_ = false;
    bool wasInterrupted_ = false;
    static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets the flag");
};

} // namespace quorvia::host
