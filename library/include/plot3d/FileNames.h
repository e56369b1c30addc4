// Names of files in the order in which people count.
#pragma once

#include <string_view>

namespace plot3d {

/// Whether `one` comes ahead of `other`: runs of digits compare as numbers of any length, so that
/// step2.q comes ahead of step10.q; everything else compares byte by byte, case included. Names
/// that differ in leading zeros alone stand with fewer zeros first, so that it is a total order.
bool naturalLess(std::string_view one, std::string_view other);

} // namespace plot3d
