#include "selection/NamePattern.h"

#include <algorithm>
#include <cctype>
#include <set>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include <plot3d/Error.h>

#include "selection/NumberList.h"

namespace plot3d::program {
namespace {

std::string_view withoutBlanksAtEnd(std::string_view name) {
    const std::size_t last = name.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : name.substr(0, last + 1);
}

bool isSame(char one, char other) {
    return std::tolower(static_cast<unsigned char>(one)) ==
           std::tolower(static_cast<unsigned char>(other));
}

/// What is left of the name is tried behind the last star, one character further each time.
bool meetsWhole(std::string_view name, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t wanted = 0;
    std::size_t star = std::string_view::npos;
    std::size_t retry = 0;
    while (at < name.size()) {
        if (wanted < pattern.size() && pattern[wanted] == '*') {
            star = wanted++;
            retry = at;
        } else if (wanted < pattern.size() &&
                   (pattern[wanted] == '?' || isSame(pattern[wanted], name[at]))) {
            ++wanted;
            ++at;
        } else if (star != std::string_view::npos) {
            wanted = star + 1;
            at = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', wanted) == std::string_view::npos;
}

std::set<std::size_t> indicesOf(const std::vector<std::string>& names, std::string_view pattern) {
    std::set<std::size_t> same;
    std::set<std::size_t> met;
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (withoutBlanksAtEnd(names[index]) == withoutBlanksAtEnd(pattern))
            same.insert(index);
        if (meets(names[index], pattern))
            met.insert(index);
    }
    return same.empty() ? met : same;
}

} // namespace

bool meets(std::string_view name, std::string_view pattern) {
    return meetsWhole(withoutBlanksAtEnd(name), withoutBlanksAtEnd(pattern));
}

std::vector<std::size_t> namesThatMeet(const std::vector<std::string>& names,
                                       std::string_view patterns) {
    std::set<std::size_t> indices;
    for (const std::string_view pattern : partsOf(patterns, ',')) {
        const std::set<std::size_t> met = indicesOf(names, pattern);
        if (met.empty())
            throw Error(ErrorKind::Usage, fmt::format("no variable is called \"{}\"; there are: {}",
                                                      pattern, fmt::join(names, ", ")));
        indices.insert(met.begin(), met.end());
    }
    return {indices.begin(), indices.end()};
}

} // namespace plot3d::program
