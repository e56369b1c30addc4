// How an index is refused.
#pragma once

#include <string>

namespace plot3d::program {

/// Throws Error (Unsupported). `file`: the one that the message is about, if it is about one.
[[noreturn]] void refuseIndex(const std::string& message, const std::string& file = {});

} // namespace plot3d::program
