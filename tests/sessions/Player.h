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

/// Writes the files into a folder of its own and plays the commands, up to the first difference.
/// `loads` and `refusals` are counted up.
Difference_s play(const Session_s& session, std::int64_t& loads, std::int64_t& refusals);

/// The session without the commands that its difference can do without.
Session_s minimised(const Session_s& session);

} // namespace quorvia::sessions
