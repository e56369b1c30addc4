// The built programs, run as a user runs them.
#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace quorvia::testsupport {

struct ProgramResult_s {
    int exitCode = -1; // -1: ended by a signal
    std::string out;   // standard output
    std::string err;   // standard error
};

/// A program that runs, its output led into files of a folder that must outlive it. Destruction
/// kills it if nobody waited for its end.
class RunningProgram {
public:
    /// `command[0]` is the program's path. Throws std::runtime_error if it can't be started.
    RunningProgram(const std::vector<std::string>& command, const std::string& folder);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Waits until it has a handler for SIGINT; false if it ended without.
    bool waitUntilItCatchesInterrupts() const;
    void interrupt() const;
    ProgramResult_s waitForEnd();

private:
    pid_t process_ = -1;
    std::string outFile_;
    std::string errFile_;
};

ProgramResult_s runProgram(const std::vector<std::string>& command);

} // namespace quorvia::testsupport
