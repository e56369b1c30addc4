// What a load that came in has left out of what it was given.
#pragma once

#include <string>
#include <vector>

#include "describe/Outcome.h"

namespace quorvia::host {

/// The files of a selection that the import menu would not offer, since they fit none of the
/// patterns of `extensions`, which are separated by blanks. Directories don't count, nor does case.
/// Boundary files need no kind: they are found beside their grid files.
std::vector<std::string> filesOfNoKind(const std::vector<std::string>& files,
                                       const std::string& extensions);

/// The files of a selection that `instructions`, which would repeat the load, do not name. A
/// boundary file beside the first grid file comes in with it if they say so.
std::vector<std::string> filesNotNamed(const std::vector<std::string>& files,
                                       const std::vector<std::string>& instructions);

/// Whether an error was shown. A load that came in all the same goes on without what the error is
/// about: a name file, a boundary file, a file of no kind.
bool toldAnError(const Outcome_s& outcome);

} // namespace quorvia::host
