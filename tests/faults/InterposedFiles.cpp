// Opens and reads of the data files.
#include <algorithm>
#include <bitset>
#include <cerrno>
#include <cstdarg>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "faults/FaultPoints.h"
#include "faults/Faults.h"

using namespace quorvia::testsupport;

namespace {

constinit const std::string* gWatchedFolder = nullptr; // opens come before static objects are made
constexpr int descriptorCount = 1024;
std::bitset<descriptorCount> gWatched; // open descriptors of watched files

bool isWatched(const char* path) {
    return gWatchedFolder != nullptr && std::string_view(path).starts_with(*gWatchedFolder);
}

bool isWatched(int descriptor) {
    return descriptor >= 0 && descriptor < descriptorCount &&
           gWatched[static_cast<std::size_t>(descriptor)];
}

void watch(int descriptor) {
    if (descriptor < 0 || descriptor >= descriptorCount)
        return;
    gWatched.set(static_cast<std::size_t>(descriptor));
    noteOpenFiles(1);
}

/// The operation of the C library that stands behind ours.
template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int openNext(const char* path, int flags, mode_t mode) {
    static auto* const openOfLibrary = next<int(const char*, int, ...)>("open");
    if (!isWatched(path))
        return openOfLibrary(path, flags, mode);
    if (failsAt(Point_e::Open)) {
        errno = EMFILE;
        return -1;
    }
    const int descriptor = openOfLibrary(path, flags, mode);
    watch(descriptor);
    return descriptor;
}

/// What becomes of a read of a watched file; `readNow` does it.
template <typename Read>
ssize_t readWatched(Read readNow) {
    switch (readFault()) {
    case ReadFault_e::Error:
        errno = EIO;
        return -1;
    case ReadFault_e::Empty:
        return 0;
    case ReadFault_e::Short: {
        const ssize_t got = readNow();
        return got > 1 ? got / 2 : got;
    }
    default:
        return readNow();
    }
}

} // namespace

namespace quorvia::testsupport {

void watchFilesOf(const std::string& folder) {
    static std::string watched;
    watched = folder;
    gWatchedFolder = &watched;
}

} // namespace quorvia::testsupport

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openNext(path, flags, mode);
}

int open64(const char* path, int flags, ...) __attribute__((alias("open")));

ssize_t pread(int descriptor, void* target, std::size_t count, off_t position) {
    static auto* const preadOfLibrary = next<ssize_t(int, void*, std::size_t, off_t)>("pread");
    const auto readNow = [=] { return preadOfLibrary(descriptor, target, count, position); };
    return isWatched(descriptor) ? readWatched(readNow) : readNow();
}

ssize_t pread64(int descriptor, void* target, std::size_t count, off_t position)
    __attribute__((alias("pread")));

ssize_t read(int descriptor, void* target, std::size_t count) {
    static auto* const readOfLibrary = next<ssize_t(int, void*, std::size_t)>("read");
    const auto readNow = [=] { return readOfLibrary(descriptor, target, count); };
    return isWatched(descriptor) ? readWatched(readNow) : readNow();
}

int fstat(int descriptor, struct stat* status) noexcept {
    static auto* const fstatOfLibrary = next<int(int, struct stat*)>("fstat");
    if (isWatched(descriptor) && failsAt(Point_e::Size)) {
        errno = EIO;
        return -1;
    }
    return fstatOfLibrary(descriptor, status);
}

int fstat64(int descriptor, struct stat64* status) noexcept {
    return fstat(descriptor, reinterpret_cast<struct stat*>(status));
}

int close(int descriptor) {
    static auto* const closeOfLibrary = next<int(int)>("close");
    if (isWatched(descriptor)) {
        gWatched.reset(static_cast<std::size_t>(descriptor));
        noteOpenFiles(-1);
    }
    return closeOfLibrary(descriptor);
}

} // extern "C"
