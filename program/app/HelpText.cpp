#include "app/HelpText.h"

#include <algorithm>

#include <fmt/core.h>

#include "console/Text.h"

namespace plot3d::program {
namespace {

std::size_t widthFor(int columns) {
    constexpr int usualColumns = 80;
    constexpr int fewestColumns = 40;
    return static_cast<std::size_t>(
        columns == 0 ? usualColumns : std::clamp(columns, fewestColumns, usualColumns));
}

/// A head and, beside it or below if the head is long, what it stands for.
std::string entry(const std::string& head, const std::string& text, std::size_t width) {
    constexpr std::size_t column = 24;
    const std::string body = console::wrappedBehind(column, text, width - 1);
    if (console::widthOf(head) + 4 > column)
        return fmt::format("  {}\n{}\n", head, body);
    return fmt::format("  {}{}\n", head, body.substr(console::widthOf(head) + 2));
}

std::string optionsText(const CommandPage_s& page, std::size_t width) {
    std::string text;
    std::string group = "\n";
    for (const console::OptionRow_s& row : page.options) {
        if (row.group != group)
            text += fmt::format("\n{}:\n", row.group.empty() ? "Options" : row.group);
        group = row.group;
        text += entry(headOf(row), row.text, width);
    }
    return text;
}

std::string tailText(const CommandPage_s& page, std::size_t width) {
    std::string text = "\nExamples:\n" + page.examples + "\nExit codes:\n";
    for (const ExitMeaning_s& exit : exitMeaningsOf(page))
        text += entry(std::to_string(exit.code), exit.meaning, width);
    return text;
}

} // namespace

std::string helpText(const CommandPage_s& page, int columns) {
    const std::size_t width = widthFor(columns);
    std::string text = console::wrappedBehind(0, page.purpose, width) + "\n";
    text += fmt::format("\nUsage: plot3d {} {}\n", page.name, usageOf(page));
    if (!page.positionals.empty())
        text += "\n";
    for (const console::OptionRow_s& row : page.positionals)
        text += entry(argumentsOf(row), row.text, width);
    return text + optionsText(page, width) + tailText(page, width);
}

std::string helpText(const std::vector<CommandPage_s>& pages, int columns) {
    const std::size_t width = widthFor(columns);
    const CommandPage_s& program = pages.front();
    std::string text = console::wrappedBehind(0, program.purpose, width) +
                       "\n\nUsage: plot3d COMMAND [OPTION]... FILE...\n"
                       "       plot3d FILE...   the same as plot3d info FILE...\n\nCommands:\n";
    for (std::size_t number = 1; number < pages.size(); ++number)
        text += entry(pages[number].name, pages[number].purpose, width);
    return text + optionsText(program, width) + tailText(program, width) +
           "\nplot3d COMMAND --help tells the options of a command.\n";
}

} // namespace plot3d::program
