// Macros that must not run, and what is said of each.
#include "app/macro/MacroParser.h"

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

/// What is wrong with the macro; empty for a sound one.
std::string errorOf(const std::string& text) {
    std::string error;
    const bool isSound = parseMacro(text, error).has_value();
    EXPECT_EQ(isSound, error.empty());
    return error;
}

/// What is wrong with a command behind a sound one; its number is left away.
std::string errorOfCommand(const std::string& command) {
    const std::string head = "command 2: ";
    const std::string error = errorOf(R"({"commands": [{"unload": "all"}, )" + command + "]}");
    EXPECT_EQ(0U, error.find(head)) << error;
    return error.substr(std::min(head.size(), error.size()));
}

std::string errorOfZone(const std::string& zone) {
    const std::string head = "\"zones\", entry 1: ";
    const std::string error =
        errorOfCommand(R"({"dataSet": {"variables": ["X", "Y"], "zones": [)" + zone + "]}}");
    EXPECT_EQ(0U, error.find(head)) << error;
    return error.substr(std::min(head.size(), error.size()));
}

/// The only command of a sound macro.
template <typename Command>
Command parsed(const std::string& command) {
    std::string error;
    const std::optional<Macro_s> macro = parseMacro(R"({"commands": [)" + command + "]}", error);
    EXPECT_EQ("", error);
    return std::get<Command>(macro.value().commands.at(0));
}

TEST(MacroParser, TakesAMacroWithoutCommands) {
    EXPECT_EQ("", errorOf(R"({"commands": []})"));
}

TEST(MacroParser, RefusesWhatIsNoMacro) {
    EXPECT_EQ("a macro must be an object", errorOf("[]"));
    EXPECT_EQ("a macro needs \"commands\"", errorOf("{}"));
    EXPECT_EQ("\"commands\" must be a list", errorOf(R"({"commands": {}})"));
    EXPECT_EQ("a macro: there is no key \"comands\"; the nearest known name is \"commands\"",
              errorOf(R"({"comands": []})"));
}

TEST(MacroParser, TellsWhereTextIsNoJson) {
    EXPECT_EQ(0U, errorOf("{\n\"commands\": [}").find("it is no JSON: parse error at line 2"));
    EXPECT_EQ("it is no JSON: number overflow parsing '1e999'",
              errorOf(R"({"commands": [1e999]})"));
    EXPECT_EQ(0U, errorOf("").find("it is no JSON: "));
}

TEST(MacroParser, CountsCommandsFromOne) {
    EXPECT_EQ("command 1: \"replay\" must be true",
              errorOf(R"({"commands": [{"replay": false}]})"));
    EXPECT_EQ("command 3: \"replay\" must be true or false",
              errorOf(R"({"commands": [{"unload": "all"}, {"replay": true}, {"replay": 1}]})"));
}

TEST(MacroParser, NamesTheCommandThatMayHaveBeenMeant) {
    EXPECT_EQ("there is no command \"selct\"; the nearest known name is \"select\"",
              errorOfCommand(R"({"selct": {"files": ["a.g"]}})"));
    EXPECT_EQ("there is no command \"dataset\"; the nearest known name is \"dataSet\"",
              errorOfCommand(R"({"dataset": {}})"));
}

TEST(MacroParser, TakesOneCommandAtATime) {
    const std::string noCommand = "it must be an object with the command's name as its key";
    EXPECT_EQ("it has 2 keys, and a command has one",
              errorOfCommand(R"({"replay": true, "describe": "x"})"));
    EXPECT_EQ(noCommand, errorOfCommand("{}"));
    EXPECT_EQ(noCommand, errorOfCommand("\"replay\""));
}

TEST(MacroParser, RefusesBadCommands) {
    const std::pair<const char*, const char*> table[] = {
        {R"({"select": ["a.g"]})", "\"select\" must be an object"},
        {R"({"select": {}})", "\"select\" needs \"files\""},
        {R"({"select": {"files": []}})", "\"files\" is empty; there is nothing to select"},
        {R"({"select": {"files": "a.g"}})", "\"files\" must be a list"},
        {R"({"select": {"files": ["a.g", 7]}})", "\"files\", entry 2 must be a text"},
        {R"({"select": {"files": ["a.g"], "append": "yes"}})", "\"append\" must be true or false"},
        {R"({"select": {"files": ["a.g"], "apend": true}})",
         "\"select\": there is no key \"apend\"; the nearest known name is \"append\""},
        {R"({"instructions": ["A", 1]})", "\"instructions\", entry 2 must be a text"},
        {R"({"answers": [true, "no"]})", "\"answers\", entry 2 must be true or false"},
        {R"({"host": {"memorylimit": 3}})",
         "\"host\": there is no key \"memorylimit\"; the nearest known name is \"memoryLimit\""},
        {R"({"host": {"memoryLimit": -1}})",
         "\"memoryLimit\" must be a whole number from 0 to 9223372036854775807"},
        {R"({"host": {"memoryLimit": 9223372036854775808}})",
         "\"memoryLimit\" must be a whole number from 0 to 9223372036854775807"},
        {R"({"host": {"plotType": "3d"}})",
         "\"plotType\" can't be \"3d\"; the nearest known word is \"3D\""},
        {R"({"host": {"timesFromFileNames": [1, null]}})",
         "\"timesFromFileNames\", entry 2 must be a number"},
        {R"({"interruptAtStep": 0})",
         "\"interruptAtStep\" must be a whole number from 1 to 9223372036854775807"},
        {R"({"interruptAtStep": 2.0})",
         "\"interruptAtStep\" must be a whole number from 1 to 9223372036854775807"},
        {R"({"fail": {"operation": "QuorUtilSetAlloc"}})", "\"fail\" needs \"call\""},
        {R"({"fail": {"operation": "QuorUtilSetaloc", "call": 1}})",
         "there is no operation \"QuorUtilSetaloc\"; the nearest known name is "
         "\"QuorUtilSetAlloc\""},
        {R"({"fail": {"operation": "QuorUtilRedraw", "call": 1}})",
         "the operation \"QuorUtilRedraw\" has no way to fail"},
        {R"({"stateChange": "15"})", "\"stateChange\" must be a whole number from 0 to 2147483647"},
        {R"({"fetch": "everything"})",
         "\"fetch\" must be \"all\" or an object with \"zone\" and \"variable\""},
        {R"({"fetch": {"zone": 1}})", "\"fetch\" needs \"variable\""},
        {R"({"fetch": {"zone": 0, "variable": 1}})",
         "\"zone\" must be a whole number from 1 to 2147483647"},
        {R"({"unload": true})", "\"unload\" must be \"all\""},
        {R"({"deleteZones": []})", "\"deleteZones\" is empty; there is nothing to delete"},
        {R"({"resetFrame": false})", "\"resetFrame\" must be true"},
        {R"({"describe": 1})", "\"describe\" must be a text"},
        {R"({"dataSet": {"title": "T"}})", "\"dataSet\" needs \"variables\""},
        {R"({"dataSet": {"variables": []}})",
         "\"variables\" is empty; a data set has at least one"},
    };
    for (const auto& [command, error] : table)
        EXPECT_EQ(error, errorOfCommand(command));
}

TEST(MacroParser, RefusesBadZones) {
    const std::pair<const char*, const char*> table[] = {
        {R"({"nam": "A"})",
         "the zone: there is no key \"nam\"; the nearest known name is \"name\""},
        {R"({"type": "tetrahedron"})",
         "\"type\" can't be \"tetrahedron\"; the nearest known word is \"tetrahedra\""},
        {R"({"i": 0})", "\"i\" must be a whole number from 1 to 9223372036854775807"},
        {R"({"i": 3037000500, "j": 3037000500})",
         "the zone has more points than memory has addresses"},
        {R"({"type": "triangles", "k": 4})",
         "\"k\" is the number of corners, which must be 3 here, and is 4"},
        {R"({"types": ["float32"]})", "\"types\" names 1 types for 2 variables"},
        {R"({"types": ["float32", "float"]})",
         "\"types\", entry 2 can't be \"float\"; the nearest known word is \"float32\""},
        {R"({"passive": [2, 3]})", "\"passive\" names variable 3 of 2"},
        {R"({"cellCentred": [0]})",
         "\"cellCentred\", entry 1 must be a whole number from 1 to 2147483647"},
        {R"({"strandId": -1})", "\"strandId\" must be a whole number from 0 to 2147483647"},
        {R"({"solutionTime": "0.5"})", "\"solutionTime\" must be a number"},
    };
    for (const auto& [zone, error] : table)
        EXPECT_EQ(error, errorOfZone(zone));
}

TEST(MacroParser, VersionMustStandBeforeTheFirstCommandThatNeedsTheAddOn) {
    EXPECT_EQ("command 3: \"version\" comes too late: command 2 has loaded the add-on",
              errorOf(R"({"commands": [{"unload": "all"}, {"describe": "a"},
                                       {"host": {"version": 1000378}}]})"));
    EXPECT_EQ("", errorOf(R"({"commands": [{"resetFrame": true}, {"host": {"version": 1000378}},
                                           {"describe": "a"}, {"host": {"plotType": "XY"}}]})"));
}

TEST(MacroParser, DescriptionsHaveDifferentNames) {
    EXPECT_EQ(
        "command 3: command 1 has a description \"a\" already",
        errorOf(R"({"commands": [{"describe": "a"}, {"describe": "b"}, {"describe": "a"}]})"));
}

TEST(MacroParser, TimesFromFileNamesMayBeTheHostsOwnOrNoneOrGiven) {
    const auto times = [](const std::string& value) {
        const auto command =
            parsed<HostCommand_s>(R"({"host": {"timesFromFileNames": )" + value + "}}");
        return command.timesFromFileNames.value();
    };
    EXPECT_EQ(std::nullopt, times("null"));
    EXPECT_EQ(std::vector<double>(), times("[]"));
    EXPECT_EQ((std::vector<double>{0.25, 3}), times("[0.25, 3]"));
    EXPECT_FALSE(parsed<HostCommand_s>(R"({"host": {}})").timesFromFileNames.has_value());
}

TEST(MacroParser, ZonesOfADataSetHaveDefaults) {
    const auto command = parsed<DataSetCommand_s>(
        R"({"dataSet": {"variables": ["X", "Y"], "zones": [{}, {"type": "triangles"},
                                                           {"type": "tetrahedra"}]}})");
    const std::vector<HandMadeZone_s>& zones = command.dataSet.zones;
    EXPECT_EQ((std::vector<std::int32_t>(2, QuorFieldDataType_Float)), zones.at(0).types);
    EXPECT_EQ(1, zones.at(0).k);
    EXPECT_EQ(3, zones.at(1).k);
    EXPECT_EQ(4, zones.at(2).k);
}

TEST(MacroParser, TakesEveryDialogAction) {
    const auto command = parsed<DialogCommand_s>(
        R"({"dialog": [{"page": "P"}, {"toggle": "T", "value": true}, {"radio": "R"},
                       {"menu": "M"}, {"press": "OK"}, {"press": "B", "list": "Function"},
                       {"selectItems": [1, 3], "list": "Solution"},
                       {"type": "", "field": "Grid Set"}, {"choose": ["a", "b"]},
                       {"choose": null}, {"describe": "D"}]})");
    ASSERT_EQ(11U, command.actions.size());
    EXPECT_EQ("P", std::get<ShowPageAction_s>(command.actions[0]).caption);
    EXPECT_TRUE(std::get<ToggleAction_s>(command.actions[1]).value);
    EXPECT_EQ("R", std::get<RadioAction_s>(command.actions[2]).item);
    EXPECT_EQ("M", std::get<MenuAction_s>(command.actions[3]).item);
    EXPECT_EQ(std::nullopt, std::get<PressAction_s>(command.actions[4]).column);
    EXPECT_EQ(FileColumn_e::Function, std::get<PressAction_s>(command.actions[5]).column);
    const auto& select = std::get<SelectItemsAction_s>(command.actions[6]);
    EXPECT_EQ((std::vector<std::int32_t>{1, 3}), select.positions);
    EXPECT_EQ(FileColumn_e::Solution, select.column);
    EXPECT_EQ("Grid Set", std::get<TypeAction_s>(command.actions[7]).field);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}),
              std::get<ChooseAction_s>(command.actions[8]).files);
    EXPECT_TRUE(std::get<ChooseAction_s>(command.actions[9]).files.empty());
    EXPECT_EQ("D", std::get<DescribeAction_s>(command.actions[10]).name);
}

TEST(MacroParser, TellsWhatIsWrongWithADialogAction) {
    const std::string form = "\"dialog\", entry 1";
    const auto errorOfAction = [](const std::string& action) {
        return errorOfCommand(R"({"dialog": [)" + action + "]}");
    };
    EXPECT_EQ("\"dialog\" must be a list", errorOfCommand(R"({"dialog": {}})"));
    EXPECT_EQ(form + " must be an object with the action's name as a key", errorOfAction("7"));
    EXPECT_EQ(form + ": there is no action \"pres\"; the nearest known name is \"press\"",
              errorOfAction(R"({"pres": "OK"})"));
    EXPECT_EQ(form + ": there is no key \"valu\"; the nearest known name is \"value\"",
              errorOfAction(R"({"toggle": "T", "valu": true})"));
    EXPECT_EQ(form + " needs \"value\"", errorOfAction(R"({"toggle": "T"})"));
    EXPECT_EQ(form + " needs \"list\"", errorOfAction(R"({"selectItems": [1]})"));
    EXPECT_EQ("\"selectItems\", entry 1 must be a whole number from 1 to 2147483647",
              errorOfAction(R"({"selectItems": [0], "list": "Grid"})"));
}

TEST(MacroParser, RefusesADescriptionOfADialogUnderAUsedName) {
    EXPECT_EQ("command 2: command 1 has a description \"D\" already",
              errorOf(R"({"commands": [{"describe": "D"}, {"dialog": [{"describe": "D"}]}]})"));
}

} // namespace
} // namespace quorvia::host
