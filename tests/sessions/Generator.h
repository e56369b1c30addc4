// Random sessions. The same seed gives the same session on every machine.
//
// Left out is what the documents call ambiguous, a promise of the user or a limit:
// - files that an earlier reading fits as well (docs/detection.md);
// - files that share the structure of the first and have another one, or are in 3-D Planes, or
//   are described by hand in another style than Classic;
// - a set of grids with a range that ends below a dimension, but for Fortran records;
// - boundary files in series whose grid files differ in sizes or precision;
// - the end of K typed at the dialog, and a second dialog in one session, which would begin with
//   what the first one left.
#pragma once

#include "sessions/Command.h"

namespace quorvia::sessions {

/// Files and two to six commands, most of which belong together: a load onto a data set brings
/// files that fit it more often than not, so that the session comes far.
Session_s makeSession(std::uint64_t seed);

} // namespace quorvia::sessions
