#include "app/CommandLine.h"

#include <sstream>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

using Strings = std::vector<std::string>;

class CommandLine : public testing::Test {
protected:
    LoadArguments_s load(const Strings& options) {
        Strings arguments = {"load"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Command command = parseCommandLine(arguments, out, err);
        EXPECT_TRUE(std::holds_alternative<LoadArguments_s>(command)) << err.str();
        const auto* found = std::get_if<LoadArguments_s>(&command);
        return found != nullptr ? *found : LoadArguments_s();
    }

    ExitCode_e exitCode(const Strings& arguments) {
        const Command command = parseCommandLine(arguments, out, err);
        const auto* code = std::get_if<ExitCode_e>(&command);
        return code != nullptr ? *code : ExitCode_e::Failed;
    }

    MacroArguments_s macro(const Strings& options) {
        Strings arguments = {"macro"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Command command = parseCommandLine(arguments, out, err);
        EXPECT_TRUE(std::holds_alternative<MacroArguments_s>(command)) << err.str();
        const auto* found = std::get_if<MacroArguments_s>(&command);
        return found != nullptr ? *found : MacroArguments_s();
    }

    /// Bad usage whose line on standard error is `expected`.
    void expectRefusal(const std::string& expected, const Strings& arguments,
                       const std::string& helped = "quorhost load") {
        err.str("");
        EXPECT_EQ(ExitCode_e::BadUsage, exitCode(arguments));
        EXPECT_EQ("quorhost: error: " + expected + "\n" + helped + " --help tells more.\n",
                  err.str());
        EXPECT_EQ("", out.str());
    }

    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(CommandLine, FilesAreASelection) {
    const LoadArguments_s arguments = load({"a.g", "a.q"});
    EXPECT_EQ((Strings{"a.g", "a.q"}), arguments.files);
    EXPECT_FALSE(arguments.usesInstructions());
}

TEST_F(CommandLine, DefaultsFetchValuesWithinABudgetAndSayNo) {
    const LoadArguments_s arguments = load({"a.g"});
    EXPECT_FALSE(arguments.answerYes);
    EXPECT_TRUE(arguments.fetchValues);
    EXPECT_FALSE(arguments.printInstructions);
    EXPECT_EQ(1073741824, arguments.memoryLimitBytes);
    EXPECT_EQ("", arguments.jsonFile);
    EXPECT_EQ("", arguments.addOnPath);
}

TEST_F(CommandLine, FileListsAreRepeatableAndKeepTheirOrder) {
    const LoadArguments_s arguments =
        load({"--solution", "2.q", "--grid", "a.g", "--solution", "1.q", "--function=a.f", "--name",
              "a.nam", "--name", "b.nam"});
    EXPECT_EQ((Strings{"a.g"}), arguments.gridFiles);
    EXPECT_EQ((Strings{"2.q", "1.q"}), arguments.solutionFiles);
    EXPECT_EQ((Strings{"a.f"}), arguments.functionFiles);
    EXPECT_EQ((Strings{"a.nam", "b.nam"}), arguments.nameFiles);
    EXPECT_TRUE(arguments.usesInstructions());
}

TEST_F(CommandLine, SettingsKeepTheirOrder) {
    const LoadArguments_s arguments = load({"--set", "style=Swift", "--grid", "a.g", "--set",
                                            "IINDEXRANGE=1,,3", "--set=STYLE=OVERFLOW"});
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"style", "Swift"}, {"IINDEXRANGE", "1,,3"}, {"STYLE", "OVERFLOW"}};
    EXPECT_EQ(expected, arguments.settings);
}

TEST_F(CommandLine, SettingWithAnUnknownKeyIsRefused) {
    expectRefusal("--set: there is no key \"IINDEXRANG\" with a value; the nearest known one is "
                  "\"IINDEXRANGE\"",
                  {"load", "--grid", "a.g", "--set", "STYLE=SWIFT", "--set", "IINDEXRANG=1,,3"});
}

TEST_F(CommandLine, SettingWithAnUnknownWordIsRefused) {
    expectRefusal("--set: STYLE can't be \"overflw\"; the nearest known word is \"OVERFLOW\"",
                  {"load", "--grid", "a.g", "--set", "style=overflw"});
    expectRefusal("--set: DATASTRUCTURE can't be \"3D\"; the nearest known word is \"3DW\"",
                  {"load", "--grid", "a.g", "--set", "DATASTRUCTURE=3D"});
    expectRefusal("--set: AUTODETECT can't be \"1\"; the known words are \"Yes\" and \"No\"",
                  {"load", "--grid", "a.g", "--set", "AUTODETECT=1"});
}

TEST_F(CommandLine, SettingOfAFileListIsRefused) {
    expectRefusal("--set: FILELIST_SOLUTIONFILES is followed by several values; give its files "
                  "with --solution",
                  {"load", "--grid", "a.g", "--set", "FILELIST_SOLUTIONFILES=2"});
}

TEST_F(CommandLine, OptionsAreTaken) {
    const LoadArguments_s arguments =
        load({"--yes", "--no-values", "--instructions", "--json", "o.json", "--memory-limit", "7M",
              "--addon", "x.so", "a.g"});
    EXPECT_TRUE(arguments.answerYes);
    EXPECT_FALSE(arguments.fetchValues);
    EXPECT_TRUE(arguments.printInstructions);
    EXPECT_EQ("o.json", arguments.jsonFile);
    EXPECT_EQ(7 * 1024 * 1024, arguments.memoryLimitBytes);
    EXPECT_EQ("x.so", arguments.addOnPath);
}

TEST_F(CommandLine, DashMeansStandardOutputForJson) {
    EXPECT_TRUE(load({"--json", "-", "a.g"}).jsonToOutput());
    EXPECT_TRUE(load({"a.g", "--json=-"}).jsonToOutput());
    EXPECT_FALSE(load({"a.g", "--json", "./-"}).jsonToOutput());
}

TEST_F(CommandLine, OddFileNamesStayAsTheyAre) {
    EXPECT_EQ((Strings{"[a,b].g", "{}", "load", "a b.g"}),
              load({"[a,b].g", "{}", "load", "a b.g"}).files);
    EXPECT_EQ((Strings{"-odd.g"}), load({"--", "-odd.g"}).files);
    EXPECT_EQ((Strings{"[a].g", "{}"}), load({"--grid", "[a].g", "--grid", "{}"}).gridFiles);
}

TEST_F(CommandLine, SelectionAndInstructionsExcludeEachOther) {
    for (const char* option : {"--grid", "--solution", "--function", "--name"})
        expectRefusal("FILE can't be combined with --grid, --solution, --function or --name: the "
                      "first is a selection, the others are instructions",
                      {"load", "a.g", option, "b"});
}

TEST_F(CommandLine, SettingsNeedInstructions) {
    const std::string expected = "--set adds to a list of instructions, so it needs --grid, "
                                 "--solution, --function or --name, and no FILE";
    expectRefusal(expected, {"load", "a.g", "--set", "AUTODETECT=No"});
    expectRefusal(expected, {"load", "--set", "AUTODETECT=No"});
}

TEST_F(CommandLine, SettingNeedsAnEqualsSign) {
    expectRefusal("--set: \"AUTODETECT\" is not KEY=VALUE",
                  {"load", "--grid", "a.g", "--set", "AUTODETECT"});
}

TEST_F(CommandLine, SomethingMustBeLoaded) {
    expectRefusal("nothing to load: give FILE..., or --grid, --solution and --function", {"load"});
}

TEST_F(CommandLine, MemoryLimitMustBeASize) {
    expectRefusal("--memory-limit: \"many\" is no size: give a number of bytes above 0, or one "
                  "with K, M or G behind it, e.g. 512M",
                  {"load", "a.g", "--memory-limit", "many"});
}

TEST_F(CommandLine, StandardOutputHoldsOneThing) {
    expectRefusal("--instructions and --json - both want standard output: give --json a file",
                  {"load", "a.g", "--instructions", "--json", "-"});
}

TEST_F(CommandLine, SomethingMustBeDone) {
    expectRefusal("nothing to do: give the command load or macro", {}, "quorhost");
}

TEST_F(CommandLine, UnknownAndMissingWordsAreBadUsage) {
    for (const Strings& arguments :
         {Strings{"frob"}, Strings{"load", "a.g", "--frob"}, Strings{"--frob"},
          Strings{"load", "--grid"}, Strings{"load", "a.g", "--json"},
          Strings{"load", "--no-values=perhaps", "a.g"}})
        EXPECT_EQ(ExitCode_e::BadUsage, exitCode(arguments));
    EXPECT_EQ("", out.str());
}

TEST_F(CommandLine, MacroIsOneFileWithoutOptions) {
    const MacroArguments_s arguments = macro({"[a].json"});
    EXPECT_EQ("[a].json", arguments.file);
    EXPECT_EQ("", arguments.jsonFile);
    EXPECT_EQ("", arguments.addOnPath);
    EXPECT_FALSE(arguments.answerYes);
}

TEST_F(CommandLine, OptionsOfAMacroAreTaken) {
    const MacroArguments_s arguments = macro({"--yes", "a.json", "--json", "-", "--addon", "x.so"});
    EXPECT_TRUE(arguments.answerYes);
    EXPECT_TRUE(arguments.jsonToOutput());
    EXPECT_EQ("x.so", arguments.addOnPath);
}

TEST_F(CommandLine, MacroNeedsItsFileAndTakesNoSecond) {
    EXPECT_EQ(ExitCode_e::BadUsage, exitCode({"macro"}));
    EXPECT_EQ("quorhost: error: FILE is required\nquorhost macro --help tells more.\n", err.str());
    EXPECT_EQ(ExitCode_e::BadUsage, exitCode({"macro", "a.json", "b.json"}));
}

TEST_F(CommandLine, HelpOfMacroNamesEveryCommand) {
    EXPECT_EQ(ExitCode_e::Done, exitCode({"macro", "--help"}));
    for (const char* part : {"select", "instructions", "replay", "answers", "dialog", "host",
                             "dataSet", "interruptAtStep", "fail", "stateChange", "fetch", "unload",
                             "deleteZones", "resetFrame", "describe"})
        EXPECT_NE(std::string::npos, out.str().find(part)) << part;
}

TEST_F(CommandLine, HelpSaysWhatItIsAndHowItEnds) {
    EXPECT_EQ(ExitCode_e::Done, exitCode({"load", "--help"}));
    for (const char* part : {"--memory-limit SIZE", "--json FILE", "KEY=VALUE",
                             "Examples:", "Exit codes:", "default: 1G", "--no-values"})
        EXPECT_NE(std::string::npos, out.str().find(part)) << part;
    EXPECT_EQ("", err.str());
}

TEST_F(CommandLine, HelpOfTheProgramNamesItsCommands) {
    EXPECT_EQ(ExitCode_e::Done, exitCode({"--help"}));
    EXPECT_EQ(0U, out.str().find("Loads PLOT3D data sets"));
    EXPECT_NE(std::string::npos, out.str().find("load"));
    EXPECT_NE(std::string::npos, out.str().find("macro"));
}

TEST_F(CommandLine, VersionIsOneLine) {
    EXPECT_EQ(ExitCode_e::Done, exitCode({"--version"}));
    EXPECT_EQ(0U, out.str().find("quorhost "));
    EXPECT_EQ(out.str().size() - 1, out.str().find('\n'));
}

} // namespace
} // namespace quorvia::host
