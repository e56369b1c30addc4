// Another program beside this one, which ends no later.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace plot3d::program {

/// The file of that name in the folders of PATH that may be executed; empty if there is none.
std::string programInPath(const std::string& name);

class ChildProcess {
public:
    /// Starts it with these arguments (the program's name apart) and without standard input; what
    /// it says goes nowhere. `keptOpen`: a descriptor that it has under the same number, or -1. To
    /// be called on the main thread: the child is ended when that thread ends, however it does.
    /// Throws plot3d::Error (Refused).
    ChildProcess(const std::string& program, const std::vector<std::string>& arguments,
                 int keptOpen = -1);
    /// Ends it.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Whether it has ended: its exit code, or -1 after a signal.
    std::optional<int> ended();

private:
    pid_t child_ = -1;
    std::optional<int> code_;
};

} // namespace plot3d::program
