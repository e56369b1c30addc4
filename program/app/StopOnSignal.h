// Ctrl-C: the first one asks the command to stop, which it does at its next step; if it has not
// ended soon after, the program ends by itself. The second one ends it at once.
#pragma once

#include <csignal>
#include <stop_token>
#include <thread>

namespace plot3d::program {

/// While one lives, SIGINT and SIGTERM request a stop. At most one at a time.
class StopOnSignal {
public:
    /// Without the means for it (pipe, thread) signals have their usual effect.
    StopOnSignal() noexcept;
    /// What handled the signals before handles them again.
    ~StopOnSignal();
    StopOnSignal(const StopOnSignal&) = delete;
    StopOnSignal& operator=(const StopOnSignal&) = delete;

    std::stop_token token() const { return source_.get_token(); }

private:
    void wait();
    void closePipe();

    std::stop_source source_;
    std::thread waiter_; // a signal handler may not request a stop itself
    int readEnd_ = -1;
    int writeEnd_ = -1;
    struct sigaction interruptBefore_ = {};
    struct sigaction terminateBefore_ = {};
};

} // namespace plot3d::program
