#include "app/Pages.h"

#include <algorithm>

#include <CLI/CLI.hpp>

#include "app/CommandLine.h"

namespace plot3d::program {
namespace {

/// Words between bars, "always|never"; nothing if the type's name is anything else.
std::vector<std::string> choicesIn(const std::string& typeName) {
    std::vector<std::string> choices;
    if (typeName.find('|') == std::string::npos)
        return choices;
    for (std::size_t start = 0; start <= typeName.size();) {
        const std::size_t end = std::min(typeName.find('|', start), typeName.size());
        choices.push_back(typeName.substr(start, end - start));
        start = end + 1;
    }
    return choices;
}

std::vector<std::string> namesOf(const CLI::Option& option) {
    std::vector<std::string> names;
    if (option.get_positional())
        return {option.get_name(true)};
    for (const std::string& name : option.get_snames())
        names.push_back("-" + name);
    for (const std::string& name : option.get_lnames())
        names.push_back("--" + name);
    return names;
}

/// Without what validators add to it behind a colon, which is for programmers.
std::string valueNameOf(const CLI::Option& option) {
    if (option.get_type_size() == 0)
        return {};
    const std::string name = option.get_type_name();
    return name.substr(0, name.find(':'));
}

OptionRow_s rowOf(const CLI::Option& option) {
    OptionRow_s row;
    row.names = namesOf(option);
    row.value = valueNameOf(option);
    row.text = option.get_description();
    std::replace(row.text.begin(), row.text.end(), '\n', ' ');
    row.group = option.get_group();
    row.choices = choicesIn(row.value);
    row.isRepeatable = option.get_expected_max() > 1;
    row.isRequired = option.get_required();
    return row;
}

} // namespace

CommandPage_s pageOf(const Command& command, const CLI::App& app) {
    CommandPage_s page;
    page.name = command.name();
    page.purpose = command.purpose();
    page.examples = command.examples();
    page.failureMeans = command.failureMeans();
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_group().empty()) // kept out of sight
            continue;
        auto& rows = option->get_positional() ? page.positionals : page.options;
        rows.push_back(rowOf(*option));
    }
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

std::string argumentsOf(const OptionRow_s& positional) {
    if (positional.value.find(' ') != std::string::npos)
        return positional.value;
    return positional.names.front() + (positional.isRepeatable ? "..." : "");
}

std::string usageOf(const CommandPage_s& page) {
    std::string usage = "[OPTION]...";
    for (const OptionRow_s& row : page.options)
        if (row.isRequired)
            usage += " " + row.names.front() + " " + row.value;
    for (const OptionRow_s& row : page.positionals)
        usage += " " + argumentsOf(row);
    return usage;
}

std::string headOf(const OptionRow_s& option) {
    std::string head;
    for (const std::string& name : option.names)
        head += (head.empty() ? "" : ", ") + name;
    return option.value.empty() || option.value == head ? head : head + " " + option.value;
}

std::vector<ExitMeaning_s> exitMeaningsOf(const CommandPage_s& page) {
    return {{ExitCode_Done, "done"},
            {ExitCode_Failed, page.failureMeans},
            {ExitCode_Usage, "the command line can't be carried out"},
            {ExitCode_Unreadable, "values that could not be read"},
            {ExitCode_Interrupted, "stopped by Ctrl-C"}};
}

} // namespace plot3d::program
