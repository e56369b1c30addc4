#include <filesystem>

#include <gtest/gtest.h>

#include "program/ProgramRun.h"
#include "support/TemporaryDirectory.h"

namespace plot3d::program {
namespace {

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

void expectUsageError(const std::vector<std::string>& arguments, const std::string& text) {
    const Ended_s run = ended(arguments);
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.err, "plot3d: error: " + text + "\n");
    EXPECT_EQ(run.out, "");
}

TEST(CommandLine, TellsItsVersion) {
    EXPECT_EQ(ended({"--version"}).out.rfind("plot3d ", 0), 0U);
    EXPECT_EQ(ended({"--version"}).code, 0);
}

TEST(CommandLine, HelpNamesEveryCommandExamplesAndExitCodes) {
    const Ended_s run = ended({"--help"});
    EXPECT_EQ(run.code, 0);
    for (const char* part : {"Usage: plot3d COMMAND", "\n  info ", "\nExamples:\n", "\n  130 "})
        EXPECT_TRUE(contains(run.out, part)) << part;
}

TEST(CommandLine, HelpOfACommandComesInTwoWays) {
    const Ended_s run = ended({"info", "--help"});
    EXPECT_EQ(run.code, 0);
    for (const char* part : {"Usage: plot3d info", "--why", "--quiet", "\nExamples:\n", "\n  1  "})
        EXPECT_TRUE(contains(run.out, part)) << part;
    EXPECT_EQ(ended({"help", "info"}).out, run.out);
}

TEST(CommandLine, HelpFitsEightyColumns) {
    for (const auto& arguments : {std::vector<std::string>{"--help"}, {"help", "info"}}) {
        std::istringstream lines(ended(arguments).out);
        for (std::string line; std::getline(lines, line);)
            EXPECT_LE(line.size(), 80U) << line;
    }
}

TEST(CommandLine, NothingAtAllIsBadUsage) {
    expectUsageError({}, "nothing to do: give files, or a command; plot3d --help lists them");
}

TEST(CommandLine, ASlipInACommandIsTold) {
    expectUsageError({"inof", "a.x"},
                     "there is no command and no file \"inof\"; the nearest command is \"info\"");
    expectUsageError({"help", "inof"}, "there is no command \"inof\"; the nearest is \"info\"");
}

TEST(CommandLine, ASlipInAnOptionIsTold) {
    expectUsageError({"info", "--jsn", "a.x"},
                     "plot3d info has no option --jsn; the nearest is --json");
    expectUsageError({"--wyh", "a.x"}, "plot3d info has no option --wyh; the nearest is --why");
    expectUsageError({"info", "--jsn"}, "plot3d info has no option --jsn; the nearest is --json");
}

TEST(CommandLine, ASlipInAWordIsTold) {
    expectUsageError({"info", "--as", "gird", "a.x"},
                     "--as can't be \"gird\"; the nearest known word is \"grid\"");
    expectUsageError({"info", "--progress", "alway", "a.x"},
                     "--progress can't be \"alway\"; the nearest known word is \"always\"");
    expectUsageError({"render", "--plot", "3D", "a.x"},
                     "--plot can't be \"3D\"; the nearest known word is \"3d\"");
}

TEST(CommandLine, AMissingFileIsTold) {
    expectUsageError({"info"}, "FILE is required; plot3d info --help tells more");
}

TEST(CommandLine, AStopEndsWithItsCode) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    std::stop_source source;
    source.request_stop();
    const int code = run({"info", "a.x"}, {in, out, err, 0, 0, false, ProgressWish_e::Auto, false,
                                           source.get_token()});
    EXPECT_EQ(code, 130);
    EXPECT_EQ(err.str(), "plot3d: stopped\n");
}

TEST(CommandLine, OutputThatIsNotTakenIsAFailure) {
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    EXPECT_EQ(run({"--version"}, in, out, err), 1);
    EXPECT_EQ(err.str(), "plot3d: error: standard output did not take everything\n");
}

TEST(CommandLine, FilesWithoutACommandAreLookedAt) {
    const Ended_s run = ended({"none.x"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, ended({"info", "none.x"}).out);
    EXPECT_EQ(run.out.rfind("none.x\n  kind ", 0), 0U);
}

TEST(CommandLine, AFileMayHaveTheNameOfNoCommand) {
    const quorvia::testsupport::TemporaryDirectory folder;
    folder.write("grid", "");
    std::filesystem::current_path(folder.path());
    EXPECT_EQ(ended({"grid"}).out.rfind("grid\n  kind ", 0), 0U);
    std::filesystem::current_path("/");
}

TEST(CommandLine, ManPageHasAllCommands) {
    const std::string page = ended({"--man"}).out;
    EXPECT_EQ(page.rfind(".TH PLOT3D 1 ", 0), 0U);
    for (const char* part : {"\n.SH INFO\n", "\\fB\\-\\-why\\fR", "\n.SH EXIT STATUS\n"})
        EXPECT_TRUE(contains(page, part)) << part;
}

TEST(CommandLine, CompletionsAreOfferedForTwoShells) {
    EXPECT_TRUE(contains(ended({"--completion", "bash"}).out, "complete -o bashdefault"));
    EXPECT_EQ(ended({"--completion", "zsh"}).out.rfind("#compdef plot3d\n", 0), 0U);
    expectUsageError({"--completion", "fish"},
                     "--completion needs the name of a shell: bash or zsh");
}

} // namespace
} // namespace plot3d::program
