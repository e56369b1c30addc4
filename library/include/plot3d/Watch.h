// What a long operation tells on its way, and how it is stopped.
#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string_view>

namespace plot3d {

struct Progress {
    std::string_view text;   // what is being done, for a person; valid for the call
    double fraction = 0.0;   // from 0 to 1
    std::int64_t bytes = -1; // read so far; -1 where the operation does not count them
};

struct Watch {
    /// Called on the thread of the operation, at most some dozens of times a second. May be empty.
    std::function<void(const Progress&)> progress;
    /// The operation then throws an Error of kind Interrupted, within some milliseconds.
    std::stop_token stop;
};

} // namespace plot3d
