#include "app/EndWithoutMemory.h"

#include <cstdlib>
#include <new>
#include <string_view>

#include <unistd.h>

#include "app/CommandLine.h"

namespace quorvia::host {
namespace {

bool isMemoryExhausted() {
    try {
        if (const std::exception_ptr fault = std::current_exception())
            std::rethrow_exception(fault);
    } catch (const std::bad_alloc&) {
        return true;
    } catch (...) { // some other end
    }
    return false;
}

[[noreturn]] void end() {
    if (!isMemoryExhausted())
        std::abort();
    constexpr std::string_view line = "quorhost: error: out of memory\n";
    // A line that can't be written leaves the exit code to speak for itself.
    [[maybe_unused]] const auto written = write(STDERR_FILENO, line.data(), line.size());
    std::_Exit(static_cast<int>(ExitCode_e::Failed));
}

} // namespace

EndWithoutMemory::EndWithoutMemory() noexcept : before_(std::set_terminate(end)) {}

} // namespace quorvia::host
