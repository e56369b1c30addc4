#include "manners/ShellWords.h"

namespace plot3d::program {
namespace {

bool isPlain(const std::string& word) {
    const char* const plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"
                              "_@%+=:,./-";
    return !word.empty() && word.find_first_not_of(plain) == std::string::npos;
}

std::string quoted(const std::string& word) {
    if (isPlain(word))
        return word;
    std::string result = "'";
    for (const char letter : word) {
        if (letter == '\'')
            result += "'\\''";
        else
            result += letter;
    }
    return result + "'";
}

} // namespace

std::string shellLine(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words)
        line += (line.empty() ? "" : " ") + quoted(word);
    return line;
}

} // namespace plot3d::program
