// Texts of the host that are put together from parts. Whoever passes the parts on needs no memory;
// it is asked for in one place.
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>

namespace quorvia::host {

/// A part is text, a whole number, or something that gives a text when it is called.
template <typename Part>
void appendPart(std::string& text, const Part& part) {
    if constexpr (std::is_invocable_v<const Part&>)
        text += part();
    else if constexpr (std::integral<Part>)
        text += std::to_string(part);
    else
        text += std::string_view(part);
}

template <typename... Parts>
std::string joined(const Parts&... parts) {
    std::string text;
    (appendPart(text, parts), ...);
    return text;
}

} // namespace quorvia::host
