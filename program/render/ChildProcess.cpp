#include "render/ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <sstream>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace {

/// No signal reaches this thread while it lives.
class SignalsHeldBack {
public:
    SignalsHeldBack() {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    ~SignalsHeldBack() { letThrough(); }
    SignalsHeldBack(const SignalsHeldBack&) = delete;
    SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;

    void letThrough() const { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

private:
    sigset_t before_ = {};
};

/// In the child, between fork and exec: nothing but system calls.
[[noreturn]] void becomeProgram(const char* program, char* const* arguments, int keptOpen,
                                pid_t parent, const SignalsHeldBack& signals) {
    // The parent's handlers would tell the parent of signals that the child gets.
    signal(SIGINT, SIG_DFL);
    signal(SIGTERM, SIG_DFL);
    signals.letThrough();
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent)
        _exit(127); // it has ended meanwhile
    setpgid(0, 0);  // Ctrl-C at the terminal is the parent's matter
    const int nothing = open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nothing, stream);
    if (keptOpen >= 0)
        fcntl(keptOpen, F_SETFD, 0);
    execv(program, arguments);
    _exit(127);
}

} // namespace

std::string programInPath(const std::string& name) {
    const char* const path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::string file = (folder.empty() ? "." : folder) + "/" + name;
        if (access(file.c_str(), X_OK) == 0)
            return file;
    }
    return {};
}

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments,
                           int keptOpen) {
    std::vector<std::string> words = {program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const pid_t parent = getpid();
    const SignalsHeldBack signals;
    child_ = fork();
    if (child_ < 0)
        throw Error(ErrorKind::Refused, program + " can't be started: " + std::strerror(errno));
    if (child_ == 0)
        becomeProgram(words[0].c_str(), pointers.data(), keptOpen, parent, signals);
}

ChildProcess::~ChildProcess() {
    if (ended())
        return;
    kill(child_, SIGTERM);
    int status = 0;
    while (waitpid(child_, &status, 0) < 0 && errno == EINTR) {
    }
}

std::optional<int> ChildProcess::ended() {
    int status = 0;
    if (!code_ && waitpid(child_, &status, WNOHANG) == child_)
        code_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return code_;
}

} // namespace plot3d::program
