// The program plot3d as a function.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "manners/Command.h"

namespace plot3d::program {

/// `arguments` are those behind the program's name. Gives an ExitCode_e; every failure has been
/// told on `err`.
int run(const std::vector<std::string>& arguments, const Surroundings_s& surroundings) noexcept;
/// The same without a terminal.
int run(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
        std::ostream& err) noexcept;

/// The same with the standard streams, and Ctrl-C.
int runAtTerminal(const std::vector<std::string>& arguments) noexcept;

} // namespace plot3d::program
