// All that the host knows, in words, so that two moments can be compared.
#pragma once

#include <string>

#include "memory/ServiceScenarios.h"

namespace quorvia::host {

/// How much the host has given out by now, counted for all guests together.
struct GivenOut_s {
    std::int64_t lists, argLists, sets, fields, nodeMaps, auxData, addOns, blocks, callbacks,
        loaders;

    static GivenOut_s now();
};

/// Data set, what the guest holds, what the host has given out since `before`, locks, progress,
/// log, dialogs. Not what tells of failed calls too: the host's last error, the transcript, and the
/// message "Out of memory.".
/// Nothing in it depends on addresses and on numbers that the host never gives out twice.
std::string hostPicture(const Guest_s& guest, const GivenOut_s& before);

} // namespace quorvia::host
