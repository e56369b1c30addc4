#include "app/ManPage.h"

#include <algorithm>
#include <utility>

#include <fmt/core.h>
#include <plot3d/Version.h>

#include "console/options/OptionText.h"

namespace plot3d::program {
namespace {

/// Text of which roff takes nothing for a request or an escape.
std::string literal(const std::string& text) {
    std::string result;
    bool atLineStart = true;
    for (const char letter : text) {
        if (atLineStart && (letter == '.' || letter == '\''))
            result += "\\&";
        if (letter == '\\')
            result += "\\e";
        else if (letter == '-')
            result += "\\-";
        else
            result += letter;
        atLineStart = letter == '\n';
    }
    return result;
}

std::string entry(const std::string& head, const std::string& text) {
    return fmt::format(".TP\n\\fB{}\\fR\n{}\n", literal(head), literal(text));
}

std::string examplesText(const CommandPage_s& page) {
    return fmt::format(".PP\nExamples:\n.PP\n.nf\n{}.fi\n", literal(page.examples));
}

std::string upper(std::string text) {
    const auto raised = [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    };
    std::transform(text.begin(), text.end(), text.begin(), raised);
    return text;
}

std::string commandText(const CommandPage_s& page) {
    std::string text = fmt::format(".SH {}\n.B plot3d {}\n{}\n.PP\n{}\n", upper(page.name),
                                   page.name, literal(usageOf(page)), literal(page.purpose));
    for (const console::OptionRow_s& row : page.positionals)
        text += entry(argumentsOf(row), row.text);
    std::string group;
    for (const console::OptionRow_s& row : page.options) {
        if (row.group == groupOfAllCommands)
            continue;
        if (row.group != std::exchange(group, row.group))
            text += fmt::format(".SS {}\n", row.group);
        text += entry(headOf(row), row.text);
    }
    return text + ".SS Exit codes and examples\n" + entry("Exit code 1", page.failureMeans + ".") +
           examplesText(page);
}

} // namespace

std::string manPage(const std::vector<CommandPage_s>& pages) {
    const CommandPage_s& program = pages.front();
    std::string text = fmt::format(".TH PLOT3D 1 \"\" \"plot3d {}\" \"User Commands\"\n"
                                   ".SH NAME\nplot3d \\- {}\n"
                                   ".SH SYNOPSIS\n.B plot3d\n.I COMMAND\n[OPTION]... FILE...\n"
                                   ".br\n.B plot3d\nFILE...\n"
                                   ".SH DESCRIPTION\n{}\nWithout a command, files are looked at as "
                                   "by\n.BR \"plot3d info\" .\n",
                                   version(), "PLOT3D files looked into and taken elsewhere",
                                   literal(program.purpose));
    for (const console::OptionRow_s& row : program.options)
        text += entry(headOf(row), row.text);
    text += examplesText(program);
    text += fmt::format(".SH {}\n", upper(groupOfAllCommands));
    for (const console::OptionRow_s& row : pages.at(1).options)
        if (row.group == groupOfAllCommands)
            text += entry(headOf(row), row.text);
    for (std::size_t number = 1; number < pages.size(); ++number)
        text += commandText(pages[number]);
    text += ".SH EXIT STATUS\n";
    for (const ExitMeaning_s& exit : exitMeaningsOf(program))
        text += entry(std::to_string(exit.code), exit.meaning);
    return text + ".SH ENVIRONMENT\n" +
           entry("NO_COLOR", "If it is set and not empty, nothing is shown in colours.");
}

} // namespace plot3d::program
