#include "app/macro/CommandText.h"

#include <filesystem>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include "console/Words.h"

namespace quorvia::host {
namespace {

std::string fileNames(const std::vector<std::string>& files) {
    std::string result = std::filesystem::path(files.front()).filename().string();
    if (files.size() > 1)
        result += fmt::format(" and {} more", files.size() - 1);
    return result;
}

struct Tell_s {
    std::string operator()(const SelectCommand_s& command) const {
        return fmt::format("select {}{}{}", fileNames(command.files),
                           command.append ? ", append" : "", command.advanced ? ", advanced" : "");
    }
    std::string operator()(const InstructionsCommand_s& command) const {
        return "instructions, " +
               console::counted(command.instructions.size(), "string", "strings");
    }
    std::string operator()(const ReplayCommand_s&) const { return "replay"; }
    std::string operator()(const AnswersCommand_s& command) const {
        std::vector<std::string_view> words;
        for (const bool answer : command.answers)
            words.emplace_back(answer ? "yes" : "no");
        return fmt::format("answers {}", fmt::join(words, ", "));
    }
    std::string operator()(const DialogCommand_s& command) const {
        return "dialog, " + console::counted(command.actions.size(), "action", "actions");
    }
    std::string operator()(const HostCommand_s&) const { return "host"; }
    std::string operator()(const DataSetCommand_s& command) const {
        return fmt::format("dataSet \"{}\"", command.dataSet.title);
    }
    std::string operator()(const InterruptCommand_s& command) const {
        return fmt::format("interruptAtStep {}", command.step);
    }
    std::string operator()(const FailCommand_s& command) const {
        return fmt::format("fail {}, call {}", command.operation, command.call);
    }
    std::string operator()(const StateChangeCommand_s& command) const {
        return fmt::format("stateChange {}", command.code);
    }
    std::string operator()(const FetchCommand_s& command) const {
        return command.zone == 0
                   ? "fetch all"
                   : fmt::format("fetch zone {}, variable {}", command.zone, command.variable);
    }
    std::string operator()(const UnloadCommand_s&) const { return "unload all"; }
    std::string operator()(const DeleteZonesCommand_s& command) const {
        return fmt::format("deleteZones {}", fmt::join(command.zones, ", "));
    }
    std::string operator()(const ResetFrameCommand_s&) const { return "resetFrame"; }
    std::string operator()(const DescribeCommand_s& command) const {
        return fmt::format("describe \"{}\"", command.name);
    }
};

} // namespace

std::string commandText(const MacroCommand& command) {
    return std::visit(Tell_s(), command);
}

} // namespace quorvia::host
