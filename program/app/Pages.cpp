#include "app/Pages.h"

#include "app/CommandLine.h"
#include "console/options/OptionText.h"

namespace plot3d::program {
CommandPage_s pageOf(const Command& command, const console::OptionParser& parser) {
    CommandPage_s page;
    page.name = command.name();
    page.purpose = command.purpose();
    page.examples = command.examples();
    page.failureMeans = command.failureMeans();
    page.positionals = parser.positionals();
    page.options = parser.options();
    return page;
}

CommandPage_s programPage() {
    CommandPage_s page;
    page.purpose = "Looks into PLOT3D files and takes their data where it is wanted.";
    page.failureMeans = "refused or failed; one of several files is enough";
    page.options = {
        {.names = {"-h", "--help"},
         .text = "Show this help; behind a command, that of the command"},
        {.names = {"--version"}, .text = "Show the version"},
        {.names = {"--man"}, .text = "Write the man page of all commands, for man(1)"},
        {.names = {"--completion"},
         .value = "bash|zsh",
         .text = "Write what completes the command line in this shell",
         .choices = {"bash", "zsh"}},
    };
    page.examples = "  plot3d wing.x wing.q\n"
                    "      what the two files are, and whether they are whole\n"
                    "  plot3d info --why strange.bin\n"
                    "      every reading that was tried on a file, and what did not fit\n";
    return page;
}

std::vector<CommandPage_s> allPages() {
    std::vector<CommandPage_s> pages = {programPage()};
    for (const auto& command : allCommands())
        pages.push_back(DeclaredCommand(*command).page());
    return pages;
}

std::string usageOf(const CommandPage_s& page) {
    std::string usage = "[OPTION]...";
    for (const console::OptionRow_s& row : page.options)
        if (row.isRequired)
            usage += " " + row.names.front() + " " + row.value;
    for (const console::OptionRow_s& row : page.positionals)
        usage += " " + console::argumentsOf(row);
    return usage;
}

std::vector<ExitMeaning_s> exitMeaningsOf(const CommandPage_s& page) {
    return {{ExitCode_Done, "done"},
            {ExitCode_Failed, page.failureMeans},
            {ExitCode_Usage, "the command line can't be carried out"},
            {ExitCode_Unreadable, "values that could not be read"},
            {ExitCode_Interrupted, "stopped by Ctrl-C"}};
}

} // namespace plot3d::program
