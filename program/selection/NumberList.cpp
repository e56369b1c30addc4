#include "selection/NumberList.h"

#include <charconv>
#include <cmath>
#include <set>

#include <fmt/core.h>

#include <plot3d/Error.h>

namespace plot3d::program {
namespace {

template <typename Number>
std::optional<Number> numberIn(std::string_view text) {
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

struct Interval_s {
    std::int64_t first;
    std::int64_t last;
};

Interval_s intervalOf(std::string_view part, std::string_view thing) {
    const std::size_t dash = part.find('-');
    const auto first = wholeNumber(part.substr(0, dash));
    const auto last = dash == std::string_view::npos ? first : wholeNumber(part.substr(dash + 1));
    if (!first || !last || *first < 1 || *last < *first)
        throw Error(ErrorKind::Usage,
                    fmt::format("\"{}\" is no number of a {} and no range of them such as 3-5",
                                part, thing));
    return {*first, *last};
}

} // namespace

std::vector<std::string_view> partsOf(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    return numberIn<std::int64_t>(text);
}

std::optional<double> realNumber(std::string_view text) {
    const auto number = numberIn<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::vector<std::size_t> parseNumberList(std::string_view text, std::size_t count,
                                         std::string_view thing) {
    std::set<std::size_t> indices;
    for (const std::string_view part : partsOf(text, ',')) {
        const Interval_s interval = intervalOf(part, thing);
        if (interval.last > static_cast<std::int64_t>(count))
            throw Error(ErrorKind::Usage,
                        fmt::format("there is no {0} {1}: the {0}s of the data set are numbered "
                                    "from 1 to {2}",
                                    thing, interval.last, count));
        for (std::int64_t number = interval.first; number <= interval.last; ++number)
            indices.insert(static_cast<std::size_t>(number - 1));
    }
    return {indices.begin(), indices.end()};
}

} // namespace plot3d::program
