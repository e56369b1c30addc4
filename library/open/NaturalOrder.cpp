#include "open/NaturalOrder.h"

#include <algorithm>
#include <compare>
#include <cstddef>

namespace plot3dlib {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Takes the digits at the beginning off `text`, and gives them without zeros ahead.
std::string_view takeNumber(std::string_view& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

std::strong_ordering compareNumbers(std::string_view left, std::string_view right) {
    const auto byLength = left.size() <=> right.size();
    return byLength != 0 ? byLength : left <=> right;
}

std::strong_ordering compareNaturally(std::string_view left, std::string_view right) {
    while (!left.empty() && !right.empty()) {
        if (isDigit(left.front()) && isDigit(right.front())) {
            const std::string_view leftNumber = takeNumber(left);
            const auto order = compareNumbers(leftNumber, takeNumber(right));
            if (order != 0)
                return order;
            continue;
        }
        if (left.front() != right.front())
            return static_cast<unsigned char>(left.front()) <=>
                   static_cast<unsigned char>(right.front());
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
    return left.size() <=> right.size();
}

} // namespace

bool isNaturallyBefore(std::string_view left, std::string_view right) {
    const auto order = compareNaturally(left, right);
    if (order != 0)
        return order < 0;
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

} // namespace plot3dlib
