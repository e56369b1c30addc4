// The built program as a user starts it.
#include <array>
#include <csignal>
#include <cstdio>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "support/Json.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::host {
namespace {

struct Ended_s {
    int status = 0; // as wait gives it
    std::string out;

    int exitCode() const { return WIFEXITED(status) ? WEXITSTATUS(status) : -1; }
};

/// Standard error stays out of the result, unless `arguments` lead it elsewhere.
Ended_s runProgram(const std::string& arguments) {
    Ended_s ended;
    const std::string command = "exec '" QUORHOST_PROGRAM "' " + arguments;
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error("can't start " + command);
    std::array<char, 4096> buffer = {};
    for (std::size_t count = 0; (count = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
        ended.out.append(buffer.data(), count);
    ended.status = pclose(pipe);
    return ended;
}

const std::string withFake = "load --addon '" FAKE_ADDON "' ";

TEST(Program, VersionAndHelpEndWell) {
    EXPECT_EQ(0U, runProgram("--version").out.find("quorhost "));
    EXPECT_EQ(0, runProgram("--version").exitCode());
    EXPECT_EQ(0, runProgram("--help").exitCode());
    EXPECT_EQ(0, runProgram("load --help").exitCode());
}

TEST(Program, BadUsageEndsWith2AndWritesNothingOut) {
    const Ended_s ended = runProgram("load a.g --set A=1 2>/dev/null");
    EXPECT_EQ(2, ended.exitCode());
    EXPECT_EQ("", ended.out);
}

TEST(Program, JsonIsAllThatGoesToStandardOutput) {
    const Ended_s ended = runProgram(withFake + "well.g --json -");
    EXPECT_EQ(0, ended.exitCode());
    EXPECT_EQ("quorhost.outcome/1", testsupport::Json::parse(ended.out)["schema"]);
}

TEST(Program, ErrorsGoToStandardErrorWithoutColourOrProgress) {
    const Ended_s ended = runProgram(withFake + "fail.g 2>&1 >/dev/null");
    EXPECT_EQ(1, ended.exitCode());
    EXPECT_EQ("quorhost: error: It can't be read.\n    File: fail.g\n", ended.out);
}

TEST(Program, MissingAddOnEndsWith1) {
    const testsupport::TemporaryDirectory directory;
    const Ended_s ended =
        runProgram("load a.g --json - --addon '" + directory.file("none.so") + "' 2>/dev/null");
    EXPECT_EQ(1, ended.exitCode());
    EXPECT_TRUE(testsupport::Json::parse(ended.out)["hostError"].isText());
}

TEST(Program, FirstCtrlCEndsTheLoadWith130) {
    EXPECT_EQ(130, runProgram(withFake + "ctrl-c.g 2>/dev/null").exitCode());
}

TEST(Program, SecondCtrlCEndsTheProgram) {
    const Ended_s ended = runProgram(withFake + "ctrl-c-twice.g 2>/dev/null");
    ASSERT_TRUE(WIFSIGNALED(ended.status));
    EXPECT_EQ(SIGINT, WTERMSIG(ended.status));
}

} // namespace
} // namespace quorvia::host
