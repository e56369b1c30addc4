// `quorhost load` in this process, with the fake add-on (FakeAddOn.cpp) in place of the real one.
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "app/Program.h"
#include "support/Json.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::host {
namespace {

using quorvia::testsupport::Json;
using Strings = std::vector<std::string>;

std::string contentsOf(const std::string& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

/// Names, hidden ones included.
Strings filesOf(const std::filesystem::path& folder) {
    Strings names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

/// While one lives, no file of this process grows beyond so many bytes, as on a full disk.
class SmallFiles {
public:
    explicit SmallFiles(rlim_t bytes) : handledBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit = {bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallFiles() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handledBefore_);
    }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

private:
    void (*handledBefore_)(int);
    rlimit before_ = {};
};

class LoadCommand : public testing::Test {
protected:
    /// Gives the exit code; the streams hold what was written by this run alone.
    int load(const Strings& options) {
        out.str("");
        err.str("");
        Strings arguments = {"load", "--addon", FAKE_ADDON};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return run(arguments, {out, err, 0});
    }

    Json outcomeOf(Strings options) {
        options.insert(options.end(), {"--json", "-"});
        load(options);
        return Json::parse(out.str());
    }

    std::ostringstream out;
    std::ostringstream err;
    testsupport::TemporaryDirectory directory;
};

TEST_F(LoadCommand, GoodLoadShowsATableAndNoTalk) {
    EXPECT_EQ(0, load({"well.g"}));
    EXPECT_EQ("Data set \"Fake\": 2 zones, 2 variables, plot type 3D\n"
              "\n"
              "Variables\n"
              "  #  name      type     minimum  maximum\n"
              "  1  X         float32    10101    50302\n"
              "  2  Density   float32   -50302    50302\n"
              "\n"
              "Zones\n"
              "  #  name    type     size       strand  time  parent  fields\n"
              "  1  First   ordered  2 x 3 x 5       -     0       -  2 deferred\n"
              "  2  Second  ordered  2 x 3 x 5       -     0       -  1 deferred, 1 shared\n",
              out.str());
    EXPECT_EQ("", err.str());
}

TEST_F(LoadCommand, JsonTellsFieldsAsTheyCameOutOfTheLoad) {
    const Json zones = outcomeOf({"well.g"})["dataSet"]["zones"];
    EXPECT_EQ("deferred", zones[0]["fields"][0]["state"]);
    EXPECT_EQ("shared", zones[1]["fields"][0]["state"]);
    EXPECT_EQ(1, zones[1]["fields"][0]["sharedWith"]);
}

TEST_F(LoadCommand, JsonTellsTheValues) {
    const Json zones = outcomeOf({"well.g"})["dataSet"]["zones"];
    EXPECT_EQ(Json::parse(R"({"variable":1,"type":"float32","state":"deferred","sharedWith":0,
                              "count":30,"min":10101.0,"max":50302.0,"mean":30201.5,
                              "crc32":"f6a131b8","error":null})"),
              zones[0]["fields"][0]);
    EXPECT_EQ(zones[0]["fields"][0]["crc32"], zones[1]["fields"][0]["crc32"]);
    EXPECT_EQ(-30201.5, zones[1]["fields"][1]["mean"]);
}

TEST_F(LoadCommand, JsonTellsTheLoad) {
    const Json outcome = outcomeOf({"well.g"});
    EXPECT_EQ(true, outcome["ok"]);
    EXPECT_EQ("3D", outcome["plotType"]);
    EXPECT_EQ(Json({"well.g"}), outcome["instructions"]);
    EXPECT_EQ(Json({"Loading the fake"}), outcome["progress"]);
    EXPECT_EQ(0, outcome["lockDepth"]);
    EXPECT_EQ(Json::array(), outcome["violations"]);
    EXPECT_EQ(Json({"X", "Density "}), outcome["dataSet"]["variables"]);
}

TEST_F(LoadCommand, WithoutValuesNothingIsFetched) {
    const Json field =
        outcomeOf({"--no-values", "unreadable.g"})["dataSet"]["zones"][1]["fields"][1];
    EXPECT_FALSE(field.contains("min"));
    EXPECT_TRUE(field["error"].isNull());
}

TEST_F(LoadCommand, FieldThatCannotBeReadTellsWhy) {
    const Json outcome = outcomeOf({"unreadable.g"});
    EXPECT_EQ(true, outcome["ok"]);
    const Json field = outcome["dataSet"]["zones"][1]["fields"][1];
    EXPECT_EQ("The values are gone.", field["error"]);
    EXPECT_FALSE(field.contains("crc32"));
    EXPECT_EQ("quorhost: error: The values are gone.\n"
              "quorhost: error: 1 field could not be read; the table and the JSON list them\n",
              err.str());
}

TEST_F(LoadCommand, FieldsThatCannotBeReadEndWith3) {
    EXPECT_EQ(3, load({"unreadable.g"}));
    EXPECT_EQ(0, load({"--no-values", "unreadable.g"}));
}

TEST_F(LoadCommand, LoadThatGoesOnWithoutAFileEndsWith1) {
    EXPECT_EQ(1, load({"partly.g"}));
    EXPECT_EQ(0U, out.str().find("Data set \"Fake\""));
    EXPECT_EQ("quorhost: error: The names can't be read.\n"
              "quorhost: error: the load came in, but with the error above: something was left "
              "out\n",
              err.str());
}

TEST_F(LoadCommand, FileThatTheInstructionsDoNotNameWasLeftOut) {
    EXPECT_EQ(1, load({"first-only.g", "other.g"}));
    EXPECT_EQ("quorhost: error: left out of the load: other.g\n", err.str());
}

TEST_F(LoadCommand, FileOfNoKindGetsAHint) {
    EXPECT_EQ(1, load({"fail.g", "dir.g/mesh.bin"}));
    EXPECT_EQ("quorhost: error: It can't be read.\n    File: fail.g\n"
              "quorhost: the kind of dir.g/mesh.bin can't be told by its name: give every file "
              "with --grid, --solution, --function or --name\n",
              err.str());
    load({"--grid", "mesh.bin"});
    EXPECT_EQ(std::string::npos, err.str().find("kind"));
}

TEST_F(LoadCommand, HintNamesAFewOfManyFiles) {
    load({"well.g", "a.bin", "b.bin", "c.bin", "d.bin", "E.G"});
    EXPECT_NE(std::string::npos,
              err.str().find("the kind of a.bin, b.bin, c.bin and 1 more can't"));
}

TEST_F(LoadCommand, ListsBecomeInstructions) {
    EXPECT_EQ(
        Json({"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", "dir/well.g", "STYLE", "SWIFT"}),
        outcomeOf({"--grid", "dir/well.g", "--set", "STYLE=SWIFT"})["instructions"]);
}

TEST_F(LoadCommand, InstructionsArePrintedAlone) {
    EXPECT_EQ(0, load({"--instructions", "--grid", "well.g"}));
    EXPECT_EQ("STANDARDSYNTAX\n1.0\nFILELIST_GRIDFILES\n1\nwell.g\n", out.str());
}

TEST_F(LoadCommand, PrintingInstructionsFetchesNothing) {
    EXPECT_EQ(0, load({"--instructions", "unreadable.g"}));
    EXPECT_EQ("", err.str());
}

TEST_F(LoadCommand, JsonFileStandsBesideTheTable) {
    const std::string file = directory.file("outcome.json");
    EXPECT_EQ(0, load({"well.g", "--json", file}));
    EXPECT_EQ(0U, out.str().find("Data set \"Fake\""));
    EXPECT_EQ(true, Json::parse(contentsOf(file))["ok"]);
}

TEST_F(LoadCommand, JsonFileThatCannotBeWrittenIsAFailure) {
    const std::string file = directory.file("nowhere/outcome.json");
    EXPECT_EQ(1, load({"well.g", "--json", file}));
    EXPECT_EQ("quorhost: error: " + file +
                  ": the JSON can't be written: No such file or directory\n",
              err.str());
}

TEST_F(LoadCommand, JsonThatCannotBeMadeWholeLeavesTheOldFile) {
    const std::string file = directory.file("outcome.json");
    std::ofstream(file) << "old";
    const SmallFiles limit(100);
    EXPECT_EQ(1, load({"well.g", "--json", file}));
    EXPECT_NE(std::string::npos, err.str().find("the JSON can't be written: File too large"));
    EXPECT_EQ("old", contentsOf(file));
    EXPECT_EQ((Strings{"outcome.json"}), filesOf(directory.path()));
}

TEST_F(LoadCommand, JsonTakesThePlaceOfAnOldFileAndItsPermissions) {
    const std::string file = directory.file("outcome.json");
    std::ofstream(file) << std::string(1 << 20, 'x');
    std::filesystem::permissions(file, std::filesystem::perms(0640));
    EXPECT_EQ(0, load({"well.g", "--json", file}));
    EXPECT_EQ(true, Json::parse(contentsOf(file))["ok"]);
    EXPECT_EQ(std::filesystem::perms(0640), std::filesystem::status(file).permissions());
    EXPECT_EQ((Strings{"outcome.json"}), filesOf(directory.path()));
}

TEST_F(LoadCommand, JsonThroughALinkLeavesTheLink) {
    std::ofstream(directory.file("outcome.json")) << "old";
    const std::string link = directory.file("link.json");
    std::filesystem::create_symlink("outcome.json", link);
    EXPECT_EQ(0, load({"well.g", "--json", link}));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(true, Json::parse(contentsOf(directory.file("outcome.json")))["ok"]);
}

TEST_F(LoadCommand, JsonGoesStraightToWhatIsNoPlainFile) {
    EXPECT_EQ(0, load({"well.g", "--json", "/dev/null"}));
    EXPECT_FALSE(std::filesystem::is_regular_file("/dev/null"));
    EXPECT_EQ(1, load({"well.g", "--json", directory.path().string()}));
}

TEST_F(LoadCommand, QuestionIsAnsweredNoAndSaysSo) {
    EXPECT_EQ(1, load({"ask.g"}));
    EXPECT_EQ(0U, err.str().find("quorhost: question: Shall it be?\n"
                                 "    answered Cancel or No; --yes answers OK or Yes\n"));
    EXPECT_EQ("", out.str());
}

TEST_F(LoadCommand, YesAnswersQuestions) {
    const Json outcome = outcomeOf({"--yes", "ask.g"});
    EXPECT_EQ(true, outcome["ok"]);
    EXPECT_EQ(Json::parse(R"([{"kind":"question","text":"Shall it be?","answer":true}])"),
              outcome["messages"]);
}

TEST_F(LoadCommand, InformationIsShown) {
    EXPECT_EQ(0, load({"inform.g"}));
    EXPECT_EQ("quorhost: Just so you know.\n", err.str());
}

TEST_F(LoadCommand, FailureShowsTheAddOnsErrorAndNoTable) {
    EXPECT_EQ(1, load({"fail.g"}));
    EXPECT_EQ("", out.str());
    EXPECT_EQ("quorhost: error: It can't be read.\n    File: fail.g\n", err.str());
}

TEST_F(LoadCommand, FailureStillWritesJson) {
    const Json outcome = outcomeOf({"fail.g"});
    EXPECT_EQ(false, outcome["ok"]);
    EXPECT_TRUE(outcome["dataSet"].isNull());
    EXPECT_TRUE(outcome["hostError"].isNull());
    EXPECT_EQ("It can't be read.\nFile: fail.g", outcome["messages"][0]["text"]);
}

TEST_F(LoadCommand, SilentRefusalIsTold) {
    EXPECT_EQ(1, load({"silent.g"}));
    EXPECT_EQ("quorhost: error: the load was refused without a message\n", err.str());
}

TEST_F(LoadCommand, ViolationsAreShownAndDoNotFailTheLoad) {
    EXPECT_EQ(0, load({"leak.g"}));
    EXPECT_NE(std::string::npos, err.str().find("quorhost: contract violation: "));
    EXPECT_NE(std::string::npos, out.str().find("\n*** QuorUtilStringListAlloc: "));
}

TEST_F(LoadCommand, CtrlCLeavesACleanFrame) {
    const Json outcome = outcomeOf({"ctrl-c.g"});
    EXPECT_EQ(false, outcome["ok"]);
    EXPECT_TRUE(outcome["dataSet"].isNull());
    EXPECT_EQ("quorhost: error: Interrupted by the user.\n"
              "quorhost: interrupted, nothing was loaded\n",
              err.str());
}

TEST_F(LoadCommand, LoadAfterCtrlCIsNotInterrupted) {
    EXPECT_EQ(130, load({"ctrl-c.g"}));
    EXPECT_EQ(0, load({"well.g"}));
}

TEST_F(LoadCommand, LibraryThatDoesNotLoadIsAHostError) {
    const std::string missing = directory.file("missing.so");
    out.str("");
    EXPECT_EQ(1, run({"load", "--addon", missing, "a.g", "--json", "-"}, {out, err, 0}));
    const Json outcome = Json::parse(out.str());
    EXPECT_NE(std::string::npos, outcome["hostError"].get<std::string>().find(missing));
    EXPECT_EQ(false, outcome["ok"]);
    EXPECT_EQ("quorhost: error: " + outcome["hostError"].get<std::string>() + "\n", err.str());
}

TEST_F(LoadCommand, AddOnWithoutDirectoryIsAFileHere) {
    EXPECT_EQ(1, run({"load", "--addon", "missing.so", "a.g"}, {out, err, 0}));
    const std::string file = (std::filesystem::current_path() / "missing.so").string();
    EXPECT_NE(std::string::npos, err.str().find(file));
}

TEST_F(LoadCommand, ProgressLineIsGoneAtTheEnd) {
    EXPECT_EQ(0, run({"load", "--addon", FAKE_ADDON, "well.g"}, {out, err, 80}));
    EXPECT_NE(std::string::npos, err.str().find("Loading the fake"));
    EXPECT_EQ("\r\x1b[K", err.str().substr(err.str().size() - 4));
}

TEST_F(LoadCommand, OutputThatCannotBeWrittenIsAFailure) {
    std::ofstream full("/dev/full");
    EXPECT_EQ(1, run({"load", "--addon", FAKE_ADDON, "well.g"}, {full, err, 0}));
    EXPECT_EQ("quorhost: error: standard output can't be written\n", err.str());
}

TEST_F(LoadCommand, TightBudgetTellsTheSameValues) {
    const Json wide = outcomeOf({"well.g"});
    EXPECT_EQ(wide, outcomeOf({"--memory-limit", "1", "well.g"}));
}

} // namespace
} // namespace quorvia::host
