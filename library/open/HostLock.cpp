#include "open/HostLock.h"

namespace plot3dlib {

namespace {

/// Never destroyed: data sets may be closed after main has ended.
std::recursive_mutex& hostMutex() {
    static auto* const mutex = new std::recursive_mutex;
    return *mutex;
}

} // namespace

HostLock::HostLock() : lock_(hostMutex()) {}

} // namespace plot3dlib
