#include "faults/ChildProcess.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <exception>
#include <new>
#include <stdexcept>

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvia::testsupport {

namespace {

constexpr std::size_t longestText = 8000;

/// In memory that parent and child share.
struct Shared_s {
    ChildNotes_s notes;
    char problem[longestText + 1] = "";
};

class SharedMemory {
public:
    SharedMemory()
        : memory_(mmap(nullptr, sizeof(Shared_s), PROT_READ | PROT_WRITE,
                       MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
        if (memory_ == MAP_FAILED)
            throw std::runtime_error("no shared memory");
        new (memory_) Shared_s;
    }
    ~SharedMemory() { munmap(memory_, sizeof(Shared_s)); }
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;
    Shared_s& operator*() const { return *static_cast<Shared_s*>(memory_); }

private:
    void* memory_;
};

std::string guarded(const std::function<std::string(ChildNotes_s&)>& work, ChildNotes_s& notes) {
    try {
        return work(notes);
    } catch (const std::exception& exception) {
        return std::string(notes.progress) + ": exception: " + exception.what();
    }
}

[[noreturn]] void beChild(const std::function<std::string(ChildNotes_s&)>& work, Shared_s& shared) {
    constexpr rlimit seconds = {60, 60};
    setrlimit(RLIMIT_CPU, &seconds);
    constexpr rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const std::string problem = guarded(work, shared.notes);
    const std::size_t length = std::min(problem.size(), longestText);
    std::memcpy(shared.problem, problem.data(), length);
    shared.problem[length] = '\0';
    _exit(0);
}

std::string howItDied(const Shared_s& shared, int status) {
    std::string text = std::string(shared.notes.progress) + ": the process ";
    if (WIFSIGNALED(status))
        return text + "was ended by signal " + std::to_string(WTERMSIG(status)) + " (" +
               strsignal(WTERMSIG(status)) + ")";
    return text + "exited with code " + std::to_string(WEXITSTATUS(status));
}

} // namespace

ChildResult_s runInChild(const std::function<std::string(ChildNotes_s&)>& work) {
    const SharedMemory memory;
    Shared_s& shared = *memory;
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("no child process");
    if (child == 0)
        beChild(work, shared);
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
    }
    const bool isWell = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return {isWell ? shared.problem : howItDied(shared, status), shared.notes.count};
}

} // namespace quorvia::testsupport
