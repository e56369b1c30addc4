// The program `quorhost-desktop`.
#pragma once

namespace quorvia::host {

/// Carries out one command line, as main gets it, and returns when the window was closed. Gives the
/// exit code: 0 the window was closed, 1 something stopped the program, 2 bad usage. Throws
/// nothing.
int runDesktop(int argc, char** argv) noexcept;

} // namespace quorvia::host
