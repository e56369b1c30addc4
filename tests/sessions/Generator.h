// Random sessions. The same seed gives the same session on every machine.
#pragma once

#include "sessions/Command.h"

namespace quorvia::sessions {

/// Files and two to six commands, most of which belong together: a load onto a data set brings
/// files that fit it more often than not, so that the session comes far.
Session_s makeSession(std::uint64_t seed);

} // namespace quorvia::sessions
