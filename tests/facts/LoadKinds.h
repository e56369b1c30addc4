// The kinds of load, each on a data set that it can go onto: what it does to the data set, and what
// it tells the host and the user. docs/append-and-replace.md tells the rules.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {

/// What a load told: state changes by code, undo states as they ended, and the screen.
struct Told_s {
    std::vector<std::pair<std::int32_t, Members>> changes;
    std::vector<bool> undo;
    std::int64_t redraws;

    bool operator==(const Told_s&) const = default;
};

class LoadKinds : public LoadedAddOnTest {
protected:
    LoadKinds() {
        lines_.layout = Layout_e::OneD;
        lines_.grids = {{7, 1, 1}};
        planes_.layout = Layout_e::TwoD;
        planes_.grids = {{5, 7, 1}};
    }

    // ---- Loads. A solution file is named s.<time>.q, and its values are shifted by ten times the
    // time. What is loaded first has the times 1 and 2.

    static double shiftOf(int time) { return 10.0 * time; }
    static Texts solutionsOf(const SmallFiles& files, const std::vector<int>& times) {
        Texts names;
        for (const int time : times)
            names.push_back(
                files.solution("s." + std::to_string(time) + ".q", time, shiftOf(time)));
        return names;
    }
    Load_s gridAndSolutions(const std::vector<int>& times, const Settings& settings = {}) const {
        return {.gridFiles = {files_.grid("a.x")},
                .solutionFiles = solutionsOf(files_, times),
                .settings = with(settings)};
    }
    Load_s solutions(const std::vector<int>& times, const Settings& settings = {}) const {
        return {.solutionFiles = solutionsOf(files_, times), .settings = with(settings)};
    }
    static Load_s appended(Load_s load) {
        load.settings.emplace_back("APPEND", "Yes");
        return load;
    }
    Load_s appendedFunctions(const Texts& functions, Settings settings = {}) const {
        return appended({.functionFiles = functions, .settings = std::move(settings)});
    }
    /// A line and its solution, the only one of so few variables that it can join a grid alone.
    Load_s lineAt(int time) const {
        return {.gridFiles = {lines_.grid("line.x")},
                .solutionFiles = solutionsOf(lines_, {time}),
                .settings = with({})};
    }
    Load_s lineSolutions(const std::vector<int>& times) const {
        return {.solutionFiles = solutionsOf(lines_, times), .settings = with({})};
    }

    /// A load that is only the start: nothing of it stays in the log.
    static void begin(const Load_s& load) {
        host().frame().reset();
        host().clearLog();
        expectLoads(load);
        host().clearLog();
        host().clearFaults();
    }

    // ---- What came of it

    static Told_s told() {
        Told_s all{{}, {}, host().log().redraws};
        for (const host::StateChange_s& change : host().log().stateChanges)
            all.changes.emplace_back(change.code, change.members);
        for (const host::UndoEvent_s& event : host().log().undo)
            if (event.kind == host::UndoKind_e::End)
                all.undo.push_back(event.success.value());
        return all;
    }
    static std::int32_t plotType() { return host().frame().plotType(); }
    static void setPlotType(std::int32_t type) { host().frame().setPlotType(type); }

    /// The field holds a variable of a file's grid, its values shifted; the last three from 0.
    void expectField(std::int32_t zone, std::int32_t variable, std::int32_t grid,
                     std::int32_t fileVariable, double shift) const {
        Numbers expected = fieldOf(describeGrid(files_.grids), grid, fileVariable);
        for (double& value : expected)
            value += shift;
        EXPECT_EQ(values(zone, variable), expected) << zone << " " << variable;
    }
    /// The zones from `firstZone` on hold the grids, and the solution of that time.
    void expectStep(std::int32_t firstZone, int time) const {
        for (std::int32_t grid = 0; grid < 2; ++grid) {
            for (std::int32_t variable = 0; variable < 3; ++variable)
                expectField(firstZone + grid, 1 + variable, grid, variable, 0);
            for (std::int32_t variable = 0; variable < 5; ++variable)
                expectField(firstZone + grid, 4 + variable, grid, variable, shiftOf(time));
        }
    }

    SmallFiles files_{directory().path().string()};
    SmallFiles lines_{directory().path().string()};
    SmallFiles planes_{directory().path().string()};

private:
    static Settings with(Settings settings) {
        settings.emplace_back("ASSIGNSTRANDIDS", "Yes");
        return settings;
    }
};

} // namespace quorvia::testsupport
