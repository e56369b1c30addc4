// What this process has read so far, by all its reads of files.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace quorvia::testsupport {

/// Bytes, as the kernel counts them: also those that were in the page cache.
inline std::int64_t bytesReadSoFar() {
    std::ifstream counters("/proc/self/io");
    std::string name;
    std::int64_t count = 0;
    counters >> name >> count;
    return count;
}

} // namespace quorvia::testsupport
