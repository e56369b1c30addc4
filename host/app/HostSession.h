// What every command of the program needs of the reference host: the one host for the length of a
// run, tied to the console, and the add-on that lies beside the program.
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
    HostSession(const Console_s& console, ProgressLine& progress, std::int64_t memoryLimitBytes);
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    ReferenceHost& host() const { return ReferenceHost::instance(); }
};

/// The library to open: `asGiven`, or if that is empty the one that was built with the program. As
/// a path of a file: a name without a directory would be searched among the system's libraries.
std::string addOnPath(const std::string& asGiven);

} // namespace quorvia::host
