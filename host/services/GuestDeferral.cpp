#include "services/GuestDeferral.h"

#include <new>

#include "state/GuestWatch.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

constexpr OperationId operation = "QuorUtilDataValueCustomLOD";

// Calls the guest. Nothing may be thrown at a host, which could not know what to do about it. Want
// of memory may be the host's own, and is not blamed on the guest.
template <typename Callback>
bool callGuest(const char* which, Callback callback) noexcept {
    HostState_s& host = hostState();
    GuestWatch watch(host);
    bool result = false;
    try {
        result = callback();
    } catch (const std::bad_alloc&) {
        host.keepLastError("QuorUtilDataValueCustomLOD: no memory");
    } catch (...) {
        host.addViolation("QuorUtilDataValueCustomLOD: the ", which,
                          " callback has thrown an exception");
    }
    watch.finish();
    return result;
}

} // namespace

GuestDeferral::GuestDeferral(const FieldCallbacks_s& callbacks) : callbacks_(callbacks) {}

GuestDeferral::~GuestDeferral() {
    auto& handles = hostState().handles.of(handle_);
    if (handle_ != nullptr) {
        cleanUp(handle_);
        handles.remove(handle_);
        return;
    }
    const HandleTable<QuorFieldHandle, FieldReference_s>::Lent lent(handles,
                                                                    {{}, callbacks_.clientData});
    cleanUp(lent.handle());
}

void GuestDeferral::cleanUp(QuorFieldHandle handle) noexcept {
    callGuest("clean-up", [&] {
        callbacks_.cleanUp(handle);
        return true;
    });
}

bool GuestDeferral::load(FieldStorage& storage) noexcept {
    return callGuest("load", [&] { return callbacks_.load(handleFor(storage)); });
}

bool GuestDeferral::mayUnload(FieldStorage& storage) noexcept {
    if (callbacks_.unload == nullptr)
        return true;
    return callGuest("unload", [&] { return callbacks_.unload(handleFor(storage)); });
}

const void* GuestDeferral::code() const {
    return reinterpret_cast<const void*>(callbacks_.load);
}

QuorFieldHandle GuestDeferral::handleFor(FieldStorage& storage) {
    if (handle_ == nullptr)
        handle_ = hostState().handles.of(handle_).add(
            operation, {storage.weak_from_this(), callbacks_.clientData});
    return handle_;
}

} // namespace quorvia::host
