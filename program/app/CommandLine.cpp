#include "app/CommandLine.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <system_error>

#include <fmt/core.h>
#include <plot3d/Version.h>

#include "app/Completion.h"
#include "app/HelpText.h"
#include "app/ManPage.h"
#include "console/options/OptionText.h"

namespace plot3d::program {
namespace {

using Words = std::vector<std::string>;

Words namesOf(const Commands& commands) {
    Words names;
    for (const auto& command : commands)
        names.emplace_back(command->name());
    return names;
}

Command* find(const Commands& commands, const std::string& name) {
    const auto found = std::find_if(commands.begin(), commands.end(), [&name](const auto& command) {
        return command->name() == name;
    });
    return found == commands.end() ? nullptr : found->get();
}

bool exists(const std::string& name) {
    std::error_code ignored; // what can't be looked at is told when it is opened
    return std::filesystem::exists(name, ignored);
}

/// A name with neither ending nor folder is rather a command with a slip in it than a file.
bool looksLikeCommand(const std::string& word) {
    return word.find_first_of("./-") == std::string::npos && !exists(word);
}

int show(const std::string& text, const Surroundings_s& surroundings) {
    surroundings.out << text;
    return ExitCode_Done;
}

int showHelp(const Words& arguments, const Surroundings_s& surroundings) {
    const Commands commands = allCommands();
    if (arguments.size() < 2)
        return show(helpText(allPages(), surroundings.outColumns), surroundings);
    Command* command = find(commands, arguments[1]);
    if (command == nullptr)
        throw UsageError(fmt::format("there is no command \"{}\"; the nearest is \"{}\"",
                                     arguments[1],
                                     console::nearestOf(arguments[1], namesOf(commands))));
    return show(helpText(DeclaredCommand(*command).page(), surroundings.outColumns), surroundings);
}

int showCompletion(const Words& arguments, const Surroundings_s& surroundings) {
    const std::string shell = arguments.size() == 2 ? arguments[1] : "";
    if (shell == "bash")
        return show(bashCompletion(allPages()), surroundings);
    if (shell == "zsh")
        return show(zshCompletion(allPages()), surroundings);
    throw UsageError("--completion needs the name of a shell: bash or zsh");
}

/// An option of the program itself, or null if the first argument is none.
using Shower = int (*)(const Words&, const Surroundings_s&);

Shower showerFor(const std::string& word) {
    if (word == "--help" || word == "-h" || word == "help")
        return showHelp;
    if (word == "--version")
        return [](const Words&, const Surroundings_s& surroundings) {
            return show(fmt::format("plot3d {}\n", version()), surroundings);
        };
    if (word == "--man")
        return [](const Words&, const Surroundings_s& surroundings) {
            return show(manPage(allPages()), surroundings);
        };
    if (word == "--completion")
        return showCompletion;
    return nullptr;
}

} // namespace

DeclaredCommand::DeclaredCommand(Command& command) : command_(command) {
    console::OptionTable table = parser_.table();
    command.declare(table);
    const console::OptionTable ofAll = table.under(groupOfAllCommands);
    ofAll.text("--progress", progress_, "always|never|auto",
               "Show progress on standard error: at a terminal (auto, the default), always or "
               "never");
    ofAll.flag("--quiet", quiet_, "Nothing on standard error but errors");
    ofAll.flag("-h,--help", help_, "Show this help");
}

CommandPage_s DeclaredCommand::page() const {
    return pageOf(command_, parser_);
}

void DeclaredCommand::refuseUnknown() const {
    const std::string problem =
        console::unknownWordOf(parser_, fmt::format("plot3d {}", command_.name()));
    if (!problem.empty())
        throw UsageError(problem);
}

void DeclaredCommand::refuseWrongChoices() const {
    for (const console::OptionRow_s& row : page().options) {
        if (row.choices.empty())
            continue;
        for (const std::string& word : parser_.textsOf(row.names.back()))
            if (std::find(row.choices.begin(), row.choices.end(), word) == row.choices.end())
                throw UsageError(fmt::format("{} can't be \"{}\"; the nearest known word is \"{}\"",
                                             row.names.back(), word,
                                             console::nearestOf(word, row.choices)));
    }
}

void DeclaredCommand::parse(Words arguments) {
    const std::string problem = parser_.parse(std::move(arguments));
    if (help_)
        return;
    refuseUnknown(); // with the nearest known option, which the parser does not tell
    if (!problem.empty())
        throw UsageError(fmt::format("{}; plot3d {} --help tells more", problem, command_.name()));
    refuseWrongChoices();
}

int DeclaredCommand::run(Words arguments, Surroundings_s surroundings) {
    command_.takeApart(arguments);
    parse(std::move(arguments));
    if (help_)
        return show(helpText(page(), surroundings.outColumns), surroundings);
    surroundings.quiet = quiet_;
    if (progress_ == "always")
        surroundings.progress = ProgressWish_e::Always;
    if (progress_ == "never")
        surroundings.progress = ProgressWish_e::Never;
    return command_.run(surroundings);
}

int carryOut(const Words& arguments, const Surroundings_s& surroundings) {
    if (arguments.empty())
        throw UsageError("nothing to do: give files, or a command; plot3d --help lists them");
    if (const Shower shower = showerFor(arguments.front()))
        return shower(arguments, surroundings);
    const Commands commands = allCommands();
    if (Command* command = find(commands, arguments.front()))
        return DeclaredCommand(*command).run({arguments.begin() + 1, arguments.end()},
                                             surroundings);
    if (looksLikeCommand(arguments.front()))
        throw UsageError(fmt::format("there is no command and no file \"{}\"; the nearest command "
                                     "is \"{}\"",
                                     arguments.front(),
                                     console::nearestOf(arguments.front(), namesOf(commands))));
    return DeclaredCommand(*commands.front()).run(arguments, surroundings);
}

} // namespace plot3d::program
