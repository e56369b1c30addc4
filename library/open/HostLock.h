// The one lock of the library: whatever calls the host, or anything of the add-on, holds it. The
// host knows one thread at a time; records that were taken out of it need no lock.
#pragma once

#include <mutex>

namespace plot3dlib {

/// Held from making to end. Not for a thread that holds it already.
class HostLock {
public:
    HostLock();

private:
    std::unique_lock<std::mutex> lock_;
};

} // namespace plot3dlib
