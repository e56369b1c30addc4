// The order in which people count: "step2" stands before "step10".
#pragma once

#include <string_view>

namespace plot3dlib {

/// Whether `left` stands before `right`. Runs of digits compare as numbers of any length; the rest
/// byte by byte. Names that differ in leading zeros alone have an order, too: the shorter first.
bool isNaturallyBefore(std::string_view left, std::string_view right);

} // namespace plot3dlib
