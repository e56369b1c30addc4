// A macro: what a user of the host does one after the other, with the data set kept between the
// loads. Plain values, one record for each kind of command; docs/macros.md tells what each does.
// Made by parseMacro() (MacroParser.h), carried out by playMacro() (MacroPlayer.h).
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include "app/macro/DialogCommand.h"
#include "app/macro/HandMadeDataSet.h"

namespace quorvia::host {

struct SelectCommand_s {
    std::vector<std::string> files;
    bool append = false;
    bool advanced = false;
};

struct InstructionsCommand_s {
    std::vector<std::string> instructions;
};

/// The instructions that the host was handed last.
struct ReplayCommand_s {};

/// In place of answers that are left from an earlier command.
struct AnswersCommand_s {
    std::deque<bool> answers;
};

/// What is absent stays as it is.
struct HostCommand_s {
    std::optional<bool> sharingAllowed;
    std::optional<std::int32_t> plotType; // QuorPlotType_e
    std::optional<std::int32_t> version;
    std::optional<bool> refuseInstructions;
    /// Present without a list: the host's own rule.
    std::optional<std::optional<std::vector<double>>> timesFromFileNames;
    std::optional<std::int64_t> memoryLimitBytes; // 0 for no limit
};

struct DataSetCommand_s {
    HandMadeDataSet_s dataSet;
};

/// In the next load alone; `step` counts from 1.
struct InterruptCommand_s {
    std::int64_t step = 1;
};

/// In the next load alone; `call` counts the operation's calls in that load, from 1.
struct FailCommand_s {
    std::string operation;
    std::int64_t call = 1;
};

struct StateChangeCommand_s {
    std::int32_t code = 0;
};

/// Numbers from 1; both 0 for every field.
struct FetchCommand_s {
    std::int32_t zone = 0;
    std::int32_t variable = 0;
};

/// Every fetched value.
struct UnloadCommand_s {};

struct DeleteZonesCommand_s {
    std::set<std::int64_t> zones; // from 1
};

struct ResetFrameCommand_s {};

struct DescribeCommand_s {
    std::string name; // no other description of the macro has it
};

using MacroCommand =
    std::variant<SelectCommand_s, InstructionsCommand_s, ReplayCommand_s, AnswersCommand_s,
                 DialogCommand_s, HostCommand_s, DataSetCommand_s, InterruptCommand_s,
                 FailCommand_s, StateChangeCommand_s, FetchCommand_s, UnloadCommand_s,
                 DeleteZonesCommand_s, ResetFrameCommand_s, DescribeCommand_s>;

struct Macro_s {
    std::vector<MacroCommand> commands;
};

/// Whether the add-on must have been loaded before the command.
bool needsAddOn(const MacroCommand& command);

} // namespace quorvia::host
