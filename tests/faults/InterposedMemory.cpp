// The allocations of the process. Which library an allocation is for tells the call stack: the
// standard library allocates on behalf of both.
#include <cstdlib>
#include <new>
#include <string_view>

#include <dlfcn.h>
#include <link.h>
#include <unwind.h>

#include "faults/FaultPoints.h"

using namespace quorvia::testsupport;

namespace {

enum class Owner_e { AddOn, Host, Test, Unknown };

Owner_e ownerOf(const void* code) {
    dl_find_object found = {};
    if (_dl_find_object(const_cast<void*>(code), &found) != 0)
        return Owner_e::Unknown;
    const std::string_view library = found.dlfo_link_map->l_name;
    if (library.empty()) // the program itself
        return countsProgramAsHost() ? Owner_e::Host : Owner_e::Test;
    if (library.ends_with("/plot3dloader.so"))
        return Owner_e::AddOn;
    if (library.find("/libquorhost.so") != library.npos) // its version follows
        return Owner_e::Host;
    return Owner_e::Unknown;
}

struct Walk_s {
    const void* start; // where the replaced operation returns to
    bool hasStarted = false;
    Owner_e owner = Owner_e::Unknown;
};

_Unwind_Reason_Code visitFrame(_Unwind_Context* context, void* data) {
    Walk_s& walk = *static_cast<Walk_s*>(data);
    const void* const code = reinterpret_cast<const void*>(_Unwind_GetIP(context));
    walk.hasStarted |= code == walk.start;
    if (!walk.hasStarted)
        return _URC_NO_REASON;
    walk.owner = ownerOf(code);
    return walk.owner == Owner_e::Unknown ? _URC_NO_REASON : _URC_END_OF_STACK;
}

/// On whose behalf the code at `caller` runs.
Owner_e ownerOfCall(const void* caller) {
    const Owner_e direct = ownerOf(caller);
    if (direct != Owner_e::Unknown)
        return direct;
    Walk_s walk{caller};
    _Unwind_Backtrace(visitFrame, &walk);
    return walk.owner;
}

bool failsFor(Owner_e owner) {
    switch (owner) {
    case Owner_e::AddOn:
        return failsAt(Point_e::AddOnMemory);
    case Owner_e::Host:
        return failsAt(Point_e::HostMemory);
    default:
        return false;
    }
}

bool allocationFails(const void* caller) {
    if (!isFaultArmedFor(Point_e::AddOnMemory) && !isFaultArmedFor(Point_e::HostMemory))
        return false;
    return failsFor(ownerOfCall(caller));
}

void* allocate(std::size_t size, const void* caller) {
    return allocationFails(caller) ? nullptr : std::malloc(size != 0 ? size : 1);
}

} // namespace

void* operator new(std::size_t size) {
    if (void* block = allocate(size, __builtin_return_address(0)))
        return block;
    throw std::bad_alloc();
}

// Not left to the standard library: a sanitizer has one of its own, which does not lead to ours.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size, __builtin_return_address(0));
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

// The host takes the values of fields and the add-on's blocks from the C allocator. A sanitizer's
// allocator can't be gone round.
#ifndef __SANITIZE_ADDRESS__
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);

void* malloc(std::size_t size) {
    if (isFaultArmedFor(Point_e::HostMemory) &&
        ownerOf(__builtin_return_address(0)) == Owner_e::Host && failsAt(Point_e::HostMemory))
        return nullptr;
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    if (isFaultArmedFor(Point_e::HostMemory) &&
        ownerOf(__builtin_return_address(0)) == Owner_e::Host && failsAt(Point_e::HostMemory))
        return nullptr;
    return __libc_calloc(count, size);
}

} // extern "C"
#endif
