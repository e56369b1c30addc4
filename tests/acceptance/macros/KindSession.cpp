#include "acceptance/macros/KindSession.h"

#include <algorithm>

namespace quorvia::testsupport {

namespace {

constexpr double shifts[] = {0, 0, 50, 70, 90};

Texts writeSolutions(const SmallFiles& files, const std::string& stem) {
    Texts names;
    for (int step = 1; step <= 5; ++step)
        names.push_back(
            files.solution(stem + "." + std::to_string(step) + ".q", step, shifts[step - 1]));
    return names;
}

Texts steps(const Texts& files, std::size_t first, std::size_t count) {
    const auto begin = files.begin() + static_cast<std::ptrdiff_t>(first);
    return {begin, begin + static_cast<std::ptrdiff_t>(count)};
}

} // namespace

std::string nameOf(LoadKind_e kind) {
    static const char* const names[] = {"Fresh",          "ReplaceSolution",
                                        "AppendGrid",     "AppendToLoneGrid",
                                        "AppendSolution", "AppendFunctions"};
    return names[static_cast<int>(kind)];
}

KindSession::KindSession() {
    grid_ = series_.grid("a.x");
    solutions_ = writeSolutions(series_, "step");
    functions_ = {series_.function("f.1.fun", 2, 50), series_.function("f.2.fun", 2, 70)};
    SmallFiles lines(directory().path().string());
    lines.layout = plot3dwriter::Layout_e::OneD;
    lines.grids = {{7, 1, 1}};
    line_ = lines.grid("line.x");
    lineSolutions_ = writeSolutions(lines, "line");
}

Json KindSession::start(LoadKind_e kind) const {
    const Settings strands = {{"ASSIGNSTRANDIDS", "Yes"}};
    if (kind == LoadKind_e::AppendToLoneGrid)
        return load({.grids = {line_}, .solutions = steps(lineSolutions_, 0, 1)}, strands);
    return load({.grids = {grid_}, .solutions = steps(solutions_, 0, 2)}, strands);
}

Json KindSession::loadOf(LoadKind_e kind, const Settings& more) const {
    Settings settings = {{"APPEND", appends(kind) ? "Yes" : "No"}, {"ASSIGNSTRANDIDS", "Yes"}};
    settings.insert(settings.end(), more.begin(), more.end());
    const Texts newSteps = steps(solutions_, 2, 2);
    switch (kind) {
    case LoadKind_e::Fresh:
    case LoadKind_e::AppendGrid:
        return load({.grids = {grid_}, .solutions = newSteps}, settings);
    case LoadKind_e::ReplaceSolution:
    case LoadKind_e::AppendSolution:
        return load({.solutions = newSteps}, settings);
    case LoadKind_e::AppendToLoneGrid:
        return load({.solutions = steps(lineSolutions_, 2, 2)}, settings);
    case LoadKind_e::AppendFunctions:
        return load({.functions = functions_}, settings);
    }
    return {};
}

bool KindSession::appends(LoadKind_e kind) {
    return kind != LoadKind_e::Fresh && kind != LoadKind_e::ReplaceSolution;
}

Texts KindSession::stateChanges(const Json& outcome) {
    Texts result;
    for (const Json& change : outcome["stateChanges"]) {
        std::string text = change["code"].dump() + ":";
        for (const Json& member : change["members"])
            text += " " + member.dump();
        result.push_back(text);
    }
    return result;
}

Texts KindSession::undo(const Json& outcome) {
    Texts result;
    for (const Json& event : outcome["undo"])
        if (event["event"] == "begin")
            result.push_back("begin");
        else
            result.push_back(event["success"] == true ? "end ok" : "end failed");
    return result;
}

bool KindSession::showed(const Json& outcome, const std::string& progressText) {
    const Json& shown = outcome["progress"];
    return std::find(shown.begin(), shown.end(), progressText) != shown.end();
}

} // namespace quorvia::testsupport
