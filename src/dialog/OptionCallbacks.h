// Callbacks of controls that store their value in one member of the dialog's options.
#pragma once

#include <cstdint>

#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"
#include "state/DialogState.h"

namespace quorvia::quorutildataio {

template <bool Plot3DLoadOptions_s::*flag>
void storeFlag(const std::int32_t* value) {
    const HostLock lock(addOnID);
    gLoadOptions.*flag = *value != 0;
}

/// Item n of a menu or radio box stands for the enumerator with the value n - 1.
template <auto choice>
void storeChoice(const std::int32_t* item) {
    const HostLock lock(addOnID);
    auto& member = gLoadOptions.*choice;
    member = static_cast<std::remove_reference_t<decltype(member)>>(*item - 1);
}

} // namespace quorvia::quorutildataio
