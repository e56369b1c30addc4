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
    /// Adds files and options; they are kept here.
    void declare(console::OptionTable& table);
    /// Without the files and their kinds: for commands with two data sets, which take the files
    /// themselves.
    void declareOptions(console::OptionTable& table);

    /// Opens what was named, with progress, and tells its notes as warnings. Throws plot3d::Error.
    DataSet open(const Surroundings_s& surroundings) const;
    /// The same for one list of files with the other options as they are.
    DataSet open(const std::vector<std::string>& files, const Surroundings_s& surroundings) const;
    /// The files as named, of all kinds, with `-` replaced by what standard input lists.
    std::vector<std::string> files(const Surroundings_s& surroundings) const;

private:
    OpenOptions options() const;
    /// The files of known kinds, and behind them the others by the kind that they are seen to have.
    FileLists listsWithFiles(const Surroundings_s& surroundings) const;

    std::vector<std::string> files_; // of kinds that their names or bytes tell
    FileLists lists_;
    std::vector<std::string> settings_; // KEY=VALUE
    std::string nameFile_;
    std::string addOn_;
    bool sharesStructure_ = false;
    bool leavesOutBoundaries_ = false;
};

} // namespace plot3d::program
