// Single texts and numbers of JSON, for those who write or want only a few.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace console {

/// Whether all bytes are UTF-8, as those of every text of JSON are.
bool isUtf8(std::string_view text);

/// In quotes. Bytes that are no UTF-8 become U+FFFD.
std::string jsonText(std::string_view text);
/// Numbers that JSON lacks become the texts "NaN", "Infinity" and "-Infinity", in quotes.
std::string jsonNumber(double number);

/// The text, or the texts of the list, that `json` has at its member `path[0]`, of that at its
/// member `path[1]` and so on. Nothing if `json` is none, or if no such thing stands there.
std::optional<std::vector<std::string>> jsonTexts(std::string_view json,
                                                  std::initializer_list<const char*> path);

} // namespace console
