// Sorts file names into grid, solution, function and name files, by the names alone. The same
// tables of patterns are the loader's file filters at the host.
#pragma once

#include <string>
#include <vector>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Fills the four tables of patterns. Called once, before the loader is registered.
void buildFilePatternTables();

/// All patterns, grid, solution, function, name file: "a b c", or with commas "a, b or c".
std::string filePatternListText(bool withCommas);

/// Sorts `names` (borrowed, may be null) into the outputs, which come in empty. Names of no kind
/// are dropped and told to the user once for all. False (told): a second name file was met, or the
/// host could not hand out a name.
[[nodiscard]] bool classifyFileNames(QuorStringListHandle names,
                                     std::vector<std::string>& gridFiles,
                                     std::vector<std::string>& solutionFiles,
                                     std::vector<std::string>& functionFiles,
                                     std::string& nameFile);

} // namespace quorvia::quorutildataio
