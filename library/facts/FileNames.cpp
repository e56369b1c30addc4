#include <plot3d/FileNames.h>

#include <algorithm>
#include <cstddef>

namespace plot3d {
namespace {

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

/// Takes the run of digits that `text` begins with off it, and gives it without leading zeros.
std::string_view takeNumber(std::string_view& text) {
    std::size_t end = 0;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    std::string_view digits = text.substr(0, end);
    text.remove_prefix(end);
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

/// Below, at or above 0, as the first number is below, at or above the second.
int compareNumbers(std::string_view one, std::string_view other) {
    if (one.size() != other.size())
        return one.size() < other.size() ? -1 : 1;
    return one.compare(other);
}

int compareLetters(char one, char other) {
    return static_cast<int>(static_cast<unsigned char>(one)) -
           static_cast<int>(static_cast<unsigned char>(other));
}

int compareAsCounted(std::string_view one, std::string_view other) {
    while (!one.empty() && !other.empty()) {
        int order = 0;
        if (isDigit(one.front()) && isDigit(other.front())) {
            order = compareNumbers(takeNumber(one), takeNumber(other));
        } else {
            order = compareLetters(one.front(), other.front());
            one.remove_prefix(1);
            other.remove_prefix(1);
        }
        if (order != 0)
            return order;
    }
    return static_cast<int>(other.empty()) - static_cast<int>(one.empty());
}

} // namespace

bool naturalLess(std::string_view one, std::string_view other) {
    const int order = compareAsCounted(one, other);
    if (order != 0)
        return order < 0;
    return one.size() != other.size() ? one.size() < other.size() : one < other;
}

} // namespace plot3d
