// The program as a process: signals and terminals.
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Runs the program in the place of this process, which a fork has made.
[[noreturn]] void become(const std::vector<const char*>& arguments) {
    std::vector<char*> words = {const_cast<char*>(PLOT3D_PROGRAM)};
    for (const char* argument : arguments)
        words.push_back(const_cast<char*>(argument));
    words.push_back(nullptr);
    execv(PLOT3D_PROGRAM, words.data());
    _exit(127);
}

/// Whether the process has a handler of its own for the signal by now.
bool catches(pid_t process, int signal) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("SigCgt:", 0) == 0)
            return (std::stoull(line.substr(7), nullptr, 16) >> (signal - 1) & 1U) != 0;
    return false;
}

/// The program under a terminal of that width: what it showed, and its exit code.
std::string shownAtTerminal(const std::vector<const char*>& arguments, unsigned short columns) {
    winsize size = {24, columns, 0, 0};
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        setenv("TERM", "xterm", 1);
        unsetenv("NO_COLOR");
        become(arguments);
    }
    std::string shown;
    std::array<char, 4096> block{};
    for (ssize_t count = 0; (count = read(terminal, block.data(), block.size())) > 0;)
        shown.append(block.data(), static_cast<std::size_t>(count));
    close(terminal);
    waitpid(child, nullptr, 0);
    return shown;
}

// It waits for names of files on standard input, and asks for no stop: it has to be ended.
TEST(Process, EndsByCtrlCWhereverItHangs) {
    std::array<int, 2> input{};
    ASSERT_EQ(pipe2(input.data(), O_CLOEXEC), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(input[0], STDIN_FILENO);
        become({"info", "-"});
    }
    while (!catches(child, SIGINT))
        std::this_thread::yield();
    kill(child, SIGINT);
    int status = 0;
    waitpid(child, &status, 0);
    close(input[0]);
    close(input[1]);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 130);
}

TEST(Process, HelpFitsItsTerminal) {
    std::istringstream lines(shownAtTerminal({"info", "--help"}, 60));
    std::size_t longest = 0;
    for (std::string line; std::getline(lines, line) && line != "Examples:\r";)
        longest = std::max(longest, line.size());
    EXPECT_GT(longest, 50U);
    EXPECT_LE(longest, 61U); // with the end of its line
}

} // namespace
