// What every command of the program needs of the reference host: the one host for the length of a
// run, tied to the console.
#pragma once

#include <cstdint>
#include <string>

#include "app/Console.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {

/// The host lives as long as the program; what one run set up there must not outlive the run. One
/// at a time.
class HostSession {
public:
    /// Resets the host, sets its budget for field values, shows its progress on `progress` and its
    /// messages on the console. Both are borrowed.
    HostSession(const Console_s& console, console::ProgressLine& progress,
                std::int64_t memoryLimitBytes);
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    ReferenceHost& host() const { return ReferenceHost::instance(); }
};

} // namespace quorvia::host
