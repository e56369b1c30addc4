#include "services/GuestDeferral.h"

#include <exception>
#include <utility>

#include "state/GuestWatch.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

// Calls the guest. Nothing may be thrown at a host, which could not know what to do about it.
template <typename Callback>
bool callGuest(const char* which, Callback callback) {
    HostState& host = hostState();
    GuestWatch watch(host);
    bool result = false;
    try {
        result = callback();
    } catch (...) {
        host.addViolation(std::string("QuorUtilDataValueCustomLOD: the ") + which +
                          " callback has thrown an exception");
    }
    watch.finish();
    return result;
}

} // namespace

GuestDeferral::GuestDeferral(const FieldCallbacks& callbacks) : callbacks_(callbacks) {}

GuestDeferral::~GuestDeferral() {
    const QuorFieldHandle handle = handleFor({});
    callGuest("clean-up", [&] {
        callbacks_.cleanUp(handle);
        return true;
    });
    hostState().handles.of(handle).remove(handle);
}

bool GuestDeferral::load(FieldStorage& storage) {
    const QuorFieldHandle handle = handleFor(storage.weak_from_this());
    return callGuest("load", [&] { return callbacks_.load(handle); });
}

bool GuestDeferral::mayUnload(FieldStorage& storage) {
    if (callbacks_.unload == nullptr)
        return true;
    const QuorFieldHandle handle = handleFor(storage.weak_from_this());
    return callGuest("unload", [&] { return callbacks_.unload(handle); });
}

const void* GuestDeferral::code() const {
    return reinterpret_cast<const void*>(callbacks_.load);
}

QuorFieldHandle GuestDeferral::handleFor(std::weak_ptr<FieldStorage> storage) {
    HostState& host = hostState();
    if (handle_ == nullptr)
        handle_ = host.handles.of(handle_).add("QuorUtilDataValueCustomLOD",
                                               {std::move(storage), callbacks_.clientData});
    return handle_;
}

} // namespace quorvia::host
