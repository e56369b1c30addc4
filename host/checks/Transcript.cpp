#include "checks/Transcript.h"

#include <charconv>

namespace quorvia::host {

void Transcript::turnOn(bool on) {
    isOn_ = on;
    if (on) {
        names_.clear();
        lastNumbers_.clear();
    }
}

std::string Transcript::describe(double value) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    return std::string(digits, end);
}

std::string Transcript::quoted(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '\n') {
            result += "\\n";
            continue;
        }
        if (character == '"' || character == '\\')
            result += '\\';
        result += character;
    }
    return result + '"';
}

std::string Transcript::nameOf(const void* thing, const char* kind) {
    if (thing == nullptr)
        return "null";
    const auto known = names_.find(thing);
    if (known != names_.end())
        return known->second;
    int& last = lastNumbers_[kind];
    std::string name = std::string(kind) + '#' + std::to_string(last + 1);
    names_.emplace(thing, name);
    ++last;
    return name;
}

} // namespace quorvia::host
