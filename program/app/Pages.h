// What there is to tell of the commands and their options: one description, from which help texts,
// the man page and the shells' completions are made.
#pragma once

#include <string>
#include <vector>

#include "app/CommandTable.h"
#include "console/options/OptionParser.h"

namespace plot3d::program {

/// The group of the options that every command has.
inline constexpr const char* groupOfAllCommands = "Options of all commands";

struct CommandPage_s {
    std::string name;    // "info"; empty for the program itself
    std::string purpose; // one line
    std::vector<console::OptionRow_s> positionals;
    std::vector<console::OptionRow_s> options;
    std::string examples;
    std::string failureMeans; // of exit code 1
};

/// Of a command that declared its options to `parser`.
CommandPage_s pageOf(const Command& command, const console::OptionParser& parser);

/// Of the program itself: its own options, and its examples.
CommandPage_s programPage();

/// Of the program, then of each command.
std::vector<CommandPage_s> allPages();

/// "[OPTION]... FILE...", what stands behind the name.
std::string usageOf(const CommandPage_s& page);

struct ExitMeaning_s {
    int code;
    std::string meaning;
};

std::vector<ExitMeaning_s> exitMeaningsOf(const CommandPage_s& page);

} // namespace plot3d::program
