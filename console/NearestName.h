// What somebody may have meant by a name that nobody knows.
#pragma once

#include <span>
#include <string_view>

namespace console {

/// The one of `known` that takes the fewest letters inserted, removed or replaced to become `name`,
/// case apart; the first of several. `known` must not be empty.
std::string_view nearestName(std::string_view name, std::span<const std::string_view> known);

} // namespace console
