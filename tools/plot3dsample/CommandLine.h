// The command line of plot3d-sample.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "plot3dsample/SampleOptions.h"

namespace quorvia::plot3dsample {

/// Empty if the user asked for help or the version, which has then been written to `out`.
/// Throws UsageError.
std::optional<SampleOptions_s> parseCommandLine(const std::vector<std::string>& args,
                                                std::ostream& out);

} // namespace quorvia::plot3dsample
