// Who is asked, now and then, whether a long read is to go on.
#pragma once

#include <cstdint>

namespace quorvia::quorutildataio {

class ReadWatch {
public:
    virtual ~ReadWatch() = default;

    /// `byteCount` bytes have come since the last question. False (not told): the user wants
    /// the read to stop.
    [[nodiscard]] virtual bool goesOn(std::int64_t byteCount) = 0;
};

} // namespace quorvia::quorutildataio
