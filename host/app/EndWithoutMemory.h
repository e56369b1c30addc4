// The end of a program whose memory runs out where nothing can be passed on: the JSON library
// allocates while it ends a value, and a destructor that throws ends the process by an abort.
#pragma once

#include <exception>

namespace quorvia::host {

/// While it lives, such an end is an error line on standard error and exit code 1.
class EndWithoutMemory {
public:
    EndWithoutMemory() noexcept;
    ~EndWithoutMemory() { std::set_terminate(before_); }
    EndWithoutMemory(const EndWithoutMemory&) = delete;
    EndWithoutMemory& operator=(const EndWithoutMemory&) = delete;

private:
    std::terminate_handler before_;
};

} // namespace quorvia::host
