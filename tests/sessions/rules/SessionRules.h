// The rule book: what each command of a session makes of what the host holds. Written from what the
// documents say of loads (docs/append-and-replace.md, time-series.md, boundary-files.md,
// values-on-demand.md) and not from the add-on's code, of which nothing is used here.
#pragma once

#include <string>
#include <vector>

#include "sessions/Command.h"
#include "sessions/ExpectedDataSet.h"

namespace quorvia::sessions {

enum class Ending_e {
    Done,
    Refused,      ///< with a message; what the host holds is known all the same
    RefusedAmidst ///< with a message; how much had been done by then is left open
};

struct Verdict_s {
    Ending_e ending = Ending_e::Done;
    std::string reason; ///< for people
};

/// Carries the command out on the expectation.
Verdict_s apply(const Command& command, const std::vector<FileModel_s>& files,
                ExpectedHost_s& host);

} // namespace quorvia::sessions
