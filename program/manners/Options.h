// Options as all commands declare them.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace plot3d::program {

/// Files or other texts as positional arguments. They go into the list as they stand: the parser's
/// own lists would take brackets and braces in file names for a syntax of theirs.
CLI::Option* addFiles(CLI::App& app, std::vector<std::string>& files,
                      const std::string& description);

/// An option that may come several times, each time with one value, which is kept as it stands.
CLI::Option* addRepeatable(CLI::App& app, const std::string& name, std::vector<std::string>& list,
                           const std::string& valueName, const std::string& description);

/// -o, --output and --overwrite, of commands that write a result.
void addOutput(CLI::App& app, std::string& output, bool& overwrites,
               const std::string& description);

} // namespace plot3d::program
