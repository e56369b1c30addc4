// From the files of the host's import file selection to the instructions that load them.
#pragma once

#include <string>
#include <vector>

#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// A selection, sorted by kind.
struct SelectedFiles_s {
    std::vector<std::string> gridFiles;
    std::vector<std::string> solutionFiles;
    std::vector<std::string> functionFiles;
    std::string nameFile;
};

/// The instructions that load the selection at once, with its boundary file if there is one beside
/// the first grid file. Null (not told): the host had no memory for them.
[[nodiscard]] HostStringList composeInstructions(const SelectedFiles_s& files, bool append);

} // namespace quorvia::quorutildataio
