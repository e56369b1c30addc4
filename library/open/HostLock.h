// The one lock of the library: whatever calls the host, or anything of the add-on, holds it. The
// host knows one thread at a time; records that were taken out of it need no lock.
#pragma once

#include <mutex>

namespace plot3dlib {

/// Held from making to end. A thread that holds it may take it again: a data set that fails to load
/// gives back what it has of the host while the load still holds the lock.
class HostLock {
public:
    HostLock();

private:
    std::unique_lock<std::recursive_mutex> lock_;
};

} // namespace plot3dlib
