// The entry of a guest: the one function by which it makes itself known to the host.
#pragma once

#include <optional>
#include <string>

#include "state/Loader.h"

namespace quorvia::host {

using GuestEntry = void (*)();

/// Calls the entry, and puts the lock right behind it. False: it has thrown; `error` then says so
/// in one line, of `guest` ("add-on /path/addon.so").
bool enterGuest(GuestEntry entry, const std::string& guest, std::string& error);

/// Enters a guest that is linked into the program, or into a library of it. Gives the loader that
/// it has registered; nothing on failure, and `error` then says in one line what failed. What the
/// user imports goes where it went before: the loader stands ahead of all others, and is reached by
/// ReferenceHost::importInstructions that names it. The guest stays until the program ends.
std::optional<Loader_s> enterLinkedGuest(GuestEntry entry, std::string& error);

} // namespace quorvia::host
