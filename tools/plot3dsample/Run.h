// The program plot3d-sample as a function.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace quorvia::plot3dsample {

/// `args` without the program's own name. Results go to `out`, one error line at most to `err`.
/// Gives the exit code: 0 written, 1 could not write, 2 bad usage.
int run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

} // namespace quorvia::plot3dsample
