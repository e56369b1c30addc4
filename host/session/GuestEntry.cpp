#include "session/GuestEntry.h"

#include <algorithm>
#include <cstddef>
#include <new>

#include "state/GuestWatch.h"
#include "state/HostState.h"

namespace quorvia::host {

bool enterGuest(GuestEntry entry, const std::string& guest, std::string& error) {
    GuestWatch watch(hostState());
    try {
        entry();
        watch.checkBalances();
        return true;
    } catch (const std::bad_alloc&) {
        watch.checkBalances();
        error = "Out of memory.";
    } catch (...) {
        error = "The entry of the " + guest + " has thrown an exception.";
    }
    return false;
}

std::optional<Loader_s> enterLinkedGuest(GuestEntry entry, std::string& error) {
    auto& loaders = hostState().loaders;
    const auto before = static_cast<std::ptrdiff_t>(loaders.size());
    if (!enterGuest(entry, "linked-in add-on", error))
        return std::nullopt;
    const auto firstNew = loaders.begin() + before;
    if (firstNew == loaders.end()) {
        error = "The linked-in add-on has registered no loader.";
        return std::nullopt;
    }
    std::rotate(loaders.begin(), firstNew, loaders.end());
    return loaders.front();
}

} // namespace quorvia::host
