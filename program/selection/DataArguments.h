// The files of a command that loads a data set, as all such commands take them: `plot3d stats
// wing.x wing.q`, with --grid, --solution, --function and --name where names don't tell the kind,
// `-` for a list on standard input, and --set for what a load instruction can say.
#pragma once

#include <string>
#include <vector>

#include <plot3d/DataSet.h>

#include "manners/Command.h"

namespace plot3d::program {

class DataArguments {
public:
    /// Adds the options; they are kept here. `separate` names none of the files as positional
    /// arguments, for commands with two data sets.
    void declare(CLI::App& app);
    /// Opens what was named, with progress, and tells its notes as warnings. Throws plot3d::Error.
    DataSet open(const Surroundings_s& surroundings) const;
    /// The same for one list of files with the other options as they are.
    DataSet open(const std::vector<std::string>& files, const Surroundings_s& surroundings) const;
    /// The files as named, with `-` replaced by what standard input lists.
    std::vector<std::string> files(const Surroundings_s& surroundings) const;

private:
    std::vector<std::string> files_;
    FileLists lists_;
    std::vector<std::string> settings_; // KEY=VALUE
    OpenOptions options_;
};

} // namespace plot3d::program
