// Ctrl-C while a load runs: the first one interrupts the load the way a host's user would, the
// second one ends the program.
#pragma once

#include <csignal>

namespace quorvia::host {

/// While one lives, SIGINT goes to ReferenceHost::requestInterrupt(). At most one at a time.
class InterruptOnSignal {
public:
    InterruptOnSignal();
    /// What handled SIGINT before handles it again.
    ~InterruptOnSignal();
    InterruptOnSignal(const InterruptOnSignal&) = delete;
    InterruptOnSignal& operator=(const InterruptOnSignal&) = delete;

    /// Whether a SIGINT has come since the construction.
    bool happened() const;

private:
    struct sigaction before_ = {};
};

} // namespace quorvia::host
