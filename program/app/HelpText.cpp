#include "app/HelpText.h"

#include <fmt/core.h>

#include "console/Text.h"
#include "console/options/OptionText.h"

namespace plot3d::program {
namespace {

std::string tailText(const CommandPage_s& page, std::size_t width) {
    std::string text = "\nExamples:\n" + page.examples + "\nExit codes:\n";
    for (const ExitMeaning_s& exit : exitMeaningsOf(page))
        text += console::helpEntry(std::to_string(exit.code), exit.meaning, width);
    return text;
}

} // namespace

std::string helpText(const CommandPage_s& page, int columns) {
    const std::size_t width = console::helpWidth(columns);
    std::string text = console::wrappedBehind(0, page.purpose, width) + "\n";
    text += fmt::format("\nUsage: plot3d {} {}\n", page.name, usageOf(page));
    if (!page.positionals.empty())
        text += "\n";
    for (const console::OptionRow_s& row : page.positionals)
        text += console::helpEntry(console::argumentsOf(row), row.text, width);
    return text + console::helpOfOptions(page.options, width) + tailText(page, width);
}

std::string helpText(const std::vector<CommandPage_s>& pages, int columns) {
    const std::size_t width = console::helpWidth(columns);
    const CommandPage_s& program = pages.front();
    std::string text = console::wrappedBehind(0, program.purpose, width) +
                       "\n\nUsage: plot3d COMMAND [OPTION]... FILE...\n"
                       "       plot3d FILE...   the same as plot3d info FILE...\n\nCommands:\n";
    for (std::size_t number = 1; number < pages.size(); ++number)
        text += console::helpEntry(pages[number].name, pages[number].purpose, width);
    return text + console::helpOfOptions(program.options, width) + tailText(program, width) +
           "\nplot3d COMMAND --help tells the options of a command.\n";
}

} // namespace plot3d::program
