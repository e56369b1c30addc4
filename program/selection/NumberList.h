// Numbers in arguments: whole ones, reals, and lists such as "1,3-5".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace plot3d::program {

/// What stands between the separators; one part, though an empty one, of an empty text.
std::vector<std::string_view> partsOf(std::string_view text, char separator);

/// Nothing if the text is no whole number, or one beyond 64 bits.
std::optional<std::int64_t> wholeNumber(std::string_view text);
/// Nothing if the text is no finite real.
std::optional<double> realNumber(std::string_view text);

/// "1,3-5" of things numbered from 1 to `count`, as indices from 0, ascending, each once. `thing`
/// names them in messages. Throws plot3d::Error (Usage).
std::vector<std::size_t> parseNumberList(std::string_view text, std::size_t count,
                                         std::string_view thing);

} // namespace plot3d::program
