// One run of a registered loader, as the host's import menu or a macro starts it.
#pragma once

#include <string>
#include <vector>

#include "session/ReferenceHost.h"

namespace quorvia::host {

/// See ReferenceHost::importSelection and importInstructions.
LoadResult_s runSelection(HostState_s& host, const std::vector<std::string>& files, bool advanced,
                          bool append);
LoadResult_s runInstructions(HostState_s& host, const std::vector<std::string>& instructions);
LoadResult_s runInstructions(HostState_s& host, const std::vector<std::string>& instructions,
                             const Loader_s& loader);

} // namespace quorvia::host
