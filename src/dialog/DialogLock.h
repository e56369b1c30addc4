// The host's lock over the time that the load dialog is up: taken when the dialog is launched,
// given back by the OK or Cancel that ends it.
#pragma once

#include "quorvia/QuorUtil.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

inline void startDialogLock() {
    QuorUtilLockStart(addOnID);
}

/// Gives the dialog's lock back at the end of a scope, however the scope ends.
class DialogLockEnd {
public:
    DialogLockEnd() = default;
    ~DialogLockEnd() { QuorUtilLockFinish(addOnID); }
    DialogLockEnd(const DialogLockEnd&) = delete;
    DialogLockEnd& operator=(const DialogLockEnd&) = delete;
};

} // namespace quorvia::quorutildataio
