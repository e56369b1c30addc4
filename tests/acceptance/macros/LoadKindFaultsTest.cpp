// Each of the six kinds of load, interrupted at every step and failed at every call of the host,
// one at a time: what survives is what docs/append-and-replace.md says. The host that plays the
// macros looks for leaks and breaches of the contract all the while.
#include <map>

#include "acceptance/macros/KindSession.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {
namespace {

const std::string cleaningUp = "Cleaning up...";

class LoadKindFaults : public KindSession, public ::testing::WithParamInterface<LoadKind_e> {
protected:
    struct Fault_s {
        std::string name;
        Json command;
    };

    static LoadKind_e kind() { return GetParam(); }
    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

    /// Counts what an undisturbed load does, outside of any macro.
    void SetUp() override {
        host().reset();
        std::string error;
        const auto library = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
        ASSERT_NE(library, nullptr) << error;
        ASSERT_TRUE(host().importInstructions(start(kind())["instructions"].get<Texts>()).ok);
        host().clearFaults();
        ASSERT_TRUE(host().importInstructions(loadOf(kind())["instructions"].get<Texts>()).ok);
        stepCount_ = host().stepCount();
        for (const std::string& operation : host::ReferenceHost::operationsThatCanFail())
            callCounts_[operation] = host().callCount(operation);
        host().frame().reset();
        library->unload();
        host().reset();
    }

    /// Plays the load once for each fault, each time on a data set of its own, and once without.
    void playFaults(const std::vector<Fault_s>& faults) {
        Commands commands = {start(kind()), describe("before"), loadOf(kind()), describe("whole")};
        for (const Fault_s& fault : faults)
            commands.insert(commands.end(), {command("resetFrame", true), start(kind()),
                                             describe("start " + fault.name), fault.command,
                                             loadOf(kind()), describe(fault.name)});
        commands.insert(commands.end(),
                        {command("resetFrame", true), start(kind()), loadOf(kind())});
        play(commands);
        EXPECT_EQ(exitCode_, 0);
        EXPECT_TRUE(dataSet(last()) == dataSet(described("whole")));
    }

    void expectSurvivors(const std::string& fault) const {
        const Json& outcome = described(fault);
        const Json& before = described("before");
        const bool undoIsBegun = !outcome["undo"].empty();
        if (!showed(outcome, cleaningUp)) {
            if (kind() == LoadKind_e::AppendFunctions)
                expectOldFields(outcome);
            else
                EXPECT_TRUE(dataSet(outcome) == dataSet(before)) << fault;
        } else if (kind() == LoadKind_e::Fresh) {
            EXPECT_TRUE(outcome["dataSet"].isNull()) << fault;
        } else if (kind() == LoadKind_e::AppendGrid || kind() == LoadKind_e::AppendSolution) {
            EXPECT_TRUE(dataSet(outcome) == dataSet(before)) << fault;
        } else {
            expectFirstStepsZones(outcome, fault);
        }
        EXPECT_EQ(undo(outcome), undoIsBegun ? (Texts{"begin", "end failed"}) : Texts()) << fault;
        // Variables that came whole are told of, and stay.
        EXPECT_TRUE(stateChanges(outcome).empty() ||
                    (kind() == LoadKind_e::AppendFunctions &&
                     variableCount(outcome) == variableCount(described("whole"))))
            << fault;
        EXPECT_EQ(outcome["redraws"], 0) << fault;
    }

    /// Loaded, or refused with the instructions at the very end.
    void expectWhole(const std::string& fault) const {
        const Json& outcome = described(fault);
        EXPECT_EQ(zoneNames(outcome).size(), zoneNames(described("whole")).size()) << fault;
        EXPECT_EQ(variableCount(outcome), variableCount(described("whole"))) << fault;
        const bool undone = kind() != LoadKind_e::Fresh && kind() != LoadKind_e::ReplaceSolution &&
                            kind() != LoadKind_e::AppendFunctions;
        const std::string end = outcome["ok"] == true ? "end ok" : "end failed";
        EXPECT_EQ(undo(outcome), undone ? (Texts{"begin", end}) : Texts()) << fault;
    }

    static std::size_t variableCount(const Json& outcome) {
        return outcome["dataSet"].isNull() ? 0 : outcome["dataSet"]["variables"].size();
    }

    /// The data set was done and told of, so that only the instructions were left.
    static bool reachedTheEnd(const Json& outcome) {
        return kind() != LoadKind_e::AppendFunctions &&
               (outcome["redraws"] != 0 || !outcome["stateChanges"].empty());
    }

    std::int64_t stepCount_ = 0;
    std::map<std::string, std::int64_t> callCounts_;

private:
    /// Variables may have come; what was there is untouched.
    void expectOldFields(const Json& outcome) const {
        const Json& zonesBefore = described("before")["dataSet"]["zones"];
        const Json& zones = outcome["dataSet"]["zones"];
        ASSERT_EQ(zones.size(), zonesBefore.size());
        for (std::size_t zone = 0; zone < zones.size(); ++zone)
            for (std::size_t field = 0; field < zonesBefore[zone]["fields"].size(); ++field)
                EXPECT_TRUE(zones[zone]["fields"][field] == zonesBefore[zone]["fields"][field]);
    }
    /// The grid of the first step stays as it is, whatever became of its solution.
    void expectFirstStepsZones(const Json& outcome, const std::string& fault) const {
        const Json& zones = outcome["dataSet"]["zones"];
        const Json& zonesBefore = described("before")["dataSet"]["zones"];
        const std::size_t first = kind() == LoadKind_e::ReplaceSolution ? 2 : 1;
        EXPECT_TRUE(zones.size() == first || zones.size() == zonesBefore.size()) << fault;
        EXPECT_EQ(variableCount(outcome), variableCount(described("before"))) << fault;
        for (std::size_t zone = 0; zone < first; ++zone)
            EXPECT_TRUE(zones[zone]["fields"][0] == zonesBefore[zone]["fields"][0]) << fault;
    }
};

TEST_P(LoadKindFaults, InterruptionAtEachStepLeavesWhatItMay) {
    std::vector<Fault_s> faults;
    for (std::int64_t step = 1; step <= stepCount_; ++step)
        faults.push_back({"step " + std::to_string(step), command("interruptAtStep", step)});
    playFaults(faults);
    for (const Fault_s& fault : faults) {
        const Json& outcome = described(fault.name);
        if (outcome["ok"] == true) {
            expectWhole(fault.name);
            continue;
        }
        expectSurvivors(fault.name);
        const bool tells = showed(outcome, cleaningUp);
        EXPECT_EQ(messages(outcome), tells ? Texts{"Plot3D Data load interrupted"} : Texts())
            << fault.name;
    }
}

TEST_P(LoadKindFaults, FailureOfEachHostCallLeavesWhatItMay) {
    std::vector<Fault_s> faults;
    for (const auto& [operation, count] : callCounts_)
        for (std::int64_t call = 1; call <= count; ++call)
            faults.push_back({operation + " " + std::to_string(call),
                              command("fail", Json{{"operation", operation}, {"call", call}})});
    playFaults(faults);
    for (const Fault_s& fault : faults)
        if (described(fault.name)["ok"] == true || reachedTheEnd(described(fault.name)))
            expectWhole(fault.name);
        else
            expectSurvivors(fault.name);
}

INSTANTIATE_TEST_SUITE_P(Kinds, LoadKindFaults, ::testing::ValuesIn(allLoadKinds),
                         [](const auto& row) { return nameOf(row.param); });

} // namespace
} // namespace quorvia::testsupport
