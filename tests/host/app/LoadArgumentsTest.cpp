#include "app/LoadArguments.h"

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

using Strings = std::vector<std::string>;

TEST(LoadArguments, InstructionsListFilesByKindInAFixedOrder) {
    LoadArguments_s arguments;
    arguments.nameFiles = {"n.nam"};
    arguments.functionFiles = {"a.f"};
    arguments.solutionFiles = {"a.q", "b.q", "c.q"};
    arguments.gridFiles = {"dir/a.g", "b.g"};
    EXPECT_EQ((Strings{"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "2", "dir/a.g", "b.g",
                       "FILELIST_SOLUTIONFILES", "3", "a.q", "b.q", "c.q", "FILELIST_FUNCTIONFILES",
                       "1", "a.f", "FILENAME_NAMEFILE", "n.nam"}),
              composeInstructions(arguments));
}

TEST(LoadArguments, InstructionsLeaveOutKindsWithoutFiles) {
    LoadArguments_s arguments;
    arguments.functionFiles = {"a.f"};
    EXPECT_EQ((Strings{"STANDARDSYNTAX", "1.0", "FILELIST_FUNCTIONFILES", "1", "a.f"}),
              composeInstructions(arguments));
}

TEST(LoadArguments, SettingsStandBehindTheFilesInTheOrderGiven) {
    LoadArguments_s arguments;
    arguments.gridFiles = {"a.g"};
    arguments.settings = {{"STYLE", "SWIFT"}, {"AUTODETECT", "No"}, {"STYLE", ""}};
    EXPECT_EQ((Strings{"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", "a.g", "STYLE", "SWIFT",
                       "AUTODETECT", "No", "STYLE", ""}),
              composeInstructions(arguments));
}

TEST(LoadArguments, EveryNameFileIsAnInstruction) {
    LoadArguments_s arguments;
    arguments.nameFiles = {"a.nam", "b.nam"};
    EXPECT_EQ((Strings{"STANDARDSYNTAX", "1.0", "FILENAME_NAMEFILE", "a.nam", "FILENAME_NAMEFILE",
                       "b.nam"}),
              composeInstructions(arguments));
}

TEST(LoadArguments, MemorySizesCountInPowersOf1024) {
    EXPECT_EQ(1, parseMemorySize("1"));
    EXPECT_EQ(7168, parseMemorySize("7K"));
    EXPECT_EQ(7168, parseMemorySize("7k"));
    EXPECT_EQ(536870912, parseMemorySize("512M"));
    EXPECT_EQ(3221225472, parseMemorySize("3G"));
    EXPECT_EQ(9223372036854775807, parseMemorySize("9223372036854775807"));
    EXPECT_EQ(8589934591LL << 30, parseMemorySize("8589934591G"));
}

TEST(LoadArguments, OtherTextsAreNoMemorySizes) {
    for (const char* text :
         {"", "0", "0M", "-1", "+1", " 1", "1 ", "M", "1T", "1MB", "1.5G", "0x10", "many",
          "9223372036854775808", "8589934592G", "9007199254740992K"})
        EXPECT_FALSE(parseMemorySize(text).has_value()) << text;
}

TEST(LoadArguments, SettingIsCutAtItsFirstEqualsSign) {
    using Setting = std::pair<std::string, std::string>;
    EXPECT_EQ(Setting("KEY", "VALUE"), parseSetting("KEY=VALUE"));
    EXPECT_EQ(Setting("KEY", "a=b"), parseSetting("KEY=a=b"));
    EXPECT_EQ(Setting("KEY", ""), parseSetting("KEY="));
    EXPECT_EQ(Setting("IINDEXRANGE", "1,,2"), parseSetting("IINDEXRANGE=1,,2"));
}

TEST(LoadArguments, SettingNeedsKeyAndEqualsSign) {
    for (const char* text : {"", "KEY", "=VALUE", "="})
        EXPECT_FALSE(parseSetting(text).has_value()) << text;
}

} // namespace
} // namespace quorvia::host
