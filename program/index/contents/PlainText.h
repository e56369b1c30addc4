// Letters of names where a format has a syntax of its own.
#pragma once

#include <string>
#include <string_view>

namespace plot3d::program {

/// As an attribute or a content of XML, in which quotes are double. Throws Error (Unsupported) for
/// what XML can't hold: bytes that are no UTF-8, control characters.
std::string xmlText(std::string_view text);
/// What xmlText() made it of.
std::string plainText(std::string_view xml);

/// As JSON has it, in quotes. Throws Error (Unsupported) for bytes that are no UTF-8.
std::string jsonText(std::string_view text);

/// Throws Error (Unsupported) unless all is UTF-8.
void refuseOtherThanUtf8(std::string_view text);

} // namespace plot3d::program
