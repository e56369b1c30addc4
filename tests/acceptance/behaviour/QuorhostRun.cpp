#include "acceptance/behaviour/QuorhostRun.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

namespace {

std::string contentsOf(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// The set of caught signals as Linux tells it; 0 once the process is gone.
std::uint64_t caughtSignals(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    const std::string key = "SigCgt:";
    for (std::string line; std::getline(status, line);)
        if (line.compare(0, key.size(), key) == 0)
            return std::strtoull(line.c_str() + key.size(), nullptr, 16);
    return 0;
}

} // namespace

RunningProgram::RunningProgram(const std::vector<std::string>& command, const std::string& folder)
    : outFile_(folder + "/out.txt"), errFile_(folder + "/err.txt") {
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&actions, 1, outFile_.c_str(), flags, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, errFile_.c_str(), flags, 0600);
    const int failure =
        posix_spawn(&process_, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0)
        throw std::runtime_error("cannot start " + command[0]);
}

RunningProgram::~RunningProgram() {
    if (process_ < 0)
        return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

bool RunningProgram::waitUntilItCatchesInterrupts() const {
    constexpr std::uint64_t interruptBit = std::uint64_t{1} << (SIGINT - 1);
    while ((caughtSignals(process_) & interruptBit) == 0) {
        siginfo_t ended = {};
        if (waitid(P_PID, static_cast<id_t>(process_), &ended, WEXITED | WNOHANG | WNOWAIT) != 0 ||
            ended.si_pid != 0)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

void RunningProgram::interrupt() const {
    kill(process_, SIGINT);
}

ProgramResult_s RunningProgram::waitForEnd() {
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = -1;
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentsOf(outFile_),
            contentsOf(errFile_)};
}

ProgramResult_s runProgram(const std::vector<std::string>& command) {
    const TemporaryDirectory folder;
    return RunningProgram(command, folder.path().string()).waitForEnd();
}

} // namespace quorvia::testsupport
