// A guest's registration of a deferred field: its callbacks, its client data, and the handle under
// which it meets the field again.
#pragma once

#include "model/FieldStorage.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::host {

struct FieldCallbacks_s {
    QuorFieldLoadCallback load = nullptr;
    QuorFieldUnloadCallback unload = nullptr; // may be null: the array may always be dropped
    QuorFieldCleanupCallback cleanUp = nullptr;
    void* clientData = nullptr;
};

class GuestDeferral : public Deferral {
public:
    explicit GuestDeferral(const FieldCallbacks_s& callbacks);
    /// Calls the clean-up callback.
    ~GuestDeferral() override;
    GuestDeferral(const GuestDeferral&) = delete;
    GuestDeferral& operator=(const GuestDeferral&) = delete;

    bool load(FieldStorage& storage) noexcept override;
    bool mayUnload(FieldStorage& storage) noexcept override;

    const void* code() const override;
    const void* clientData() const override { return callbacks_.clientData; }

private:
    void cleanUp(QuorFieldHandle handle) noexcept;
    /// Throws std::bad_alloc.
    QuorFieldHandle handleFor(FieldStorage& storage);

    FieldCallbacks_s callbacks_;
    QuorFieldHandle handle_ = nullptr; // made when it is first needed, save for the clean-up
};

} // namespace quorvia::host
