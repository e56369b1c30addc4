// `quorhost` as it is built, with the built add-on, on files that `plot3d-sample` writes.
#include <chrono>
#include <filesystem>
#include <set>
#include <sstream>
#include <thread>

#include <gtest/gtest.h>

#include "acceptance/behaviour/QuorhostRun.h"
#include "support/Json.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using Texts = std::vector<std::string>;

class CommandLine : public ::testing::Test {
protected:
    ProgramResult_s quorhost(Texts arguments) const {
        arguments.insert(arguments.begin(), {QUORHOST_PROGRAM, "load"});
        return runProgram(arguments);
    }
    Json outcomeOf(Texts arguments) const {
        arguments.insert(arguments.end(), {"--json", "-"});
        return Json::parse(quorhost(arguments).out);
    }
    void writeSample(Texts arguments) const {
        arguments.insert(arguments.begin() + 1, directory_.path().string());
        arguments.insert(arguments.begin(), PLOT3D_SAMPLE_PROGRAM);
        const ProgramResult_s result = runProgram(arguments);
        ASSERT_EQ(result.exitCode, 0) << result.err;
    }
    std::string file(const std::string& name) const { return directory_.file(name); }

    TemporaryDirectory directory_;
};

class CommandLineOnVortex : public CommandLine {
protected:
    void SetUp() override {
        writeSample({"vortex", "--steps", "2", "--size", "13x11"});
        selection_ = {file("vortex.x"), file("vortex_t0.00.q"), file("vortex_t0.25.q")};
        instructions_ = {
            "--grid",     selection_[0],        "--solution", selection_[1],
            "--solution", selection_[2],        "--set",      "SOLUTIONSSHARESTRUCTURE=Yes",
            "--set",      "ASSIGNSTRANDIDS=Yes"};
    }
    static Texts with(Texts arguments, const Texts& more) {
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    }

    Texts selection_;
    Texts instructions_;
};

TEST_F(CommandLineOnVortex, LoadsASelection) {
    const Json outcome = outcomeOf(selection_);
    EXPECT_EQ(outcome["ok"], true);
    EXPECT_EQ(outcome["plotType"], "2D");
    EXPECT_EQ(outcome["dataSet"]["zones"].size(), 2u);
    EXPECT_EQ(outcome["dataSet"]["zones"][1]["solutionTime"], 0.25);
    EXPECT_EQ(outcome["violations"], Json::array());
    EXPECT_EQ(outcome["lockDepth"], 0);
}

TEST_F(CommandLineOnVortex, LoadsTheSameFromInstructions) {
    EXPECT_EQ(outcomeOf(instructions_)["dataSet"], outcomeOf(selection_)["dataSet"]);
}

TEST_F(CommandLineOnVortex, ShowsATableOfZones) {
    const ProgramResult_s result = quorhost(selection_);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_NE(result.out.find("vortex_t0.25.q:1"), std::string::npos);
}

TEST_F(CommandLineOnVortex, PassesSettingsOn) {
    const Json outcome = outcomeOf(with(instructions_, {"--set", "IINDEXRANGE=1,,4"}));
    EXPECT_EQ(outcome["dataSet"]["zones"][0]["i"], 4);
}

TEST_F(CommandLineOnVortex, DoesNotFetchValuesUnasked) {
    const Json outcome = outcomeOf(with(selection_, {"--no-values"}));
    EXPECT_FALSE(outcome["dataSet"]["zones"][0]["fields"][0].contains("crc32"));
}

TEST_F(CommandLineOnVortex, TellsTheSameValuesUnderATightBudget) {
    EXPECT_EQ(outcomeOf(with(selection_, {"--memory-limit", "1K"})), outcomeOf(selection_));
}

TEST_F(CommandLineOnVortex, PrintsInstructionsThatRepeatTheLoad) {
    const ProgramResult_s printed = quorhost(with(selection_, {"--instructions"}));
    ASSERT_EQ(printed.exitCode, 0);
    Texts list;
    std::istringstream lines(printed.out);
    for (std::string line; std::getline(lines, line);)
        list.push_back(line);
    const Json outcome = outcomeOf(selection_);
    EXPECT_EQ(outcome["instructions"], Json(list));

    // Fed back as options: the head of the list and the file lists are options of their own.
    Texts again;
    for (std::size_t at = 2; at + 1 < list.size(); at += 2) {
        if (list[at].compare(0, 9, "FILELIST_") != 0) {
            again.insert(again.end(), {"--set", list[at] + "=" + list[at + 1]});
            continue;
        }
        const bool isGrid = list[at] == "FILELIST_GRIDFILES";
        const std::size_t count = std::stoul(list[at + 1]);
        for (std::size_t name = 1; name <= count; ++name)
            again.insert(again.end(), {isGrid ? "--grid" : "--solution", list[at + 1 + name]});
        at += count;
    }
    const Json repeated = outcomeOf(again);
    EXPECT_EQ(repeated["dataSet"], outcome["dataSet"]);
    EXPECT_EQ(repeated["instructions"], outcome["instructions"]);
}

TEST_F(CommandLineOnVortex, AnswersQuestionsWithYesOnRequestAlone) {
    const std::string copy = file("late.q");
    std::filesystem::copy_file(selection_[2], copy);
    std::filesystem::rename(selection_[2], file("later.q"));
    const Texts equalTimes = {"--grid",     selection_[0],   "--solution", copy,
                              "--solution", file("later.q"), "--set",      "ASSIGNSTRANDIDS=Yes"};
    EXPECT_EQ(quorhost(with(equalTimes, {"--yes"})).exitCode, 0);
    EXPECT_EQ(quorhost(with(equalTimes, {"--no-values"})).exitCode, 1);
    const Json refused = outcomeOf(equalTimes);
    EXPECT_EQ(refused["messages"][0]["kind"], "question");
    EXPECT_EQ(refused["messages"][0]["answer"], false);
    EXPECT_TRUE(refused["dataSet"].isNull());
}

TEST_F(CommandLineOnVortex, EndsWith1IfALoadIsRefused) {
    const ProgramResult_s result = quorhost(
        {"--grid", selection_[0], "--set", "KINDEXRANGE=1,,1", "--set", "DATASTRUCTURE=2D"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find("Error: Not allowed to use -KSet when data is not 3d whole"),
              std::string::npos);
}

// A step that a solver has preallocated and not written: its header is not looked at.
TEST_F(CommandLineOnVortex, EndsWith3IfAFieldCannotBeRead) {
    const auto size = std::filesystem::file_size(selection_[2]);
    std::filesystem::resize_file(selection_[2], 0);
    std::filesystem::resize_file(selection_[2], size);
    EXPECT_EQ(quorhost(selection_).exitCode, 3);
    EXPECT_EQ(quorhost(with(selection_, {"--no-values"})).exitCode, 0);
    const Texts eachLookedAt = {"--grid",      selection_[0], "--solution",
                                selection_[1], "--solution",  selection_[2]};
    EXPECT_EQ(quorhost(eachLookedAt).exitCode, 1);
}

TEST_F(CommandLineOnVortex, EndsWith1AndAHintIfAFileWasLeftOut) {
    const std::string odd = file("mesh.bin");
    std::filesystem::copy_file(selection_[1], odd);
    const ProgramResult_s result = quorhost({selection_[0], odd, "--no-values"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.out.find("1 zone"), std::string::npos);
    EXPECT_NE(result.err.find("left out of the load: " + odd), std::string::npos);
    EXPECT_NE(result.err.find("give every file with --grid, --solution"), std::string::npos);
    EXPECT_EQ(quorhost({"--grid", selection_[0], "--solution", odd}).exitCode, 0);
}

TEST_F(CommandLineOnVortex, EndsWith1IfTheNameFileWasLeftOut) {
    const Texts list = {"--grid", selection_[0], "--solution", selection_[1]};
    EXPECT_EQ(quorhost(with(list, {"--name", file("missing.nam")})).exitCode, 1);
}

TEST_F(CommandLineOnVortex, EndsWith2BeforeAListIsCutShort) {
    const ProgramResult_s result =
        quorhost({"--grid", selection_[0], "--set", "IINDEXRANG=1,,4", "--set", "STYLE=SWIFT"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("\"IINDEXRANGE\""), std::string::npos);
}

TEST_F(CommandLineOnVortex, EndsWith2OnBadUsage) {
    EXPECT_EQ(quorhost({"--no-such-option", selection_[0]}).exitCode, 2);
    EXPECT_EQ(quorhost({}).exitCode, 2);
}

TEST_F(CommandLineOnVortex, TellsAFileThatIsNotThere) {
    const Json outcome = outcomeOf({file("missing.x")});
    EXPECT_EQ(outcome["ok"], false);
    EXPECT_EQ(outcome["messages"][0]["text"],
              "The file " + file("missing.x") + " could not be opened.");
    EXPECT_TRUE(outcome["dataSet"].isNull());
}

// ---- Names of the JSON ----------------------------------------------------------------------

using Names = std::set<std::string>;

Names namesOf(const Json& object) {
    return {object.names().begin(), object.names().end()};
}

TEST_F(CommandLineOnVortex, JsonHasTheseNamesAndNoOthers) {
    const Json outcome = outcomeOf(selection_);
    EXPECT_EQ(namesOf(outcome), (Names{"schema", "ok", "hostError", "messages", "progress",
                                       "plotType", "instructions", "stateChanges", "undo",
                                       "redraws", "lockDepth", "violations", "dataSet"}));
    EXPECT_EQ(outcome["schema"], "quorhost.outcome/1");
    const Json& dataSet = outcome["dataSet"];
    EXPECT_EQ(namesOf(dataSet), (Names{"title", "auxData", "variables", "zones"}));
    for (const Json& zone : dataSet["zones"]) {
        EXPECT_EQ(namesOf(zone), (Names{"number", "name", "type", "i", "j", "k", "strandId",
                                        "solutionTime", "parentZone", "connectivitySharedWith",
                                        "auxData", "connectivity", "fields"}));
        EXPECT_TRUE(zone["connectivity"].isNull());
        for (const Json& field : zone["fields"])
            EXPECT_EQ(namesOf(field), (Names{"variable", "type", "state", "sharedWith", "count",
                                             "min", "max", "mean", "crc32", "error"}));
    }
}

TEST_F(CommandLineOnVortex, JsonOfARefusalHasTheSameNames) {
    const Json refused = outcomeOf({file("missing.x")});
    EXPECT_EQ(namesOf(refused), namesOf(outcomeOf(selection_)));
    EXPECT_EQ(namesOf(refused["messages"][0]), (Names{"kind", "text", "answer"}));
}

TEST_F(CommandLine, JsonOfConnectivityHasTheseNamesAndNoOthers) {
    writeSample({"ball"});
    const Json outcome = outcomeOf({file("ball.x")});
    ASSERT_EQ(outcome["ok"], true) << outcome["messages"];
    EXPECT_EQ(namesOf(outcome["dataSet"]["zones"][0]["connectivity"]),
              (Names{"elements", "corners", "crc32"}));
}

// A state change comes from a load onto the data set of another; until then the list is empty.
TEST_F(CommandLineOnVortex, JsonOfAFreshLoadTellsOneRedrawAndNoStateChange) {
    const Json outcome = outcomeOf(selection_);
    EXPECT_EQ(outcome["redraws"], 1);
    EXPECT_EQ(outcome["stateChanges"], Json::array());
    EXPECT_EQ(outcome["undo"], Json::array());
}

// ---- Ctrl-C -----------------------------------------------------------------------------------

// A text solution named a thousand times keeps the load busy for seconds, were it not stopped.
TEST_F(CommandLine, CtrlCStopsALoadAndLeavesACleanFrame) {
    writeSample({"vortex", "--steps", "1", "--size", "61x53", "--encoding", "text"});
    Texts command = {QUORHOST_PROGRAM, "load",          "--no-values", "--json", "-",
                     "--grid",         file("vortex.x")};
    for (int copy = 0; copy < 1000; ++copy)
        command.insert(command.end(), {"--solution", file("vortex_t0.00.q")});

    const std::string interrupted = "Plot3D Data load interrupted";
    bool stoppedInTheStage = false;
    // Where the signal falls is a matter of luck; later ones fall behind the headers.
    for (int delay = 1; delay <= 4096 && !stoppedInTheStage; delay *= 2) {
        RunningProgram program(command, directory_.path().string());
        ASSERT_TRUE(program.waitUntilItCatchesInterrupts());
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
        program.interrupt();
        const ProgramResult_s result = program.waitForEnd();
        ASSERT_EQ(result.exitCode, 130) << result.err;
        const Json outcome = Json::parse(result.out);
        EXPECT_EQ(outcome["ok"], false);
        EXPECT_TRUE(outcome["dataSet"].isNull());
        EXPECT_EQ(outcome["plotType"], "none");
        EXPECT_EQ(outcome["violations"], Json::array());
        EXPECT_EQ(outcome["lockDepth"], 0);
        stoppedInTheStage = !outcome["messages"].empty();
        if (stoppedInTheStage) {
            EXPECT_EQ(outcome["messages"][0]["text"], interrupted);
        }
    }
    EXPECT_TRUE(stoppedInTheStage);
}

} // namespace
} // namespace quorvia::testsupport
