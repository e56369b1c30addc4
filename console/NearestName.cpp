#include "console/NearestName.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace console {
namespace {

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::size_t distance(std::string_view from, std::string_view to) {
    // row[j]: what it takes to turn the letters of `from` so far into the first j of `to`.
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : from) {
        std::size_t diagonal = row[0];
        ++row[0];
        for (std::size_t place = 1; place < row.size(); ++place) {
            const bool isSame = lower(letter) == lower(to[place - 1]);
            const std::size_t replaced = diagonal + (isSame ? 0 : 1);
            diagonal = row[place];
            row[place] = std::min({replaced, row[place] + 1, row[place - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string_view nearestName(std::string_view name, std::span<const std::string_view> known) {
    // Longer ones are nobody's slip, and the distance costs the product of both lengths.
    constexpr std::size_t lettersCompared = 100;
    const std::string_view head = name.substr(0, lettersCompared);
    return *std::min_element(known.begin(), known.end(),
                             [head](std::string_view one, std::string_view other) {
                                 return distance(head, one) < distance(head, other);
                             });
}

} // namespace console
