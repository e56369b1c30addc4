#include "console/options/OptionText.h"

#include <algorithm>
#include <string_view>

#include "console/NearestName.h"
#include "console/Text.h"

namespace console {
namespace {

std::vector<std::string> namesOf(const std::vector<OptionRow_s>& options) {
    std::vector<std::string> names;
    for (const OptionRow_s& row : options)
        names.insert(names.end(), row.names.begin(), row.names.end());
    return names;
}

} // namespace

std::string argumentsOf(const OptionRow_s& positional) {
    if (positional.value.find(' ') != std::string::npos)
        return positional.value;
    return positional.names.front() + (positional.isRepeatable ? "..." : "");
}

std::string headOf(const OptionRow_s& option) {
    std::string head;
    for (const std::string& name : option.names)
        head += (head.empty() ? "" : ", ") + name;
    return option.value.empty() || option.value == head ? head : head + " " + option.value;
}

std::size_t helpWidth(int columns) {
    constexpr int usualColumns = 80;
    constexpr int fewestColumns = 40;
    return static_cast<std::size_t>(
        columns == 0 ? usualColumns : std::clamp(columns, fewestColumns, usualColumns));
}

std::string helpEntry(const std::string& head, const std::string& text, std::size_t width) {
    constexpr std::size_t column = 24;
    const std::string body = wrappedBehind(column, text, width - 1);
    if (widthOf(head) + 4 > column)
        return "  " + head + "\n" + body + "\n";
    return "  " + head + body.substr(widthOf(head) + 2) + "\n";
}

std::string helpOfOptions(const std::vector<OptionRow_s>& options, std::size_t width) {
    std::string text;
    std::string group = "\n";
    for (const OptionRow_s& row : options) {
        if (row.group != group)
            text += "\n" + (row.group.empty() ? "Options" : row.group) + ":\n";
        group = row.group;
        text += helpEntry(headOf(row), row.text, width);
    }
    return text;
}

std::string unknownWordOf(const OptionParser& parser, const std::string& command) {
    for (const std::string& word : parser.unknownWords()) {
        if (word == "--") // what follows are files, whatever they begin with
            continue;
        if (word.size() < 2 || word.front() != '-')
            return command + " takes no argument \"" + word + "\"; " + command +
                   " --help tells what it takes";
        const std::string name = word.substr(0, word.find('='));
        return command + " has no option " + name + "; the nearest is " +
               nearestOf(name, namesOf(parser.options()));
    }
    return {};
}

std::string nearestOf(const std::string& word, const std::vector<std::string>& known) {
    const std::vector<std::string_view> views(known.begin(), known.end());
    return std::string(nearestName(word, views));
}

} // namespace console
