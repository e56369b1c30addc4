#include "app/StopOnSignal.h"

#include <array>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include "console/WholeFile.h"
#include "manners/Command.h"

namespace plot3d::program {
namespace {

constexpr char stopWanted = 's';
constexpr char programEnds = 'e';

int gPipe = -1; // where the handler writes to

extern "C" void noteSignal(int) {
    const int error = errno;
    // Nothing can be done in a handler if the pipe does not take it; the second signal ends all.
    [[maybe_unused]] const ssize_t written = write(gPipe, &stopWanted, 1);
    errno = error;
}

/// The next byte of the pipe; 0 if none comes within the time, or ever. -1 waits for ever.
char nextByte(int readEnd, int milliseconds) {
    pollfd waiting = {readEnd, POLLIN, 0};
    int ready = 0;
    do
        ready = poll(&waiting, 1, milliseconds);
    while (ready < 0 && errno == EINTR);
    char byte = 0;
    return ready > 0 && read(readEnd, &byte, 1) == 1 ? byte : '\0';
}

/// A command that hangs in a read of a dead disk, or waits for standard input, asks nothing.
[[noreturn]] void endAtOnce() {
    console::Growing::deleteAll();
    constexpr std::array text = {'\n', 'p', 'l', 'o', 't', '3', 'd', ':', ' ',
                                 's',  't', 'o', 'p', 'p', 'e', 'd', '\n'};
    [[maybe_unused]] const ssize_t told = write(STDERR_FILENO, text.data(), text.size());
    _exit(ExitCode_Interrupted);
}

} // namespace

StopOnSignal::StopOnSignal() noexcept {
    std::array<int, 2> ends = {-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    readEnd_ = ends[0];
    writeEnd_ = ends[1];
    try {
        waiter_ = std::thread([this] { wait(); });
    } catch (const std::system_error&) { // no thread: signals have their usual effect
        closePipe();
        return;
    }
    gPipe = writeEnd_;
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    // The handler goes with the first signal: the second one then has the usual effect. Reads of
    // files are carried on, not cut short.
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    sigaction(SIGINT, &action, &interruptBefore_);
    sigaction(SIGTERM, &action, &terminateBefore_);
}

StopOnSignal::~StopOnSignal() {
    if (!waiter_.joinable())
        return;
    sigaction(SIGINT, &interruptBefore_, nullptr);
    sigaction(SIGTERM, &terminateBefore_, nullptr);
    [[maybe_unused]] const ssize_t written = write(writeEnd_, &programEnds, 1);
    waiter_.join();
    closePipe();
}

void StopOnSignal::wait() {
    constexpr int forEver = -1;
    constexpr int patience = 150; // milliseconds for the command to end by itself
    if (nextByte(readEnd_, forEver) != stopWanted)
        return;
    source_.request_stop();
    while (true) {
        const char byte = nextByte(readEnd_, patience);
        if (byte == programEnds)
            return;
        if (byte == '\0')
            endAtOnce();
    }
}

void StopOnSignal::closePipe() {
    close(readEnd_);
    close(writeEnd_);
}

} // namespace plot3d::program
