// Text for people on lines of a given width. Widths are in code points, the way fmt pads.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace console {

/// `text` on one line: a tab becomes a blank, other control characters become `?`.
std::string onOneLine(std::string_view text);

std::size_t widthOf(std::string_view text);

/// The beginning of `text` that is no wider.
std::string cutToWidth(std::string_view text, std::size_t width);

/// `text` if it is no wider, otherwise its beginning and end with "…" between them: names of files
/// differ at their ends.
std::string shortened(std::string_view text, std::size_t width);

/// `text` broken at blanks into lines that are no wider, where words allow it; at least one line. A
/// width of 0 breaks nothing.
std::vector<std::string> wrapped(std::string_view text, std::size_t width);

/// The same lines as one text: each behind `indent` blanks, without a line end behind the last.
std::string wrappedBehind(std::size_t indent, std::string_view text, std::size_t width);

} // namespace console
