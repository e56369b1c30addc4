// The command line: which command is meant, what its options say, and what of it can't be.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "app/Pages.h"
#include "console/options/OptionParser.h"

namespace plot3d::program {

/// What is wrong with the command line, in one line, with what was probably meant.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A command with its part of the command line, and the options that all commands have.
class DeclaredCommand {
public:
    /// `command` is borrowed.
    explicit DeclaredCommand(Command& command);
    DeclaredCommand(const DeclaredCommand&) = delete;
    DeclaredCommand& operator=(const DeclaredCommand&) = delete;

    CommandPage_s page() const;
    /// Runs the command, or shows its help. `arguments` are those behind its name. Throws
    /// UsageError, and what the command throws.
    int run(std::vector<std::string> arguments, Surroundings_s surroundings);

private:
    void parse(std::vector<std::string> arguments);
    void refuseUnknown() const;
    void refuseWrongChoices() const;

    Command& command_;
    console::OptionParser parser_;
    std::string progress_ = "auto";
    bool quiet_ = false;
    bool help_ = false;
};

/// Does what the arguments behind the program's name say. Gives an ExitCode_e. Throws UsageError,
/// plot3d::Error and what else a command throws.
int carryOut(const std::vector<std::string>& arguments, const Surroundings_s& surroundings);

} // namespace plot3d::program
