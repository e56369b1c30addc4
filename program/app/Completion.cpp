#include "app/Completion.h"

#include <fmt/core.h>

namespace plot3d::program {
namespace {

std::string joined(const std::vector<std::string>& words, const char* between) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

std::string commandNames(const std::vector<CommandPage_s>& pages) {
    std::string names;
    for (std::size_t number = 1; number < pages.size(); ++number)
        names += (names.empty() ? "" : " ") + pages[number].name;
    return names;
}

std::string optionNames(const CommandPage_s& page) {
    std::string names;
    for (const console::OptionRow_s& row : page.options)
        names += (names.empty() ? "" : " ") + joined(row.names, " ");
    return names;
}

/// What may follow the options of a page that have a value: words, files, or what nobody knows.
std::string bashValues(const CommandPage_s& page) {
    std::string text;
    for (const console::OptionRow_s& row : page.options) {
        if (row.value.empty())
            continue;
        const std::string key = page.name + ":";
        std::vector<std::string> patterns;
        for (const std::string& name : row.names)
            patterns.push_back(key + name);
        const std::string reply =
            row.choices.empty() ? (row.takesFile() ? "" : "compopt +o default +o bashdefault; ")
                                : fmt::format("COMPREPLY=($(compgen -W '{}' -- \"$word\")); ",
                                              joined(row.choices, " "));
        text += fmt::format("    {}) {}return ;;\n", joined(patterns, "|"), reply);
    }
    return text;
}

/// Text within single quotes and brackets of zsh's _arguments.
std::string zshText(const std::string& text) {
    std::string result;
    for (const char letter : text) {
        if (letter == '\'')
            result += "'\\''";
        else if (letter == '[' || letter == ']' || letter == ':' || letter == '\\')
            result += std::string("\\") + letter;
        else
            result += letter;
    }
    return result;
}

std::string zshAction(const console::OptionRow_s& row) {
    if (row.value.empty())
        return {};
    if (!row.choices.empty())
        return fmt::format(":word:({})", joined(row.choices, " "));
    return fmt::format(":{}:{}", zshText(row.value), row.takesFile() ? "_files" : " ");
}

std::string zshArguments(const CommandPage_s& page) {
    std::string text = "_arguments -S";
    for (const console::OptionRow_s& row : page.options)
        for (const std::string& name : row.names)
            text += fmt::format(" \\\n            '{}{}[{}]{}'", row.isRepeatable ? "*" : "", name,
                                zshText(row.text), zshAction(row));
    return text + " \\\n            '*:file:_files'";
}

} // namespace

std::string bashCompletion(const std::vector<CommandPage_s>& pages) {
    std::string text =
        fmt::format("# Completion of plot3d for bash.\n"
                    "_plot3d() {{\n"
                    "    local word=$2 before=$3 command= options\n"
                    "    COMPREPLY=()\n"
                    "    case \" {} \" in *\" ${{COMP_WORDS[1]}} \"*)\n"
                    "        [ \"$COMP_CWORD\" -gt 1 ] && command=${{COMP_WORDS[1]}} ;;\n"
                    "    esac\n"
                    "    case \"$command:$before\" in\n",
                    commandNames(pages));
    for (const CommandPage_s& page : pages)
        text += bashValues(page);
    text += "    esac\n    case \"$command\" in\n";
    for (std::size_t number = 1; number < pages.size(); ++number)
        text += fmt::format("    {}) options='{}' ;;\n", pages[number].name,
                            optionNames(pages[number]));
    text += fmt::format("    *) options='{} {}' ;;\n    esac\n", commandNames(pages),
                        optionNames(pages.front()));
    return text +
           "    if [[ $word == -* || ($COMP_CWORD -eq 1 && -n $word) ]]; then\n"
           "        COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
           "    elif [ \"$COMP_CWORD\" -eq 1 ]; then\n" +
           fmt::format("        COMPREPLY=($(compgen -W '{}'))\n", commandNames(pages)) +
           "    fi\n"
           "}\n"
           "complete -o bashdefault -o default -F _plot3d plot3d\n";
}

std::string zshCompletion(const std::vector<CommandPage_s>& pages) {
    std::string text = "#compdef plot3d\n"
                       "# Completion of plot3d for zsh.\n"
                       "_plot3d() {\n"
                       "    local -a commands\n"
                       "    commands=(\n";
    for (std::size_t number = 1; number < pages.size(); ++number)
        text +=
            fmt::format("        '{}:{}'\n", pages[number].name, zshText(pages[number].purpose));
    text += "    )\n"
            "    if (( CURRENT == 2 )) || [[ $words[2] == -* ]]; then\n"
            "        [[ $PREFIX == -* ]] || _describe command commands\n        " +
            zshArguments(pages.front()) +
            "\n        return\n    fi\n    local command=$words[2]\n"
            "    if (( ${commands[(I)$command:*]} )); then\n"
            "        shift words\n        (( CURRENT-- ))\n    fi\n"
            "    case $command in\n";
    for (std::size_t number = 1; number < pages.size(); ++number)
        text += fmt::format("    {})\n        {} ;;\n", pages[number].name,
                            zshArguments(pages[number]));
    return text + "    *) _files ;;\n    esac\n}\n"
                  "if [ \"$funcstack[1]\" = _plot3d ]; then _plot3d \"$@\"; else compdef _plot3d "
                  "plot3d; fi\n";
}

} // namespace plot3d::program
