#include "app/macro/MacroParser.h"

#include <algorithm>
#include <map>
#include <utility>

#include <fmt/core.h>

#include "app/macro/DataSetCommandParser.h"
#include "app/macro/DialogCommandParser.h"
#include "app/macro/MacroJson.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {
namespace {

// ---- One function for each command; `what` is its name in quotes --------------------------------

MacroCommand parseSelect(const MacroJson& value, const std::string& what) {
    const ObjectReader reader(value, what, {"files", "append", "advanced"});
    SelectCommand_s command;
    command.files = toList(reader.get("files"), inQuotes("files"), toText);
    if (command.files.empty())
        throw MacroError("\"files\" is empty; there is nothing to select");
    reader.take("append", command.append, toBool);
    reader.take("advanced", command.advanced, toBool);
    return command;
}

MacroCommand parseInstructions(const MacroJson& value, const std::string& what) {
    return InstructionsCommand_s{toList(value, what, toText)};
}

/// For commands that have nothing to tell but themselves.
template <typename Command>
MacroCommand parseFlag(const MacroJson& value, const std::string& what) {
    if (!toBool(value, what))
        throw MacroError(what + " must be true");
    return Command();
}

MacroCommand parseAnswers(const MacroJson& value, const std::string& what) {
    const std::vector<bool> answers = toList(value, what, toBool);
    return AnswersCommand_s{{answers.begin(), answers.end()}};
}

MacroCommand parseDialog(const MacroJson& value, const std::string& what) {
    return parseDialogCommand(value, what);
}

/// The words are those of the outcome (describe/Words.h).
std::int32_t toPlotType(const MacroJson& value, const std::string& what) {
    return toWord(value, what,
                  {{"none", QuorPlotType_None},
                   {"3D", QuorPlotType_3D},
                   {"2D", QuorPlotType_2D},
                   {"XY", QuorPlotType_XY},
                   {"sketch", QuorPlotType_Sketch},
                   {"polar", QuorPlotType_Polar}});
}

std::optional<std::vector<double>> toTimes(const MacroJson& value, const std::string& what) {
    if (value.is_null())
        return std::nullopt;
    return toList(value, what, toReal);
}

MacroCommand parseHost(const MacroJson& value, const std::string& what) {
    const ObjectReader reader(value, what,
                              {"sharingAllowed", "plotType", "version", "refuseInstructions",
                               "timesFromFileNames", "memoryLimit"});
    HostCommand_s command;
    reader.take("sharingAllowed", command.sharingAllowed, toBool);
    reader.take("plotType", command.plotType, toPlotType);
    reader.take("version", command.version, [](const MacroJson& version, const std::string& name) {
        return toInt32(version, name, 0);
    });
    reader.take("refuseInstructions", command.refuseInstructions, toBool);
    if (const MacroJson* times = reader.find("timesFromFileNames"))
        command.timesFromFileNames.emplace(toTimes(*times, inQuotes("timesFromFileNames")));
    reader.take(
        "memoryLimit", command.memoryLimitBytes,
        [](const MacroJson& limit, const std::string& name) { return toInteger(limit, name, 0); });
    return command;
}

MacroCommand parseDataSet(const MacroJson& value, const std::string& what) {
    return DataSetCommand_s{parseHandMadeDataSet(value, what)};
}

MacroCommand parseInterrupt(const MacroJson& value, const std::string& what) {
    return InterruptCommand_s{toInteger(value, what, 1)};
}

void refuseUnknownOperation(const std::string& name) {
    const std::vector<std::string> all = ReferenceHost::operationNames();
    if (std::find(all.begin(), all.end(), name) == all.end())
        throw MacroError(unknownName("operation", name, {all.begin(), all.end()}));
    const std::vector<std::string> failing = ReferenceHost::operationsThatCanFail();
    if (std::find(failing.begin(), failing.end(), name) == failing.end())
        throw MacroError(fmt::format("the operation \"{}\" has no way to fail", name));
}

MacroCommand parseFail(const MacroJson& value, const std::string& what) {
    const ObjectReader reader(value, what, {"operation", "call"});
    FailCommand_s command;
    command.operation = toText(reader.get("operation"), inQuotes("operation"));
    refuseUnknownOperation(command.operation);
    command.call = toInteger(reader.get("call"), inQuotes("call"), 1);
    return command;
}

MacroCommand parseStateChange(const MacroJson& value, const std::string& what) {
    return StateChangeCommand_s{toInt32(value, what, 0)};
}

bool isAll(const MacroJson& value) {
    return value.is_string() && value == "all";
}

MacroCommand parseFetch(const MacroJson& value, const std::string& what) {
    if (isAll(value))
        return FetchCommand_s();
    if (!value.is_object())
        throw MacroError(what + " must be \"all\" or an object with \"zone\" and \"variable\"");
    const ObjectReader reader(value, what, {"zone", "variable"});
    return FetchCommand_s{toInt32(reader.get("zone"), inQuotes("zone"), 1),
                          toInt32(reader.get("variable"), inQuotes("variable"), 1)};
}

MacroCommand parseUnload(const MacroJson& value, const std::string& what) {
    if (!isAll(value))
        throw MacroError(what + " must be \"all\"");
    return UnloadCommand_s();
}

MacroCommand parseDeleteZones(const MacroJson& value, const std::string& what) {
    const auto toNumber = [](const MacroJson& zone, const std::string& name) {
        return toInteger(zone, name, 1);
    };
    const std::vector<std::int64_t> zones = toList(value, what, toNumber);
    if (zones.empty())
        throw MacroError(what + " is empty; there is nothing to delete");
    return DeleteZonesCommand_s{{zones.begin(), zones.end()}};
}

MacroCommand parseDescribe(const MacroJson& value, const std::string& what) {
    return DescribeCommand_s{toText(value, what)};
}

// ---- A command, and all of them -----------------------------------------------------------------

using Parse = MacroCommand (*)(const MacroJson&, const std::string&);

Parse parserOf(const std::string& name) {
    static const std::map<std::string_view, Parse> parsers = {
        {"select", parseSelect},
        {"instructions", parseInstructions},
        {"replay", parseFlag<ReplayCommand_s>},
        {"answers", parseAnswers},
        {"dialog", parseDialog},
        {"host", parseHost},
        {"dataSet", parseDataSet},
        {"interruptAtStep", parseInterrupt},
        {"fail", parseFail},
        {"stateChange", parseStateChange},
        {"fetch", parseFetch},
        {"unload", parseUnload},
        {"deleteZones", parseDeleteZones},
        {"resetFrame", parseFlag<ResetFrameCommand_s>},
        {"describe", parseDescribe}};
    const auto found = parsers.find(name);
    if (found != parsers.end())
        return found->second;
    std::vector<std::string_view> known;
    for (const auto& entry : parsers)
        known.push_back(entry.first);
    throw MacroError(unknownName("command", name, known));
}

MacroCommand parseCommand(const MacroJson& value) {
    if (!value.is_object() || value.empty())
        throw MacroError("it must be an object with the command's name as its key");
    for (const auto& [name, entry] : value.items())
        parserOf(name);
    if (value.size() > 1)
        throw MacroError(fmt::format("it has {} keys, and a command has one", value.size()));
    const auto only = value.begin();
    return parserOf(only.key())(only.value(), inQuotes(only.key()));
}

/// Rules that a command keeps with those before it.
class CommandOrder {
public:
    /// Commands must come in their order.
    void check(const MacroCommand& command) {
        ++number_;
        const auto* host = std::get_if<HostCommand_s>(&command);
        if (host != nullptr && host->version && addOnNumber_ != 0)
            throw MacroError(fmt::format("\"version\" comes too late: command {} has loaded the "
                                         "add-on",
                                         addOnNumber_));
        if (addOnNumber_ == 0 && needsAddOn(command))
            addOnNumber_ = number_;
        if (const auto* describe = std::get_if<DescribeCommand_s>(&command))
            takeName(describe->name);
        if (const auto* dialog = std::get_if<DialogCommand_s>(&command))
            for (const MacroDialogAction& action : dialog->actions)
                if (const auto* describe = std::get_if<DescribeAction_s>(&action))
                    takeName(describe->name);
    }

private:
    void takeName(const std::string& name) {
        const auto [place, isNew] = numberOfName_.emplace(name, number_);
        if (!isNew)
            throw MacroError(
                fmt::format("command {} has a description \"{}\" already", place->second, name));
    }

    std::size_t number_ = 0;
    std::size_t addOnNumber_ = 0; // of the first command that needs it; 0: none so far
    std::map<std::string, std::size_t> numberOfName_;
};

const MacroJson& commandsOf(const MacroJson& macro) {
    const ObjectReader reader(macro, "a macro", {"commands"});
    const MacroJson& commands = reader.get("commands");
    if (!commands.is_array())
        throw MacroError("\"commands\" must be a list");
    return commands;
}

Macro_s parseCommands(const MacroJson& commands) {
    Macro_s macro;
    CommandOrder order;
    for (const MacroJson& value : commands) {
        try {
            MacroCommand command = parseCommand(value);
            order.check(command);
            macro.commands.push_back(std::move(command));
        } catch (const MacroError& error) {
            throw MacroError(
                fmt::format("command {}: {}", macro.commands.size() + 1, error.what()));
        }
    }
    return macro;
}

/// The JSON library's own words, without their head, which names an exception.
std::string syntaxError(const MacroJson::exception& error) {
    const std::string_view text = error.what();
    const std::size_t head = text.find("] ");
    return fmt::format("it is no JSON: {}",
                       head == std::string_view::npos ? text : text.substr(head + 2));
}

} // namespace

std::optional<Macro_s> parseMacro(std::string_view text, std::string& error) {
    try {
        return parseCommands(commandsOf(MacroJson::parse(text)));
    } catch (const MacroError& found) {
        error = found.what();
    } catch (const MacroJson::exception& found) {
        error = syntaxError(found);
    }
    return std::nullopt;
}

} // namespace quorvia::host
