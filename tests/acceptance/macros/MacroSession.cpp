#include "acceptance/macros/MacroSession.h"

#include <sstream>

#include "app/Program.h"

namespace quorvia::testsupport {

namespace {

void appendFiles(Texts& instructions, const std::string& key, const Texts& files) {
    if (files.empty())
        return;
    instructions.insert(instructions.end(), {key, std::to_string(files.size())});
    instructions.insert(instructions.end(), files.begin(), files.end());
}

} // namespace

Json command(const std::string& name, const Json& value) {
    Json result = Json::object();
    result.set(name, value);
    return result;
}

Json select(const Texts& files) {
    return command("select", command("files", files));
}

Json describe(const std::string& name) {
    return command("describe", name);
}

Json replay() {
    return command("replay", true);
}

Json load(const Files_s& files, const std::vector<std::pair<std::string, std::string>>& settings) {
    Texts instructions = {"STANDARDSYNTAX", "1.0"};
    appendFiles(instructions, "FILELIST_GRIDFILES", files.grids);
    appendFiles(instructions, "FILELIST_SOLUTIONFILES", files.solutions);
    appendFiles(instructions, "FILELIST_FUNCTIONFILES", files.functions);
    for (const auto& [key, value] : settings)
        instructions.insert(instructions.end(), {key, value});
    return command("instructions", instructions);
}

void MacroSession::play(const Commands& commands, const Texts& options) {
    const std::string file =
        directory_.write("macro.json", command("commands", Json(commands)).dump());
    Texts arguments = {"macro", file, "--json", "-", "--addon", PLOT3D_ADDON_PATH};
    arguments.insert(arguments.end(), options.begin(), options.end());
    std::ostringstream out;
    std::ostringstream err;
    constexpr int noTerminal = 0;
    exitCode_ = host::run(arguments, {out, err, noTerminal});
    ASSERT_NE(exitCode_, 2) << err.str();
    outcomes_ = Json::parse(out.str());
    shown_ = err.str();
    EXPECT_EQ(last()["violations"].get<Texts>(), expectedViolations_);
    EXPECT_EQ(last()["lockDepth"], 0);
}

const Json& MacroSession::described(const std::string& name) const {
    return outcomes_["descriptions"][name];
}

Texts MacroSession::messages(const Json& outcome) {
    Texts result;
    for (const Json& message : outcome["messages"])
        result.push_back(message["text"].get<std::string>());
    return result;
}

Texts MacroSession::zoneNames(const Json& outcome) {
    Texts result;
    if (outcome["dataSet"].isNull())
        return result;
    for (const Json& zone : outcome["dataSet"]["zones"])
        result.push_back(zone["name"].get<std::string>());
    return result;
}

Json MacroSession::dataSet(const Json& outcome) {
    Json result = outcome["dataSet"];
    if (!result.isNull())
        result.set("plotType", outcome["plotType"]);
    return result;
}

} // namespace quorvia::testsupport
