#include "desktop/CommandLine.h"

#include <sstream>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

class DesktopCommandLine : public ::testing::Test {
protected:
    /// The exit code; -1 if there is a window to open.
    int parse(const std::vector<std::string>& arguments) {
        const auto command = parseDesktopCommandLine(arguments, out_, err_);
        if (const auto* taken = std::get_if<DesktopArguments_s>(&command))
            arguments_ = *taken;
        const int* code = std::get_if<int>(&command);
        return code != nullptr ? *code : -1;
    }
    const DesktopArguments_s& arguments() const { return arguments_; }
    std::string out() const { return out_.str(); }
    std::string err() const { return err_.str(); }

private:
    std::ostringstream out_;
    std::ostringstream err_;
    DesktopArguments_s arguments_;
};

TEST_F(DesktopCommandLine, OpensAnEmptyWindowByDefault) {
    EXPECT_EQ(parse({}), -1);
    EXPECT_TRUE(arguments().files.empty());
    EXPECT_EQ(arguments().addOnPath, "");
}

TEST_F(DesktopCommandLine, TakesFilesAsTheyStand) {
    EXPECT_EQ(parse({"a [1].x", "{b}.q", "--addon", "lib.so"}), -1) << err();
    EXPECT_EQ(arguments().files, (std::vector<std::string>{"a [1].x", "{b}.q"}));
    EXPECT_EQ(arguments().addOnPath, "lib.so");
}

TEST_F(DesktopCommandLine, TellsItsVersion) {
    EXPECT_EQ(parse({"--version"}), 0);
    EXPECT_EQ(out().rfind("quorhost-desktop ", 0), 0U);
}

TEST_F(DesktopCommandLine, HelpTellsOptionsExamplesAndExitCodes) {
    EXPECT_EQ(parse({"--help"}), 0);
    for (const char* part : {"--addon PATH", "Examples:", "Exit codes:"})
        EXPECT_NE(out().find(part), std::string::npos) << part;
    EXPECT_EQ(err(), "");
}

TEST_F(DesktopCommandLine, UnknownOptionIsBadUsage) {
    EXPECT_EQ(parse({"--wrong"}), 2);
    EXPECT_EQ(err().rfind("quorhost-desktop: error: ", 0), 0U);
    EXPECT_EQ(out(), "");
}

} // namespace
} // namespace quorvia::host
