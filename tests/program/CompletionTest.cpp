// What bash and zsh offer for a command line that is being typed.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace {

/// The words that are offered for the last one of `line`, with blanks between them. The script is
/// asked as the shell would do it.
std::string offered(const std::string& line) {
    const std::string command =
        "bash -c 'source <(\"$0\" --completion bash); line=$1; read -ra COMP_WORDS <<<\"$line\"; "
        "[[ $line == *\" \" ]] && COMP_WORDS+=(\"\"); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
        "compopt() { :; }; _plot3d plot3d \"${COMP_WORDS[-1]}\" \"${COMP_WORDS[-2]}\"; "
        "printf %s \"${COMPREPLY[*]}\"' '" PLOT3D_PROGRAM "' '" +
        line + "'";
    std::string text;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 1024> block{};
    while (fgets(block.data(), static_cast<int>(block.size()), pipe) != nullptr)
        text += block.data();
    EXPECT_EQ(pclose(pipe), 0);
    return text;
}

/// The line after the tab key.
std::string completedByZsh(const std::string& line) {
    const std::string command = "zsh -f " COMPLETE_SCRIPT " " PLOT3D_PROGRAM " '" + line + "'";
    std::string text;
    FILE* pipe = popen(command.c_str(), "r");
    for (int letter = fgetc(pipe); letter != EOF; letter = fgetc(pipe))
        text += static_cast<char>(letter);
    EXPECT_EQ(pclose(pipe), 0);
    return text;
}

TEST(Completion, OfZshCompletesWhatThereIsOneOf) {
    if (std::system("command -v zsh >/dev/null") != 0)
        GTEST_SKIP() << "there is no zsh";
    EXPECT_EQ(completedByZsh("plot3d inf"), "plot3d info ");
    EXPECT_EQ(completedByZsh("plot3d info --wh"), "plot3d info --why ");
    EXPECT_EQ(completedByZsh("plot3d stats --blank k"), "plot3d stats --blank keep ");
    EXPECT_EQ(completedByZsh("plot3d --ver"), "plot3d --version ");
}

TEST(Completion, OffersCommands) {
    EXPECT_EQ(offered("plot3d inf"), "info");
    EXPECT_EQ(offered("plot3d ").rfind("info", 0), 0U);
}

TEST(Completion, OffersOptionsOfTheCommand) {
    EXPECT_EQ(offered("plot3d info --a"), "--as --all");
    EXPECT_EQ(offered("plot3d --ver"), "--version");
}

TEST(Completion, OffersWordsOfAnOption) {
    EXPECT_EQ(offered("plot3d info --as "), "grid solution function");
    EXPECT_EQ(offered("plot3d info --progress a"), "always auto");
    EXPECT_EQ(offered("plot3d --completion z"), "zsh");
}

TEST(Completion, LeavesFilesToTheShell) {
    EXPECT_EQ(offered("plot3d info wing"), "");
    EXPECT_EQ(offered("plot3d wing"), "");
}

} // namespace
