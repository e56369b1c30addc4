#include "FaultyReads.h"

#include <cerrno>
#include <utility>

#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

namespace quorvia::testsupport {

namespace {
std::int64_t readsLeft = 0; // up to and with the one that fails; 0: none does
}

void failRead(std::int64_t n) {
    readsLeft = n;
}

bool cancelReadFault() {
    return std::exchange(readsLeft, 0) != 0;
}

/// Counts one read; whether it is to fail.
static bool isToFail() {
    return readsLeft > 0 && --readsLeft == 0;
}

} // namespace quorvia::testsupport

// The dynamic library finds this ahead of the system's.
extern "C" ssize_t pread(int descriptor, void* target, size_t byteCount, off_t position) {
    if (quorvia::testsupport::isToFail()) {
        errno = EIO;
        return -1;
    }
    return syscall(SYS_pread64, descriptor, target, byteCount, position);
}
