#include "selection/NumberChecks.h"

#include <fmt/core.h>

#include "selection/NumberList.h"

namespace plot3d::program {

std::string wholeNumberBetween(const std::string& text, std::int64_t least, std::int64_t most) {
    const auto number = wholeNumber(text);
    return number && *number >= least && *number <= most
               ? std::string()
               : fmt::format("\"{}\" is no whole number between {} and {}", text, least, most);
}

std::string notNegative(const std::string& text) {
    const auto number = realNumber(text);
    return number && *number >= 0 ? std::string()
                                  : fmt::format("\"{}\" is no number of 0 or more", text);
}

std::string threadCount(const std::string& text) {
    return wholeNumberBetween(text, 1, 1024);
}

} // namespace plot3d::program
