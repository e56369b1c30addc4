// For callbacks that allocate. No exception may pass through the host's toolkit, which lies between
// a callback and the launch of the dialog, and which would keep the dialog's lock for ever.
#pragma once

#include <new>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// What `work` returns, a bool. False (told): memory ran out.
template <typename Work>
[[nodiscard]] bool runWithinMemory(Work work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        QuorUtilDialogErrMsg("Out of Memory!!!");
        return false;
    }
}

} // namespace quorvia::quorutildataio
