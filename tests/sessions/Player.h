// Plays sessions on the built library in the reference host, and holds what comes of them against
// the model.
#pragma once

#include <string>

#include "sessions/Command.h"

namespace quorvia::sessions {

struct Difference_s {
    std::size_t command = 0; ///< from 1; 0: none was found
    std::string text;        ///< what differs, and how
};

/// How the loads of sessions ended that went as expected.
struct Tally_s {
    std::int64_t loads = 0;
    std::int64_t refusals = 0;
};

/// Writes the files into a folder of its own and plays the commands on a freshly opened library, up
/// to the first difference. Adds to `tally`. Throws std::runtime_error if files or library can't be
/// had.
Difference_s play(const Session_s& session, Tally_s& tally);

/// The session without the commands that its difference can do without.
Session_s minimised(const Session_s& session);

} // namespace quorvia::sessions
