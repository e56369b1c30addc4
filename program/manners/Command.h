// What all commands of the program have in common: what they are given, and what they are.
#pragma once

#include <iosfwd>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace console {
class OptionTable;
}

namespace plot3d::program {

enum ExitCode_e : int {
    ExitCode_Done = 0,
    ExitCode_Failed = 1, // refused or failed, one of several files is enough; of diff: different
    ExitCode_Usage = 2,
    ExitCode_Unreadable = 3, // values that could not be read
    ExitCode_Interrupted = 130
};

enum class ProgressWish_e : unsigned char { Auto, Always, Never };

/// The streams are borrowed. Data goes to `out`, all talk to `err`.
struct Surroundings_s {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    int outColumns = 0;  // width of the terminal behind `out`; 0: it is none
    int errColumns = 0;  // likewise; 0: no progress unless asked for
    bool colour = false; // of `out`
    ProgressWish_e progress = ProgressWish_e::Auto;
    bool quiet = false;   // nothing on `err` but errors
    std::stop_token stop; // requested by Ctrl-C
};

/// One of `plot3d info`, `plot3d stats` and so on.
class Command {
public:
    virtual ~Command() = default;

    virtual const char* name() const = 0;
    /// One line for the list of commands.
    virtual const char* purpose() const = 0;
    /// Two or more whole command lines with what they do, for the end of the help text.
    virtual const char* examples() const = 0;
    /// What exit code 1 means, for the help text: "a file is refused".
    virtual const char* failureMeans() const { return "refused or failed"; }
    /// Declares options and files of the command's own part of the command line, which are kept
    /// here.
    virtual void declare(console::OptionTable& table) = 0;
    /// Takes out of the arguments what the parser can't understand, before it sees them: the files
    /// behind `--`, where a command has two lists of them.
    virtual void takeApart(std::vector<std::string>& /*arguments*/) {}
    /// Runs with what was declared. Gives an ExitCode_e. What a plot3d::Error says is told by the
    /// caller of all commands, which knows the exit code of its kind.
    virtual int run(const Surroundings_s& surroundings) = 0;
};

} // namespace plot3d::program
