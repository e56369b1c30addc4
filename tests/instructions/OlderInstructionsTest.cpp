// Lists of older layouts and macros.
#include "instructions/OlderInstructions.h"

#include "filenames/FileNameClassification.h"
#include "filenames/FilePatternTables.h"
#include "instructions/ParserFixture.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

constexpr const char* rangeNotAllowed = "Error: Not allowed to use -KSet when data is not 3d whole";
constexpr const char* noFiles = "Must have at least one grid, solution or function file.";

std::string missingOption(const std::string& word) {
    return "Error in PLOT3D loader instructions.\nExpecting option for: " + word;
}

class OlderInstructions : public testsupport::ParserTest {
protected:
    static void SetUpTestSuite() {
        if (gGridPatterns.empty())
            buildFilePatternTables();
    }
};

TEST_F(OlderInstructions, DescribeTheirFilesByHand) {
    EXPECT_TRUE(parse({"-3DW", "-GF", "a.x"}));
    EXPECT_FALSE(options_.autoDetect);
    EXPECT_TRUE(options_.isMultiGrid);
    EXPECT_TRUE(options_.hasGridFiles);
    EXPECT_EQ(options_.gridFiles, Texts{"a.x"});
    EXPECT_EQ(options_.style, Plot3DStyle_Classic);
    EXPECT_EQ(options_.dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_FALSE(options_.solutionsShareStructure || options_.assignStrandIds ||
                 options_.assignStrandIdsRequested || options_.addToExistingStrands ||
                 options_.extractTimeFromSolFileNames || options_.loadBoundary);
}

TEST_F(OlderInstructions, DetectOnlyIfAskedTo) {
    EXPECT_TRUE(parse({"-GF", "a.x", "AUTODETECT", "Yes"}));
    EXPECT_TRUE(options_.autoDetect);
}

TEST_F(OlderInstructions, KnowEveryStructureInAnyCaseAndTakeTheLast) {
    const char* words[] = {"-1D", "-2d", "-3DP", "-3dw", "-Unstructured"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(parse({i == 0 ? "-2D" : "-1D", words[i], "-GF", "a.x"}));
        EXPECT_EQ(options_.dataStructure, i);
    }
}

TEST_F(OlderInstructions, SetFlagsAndStyleWithoutAValue) {
    EXPECT_TRUE(parse({"ISMULTIGRID", "No", "-GF", "a.x"}));
    EXPECT_FALSE(options_.isMultiGrid || options_.asciiHasIBlank);
    EXPECT_TRUE(parse({"ISMULTIGRID", "No", "-m", "-I", "-FUNCTION", "-GF", "a.x"}));
    EXPECT_TRUE(options_.isMultiGrid && options_.asciiHasIBlank);
    EXPECT_EQ(options_.style, Plot3DStyle_Function);
}

TEST_F(OlderInstructions, PassOverSwitchesThatMeanNothing) {
    for (const char* word : {"-FOREIGN", "-IP", "-JP", "-KP", "-B", "-F", "-foreign"}) {
        EXPECT_TRUE(parse({word, "-2D", word, "-GF", "a.x", word, "-SF", "a.q"})) << word;
        EXPECT_EQ(options_.dataStructure, Plot3DDataStructure_2D) << word;
        EXPECT_EQ(options_.solutionFiles, Texts{"a.q"}) << word;
        EXPECT_EQ(messages(), Texts()) << word;
    }
}

TEST_F(OlderInstructions, DoNotStandInForTheTagsOfTheStandardSyntax) {
    const Texts switches = {"-FUNCTION", "-2D", "-M", "AUTODETECT", "No"};
    EXPECT_EQ(faultOf(switches), "STYLE tag is required if AUTODETECT is FALSE.");
    Texts more = {"STYLE", "SWIFT"};
    more.insert(more.end(), switches.begin(), switches.end());
    EXPECT_EQ(faultOf(more), "DATASTRUCTURE tag is required if AUTODETECT is FALSE.");
    more.insert(more.end(), {"DATASTRUCTURE", "2D"});
    EXPECT_EQ(faultOf(more), "ISMULTIGRID tag is required if AUTODETECT is FALSE.");
}

TEST_F(OlderInstructions, ReadRangesLikeTheirKeys) {
    EXPECT_TRUE(parse({"-ISET", "2,3,5", "-JSET", "7,11,13", "-KSET", "17,19,23", "-GF", "a.x"}));
    EXPECT_EQ(options_.iRange.start, 2);
    EXPECT_EQ(options_.jRange.end, 11);
    EXPECT_EQ(options_.kRange.skip, 23);
    EXPECT_FALSE(parse({"-ISET", "1,5,a"}));
    EXPECT_EQ(messages(), Texts{"Invalid definition for I-Index Start,End,Skip"});
    EXPECT_FALSE(parse({"-JSET", "1,5,a"}));
    EXPECT_EQ(messages(), Texts{"Invalid definition for J-Index Start,End,Skip"});
    EXPECT_FALSE(parse({"-KSET", "1,5,a"}));
    EXPECT_EQ(messages(), Texts{"Invalid definition for K-Index Start,End,Skip"});
}

TEST_F(OlderInstructions, RefuseAKRangeOfOtherThan3DWholeInEitherOrder) {
    EXPECT_FALSE(parse({"-2D", "-KSET", "1,,1", "-GF", "a.x"}));
    EXPECT_EQ(messages(), Texts{rangeNotAllowed});
    EXPECT_FALSE(parse({"-KSET", "1,,1", "-2D", "-GF", "a.x"}));
    EXPECT_EQ(messages(), Texts{rangeNotAllowed});
}

TEST_F(OlderInstructions, GatherSolutionFilesInTheirOrder) {
    EXPECT_TRUE(parse({"-SF", "a.q", "-SF", " b.q\r", "-GF", " a.x\t"}));
    EXPECT_EQ(options_.solutionFiles, (Texts{"a.q", "b.q"}));
    EXPECT_EQ(options_.gridFiles, Texts{"a.x"});
    EXPECT_TRUE(options_.hasSolutionFiles);
}

TEST_F(OlderInstructions, HaveOneGridFile) {
    EXPECT_TRUE(parse({"-GF", "a.x", "-GF", "b.x"}));
    EXPECT_EQ(options_.gridFiles, Texts{"b.x"});
    EXPECT_TRUE(parse({"FILELIST_GRIDFILES", "2", "a.x", "b.x", "filename_gridfile", "c.x"}));
    EXPECT_EQ(options_.gridFiles, Texts{"c.x"});
}

TEST_F(OlderInstructions, TakeTheNameFileAsItStands) {
    EXPECT_TRUE(parse({"-NF", " a.nam ", "-GF", "a.x"}));
    EXPECT_TRUE(options_.hasNameFile);
    EXPECT_EQ(options_.nameFile, " a.nam ");
}

TEST_F(OlderInstructions, WantTheirValues) {
    for (const char* word : {"-GF", "FILENAME_GRIDFILE", "-SF", "-NF", "-ISET", "-JSET", "-KSET"}) {
        EXPECT_FALSE(parse({word})) << word;
        EXPECT_EQ(messages(), Texts{missingOption(word)}) << word;
    }
}

TEST_F(OlderInstructions, RefuseAnEmptyNameSilentlyAndSetTheFlag) {
    EXPECT_FALSE(parse({"FILELIST_GRIDFILES", "1", "a.x", "-GF", ""}));
    EXPECT_TRUE(options_.hasGridFiles);
    EXPECT_EQ(options_.gridFiles, Texts());
    EXPECT_FALSE(parse({"-SF", ""}));
    EXPECT_TRUE(options_.hasSolutionFiles);
    EXPECT_FALSE(parse({"-NF", ""}));
    EXPECT_EQ(messages(), Texts());
}

using FileListOfAllKinds = OlderInstructions;

TEST_F(FileListOfAllKinds, IsSortedByNames) {
    EXPECT_TRUE(parse({"FILELIST_DATAFILES", "2", "a.x", "a.q"}));
    EXPECT_EQ(options_.gridFiles, Texts{"a.x"});
    EXPECT_EQ(options_.solutionFiles, Texts{"a.q"});
    EXPECT_TRUE(options_.hasGridFiles && options_.hasSolutionFiles);
    EXPECT_FALSE(options_.hasNameFile);
}

TEST_F(FileListOfAllKinds, DoesNotCountEmptyNames) {
    EXPECT_TRUE(parse({"FILELIST_DATAFILES", "3", "a.x", "", "a.q", " a.fun "}));
    EXPECT_EQ(options_.gridFiles, Texts{"a.x"});
    EXPECT_EQ(options_.solutionFiles, Texts{"a.q"});
    EXPECT_EQ(options_.functionFiles, Texts{"a.fun"});
}

TEST_F(FileListOfAllKinds, ReplacesWhatStoodBeforeButKeepsTheFlags) {
    EXPECT_TRUE(parse(
        {"-GF", "a.x", "-SF", "a.q", "-NF", "a.nam", "FILELIST_DATAFILES", "2", "b.fun", "b.nam"}));
    EXPECT_EQ(options_.gridFiles, Texts());
    EXPECT_EQ(options_.solutionFiles, Texts());
    EXPECT_EQ(options_.functionFiles, Texts{"b.fun"});
    EXPECT_EQ(options_.nameFile, "b.nam");
    EXPECT_TRUE(options_.hasGridFiles && options_.hasSolutionFiles && options_.hasNameFile);
}

TEST_F(FileListOfAllKinds, IsEmptyWithoutANumber) {
    for (const char* count : {"many", "", "0", "-1"}) {
        EXPECT_FALSE(parse({"-GF", "a.x", "FILELIST_DATAFILES", count})) << count;
        EXPECT_EQ(messages(), Texts{noFiles}) << count;
    }
}

TEST_F(FileListOfAllKinds, TellsThatTheCountIsMissingAndGoesOnWithoutFiles) {
    EXPECT_FALSE(parse({"-GF", "a.x", "FILELIST_DATAFILES"}));
    EXPECT_EQ(messages(), (Texts{missingOption("FILELIST_DATAFILES"), noFiles}));
}

TEST_F(FileListOfAllKinds, EndsTheParseIfNamesAreMissing) {
    EXPECT_FALSE(parse({"-GF", "b.x", "FILELIST_DATAFILES", "2147483647", "a.x", "a.q"}));
    EXPECT_EQ(messages(), Texts{missingOption("a.q")});
    EXPECT_EQ(options_.gridFiles, Texts{"b.x"});
}

TEST_F(FileListOfAllKinds, LeavesTheListsIfTheNamesDoNotGoTogether) {
    EXPECT_FALSE(parse({"-GF", "b.x", "FILELIST_DATAFILES", "3", "a.nam", "b.nam", "a.x"}));
    EXPECT_EQ(messages(), Texts{"Only one Name file can be loaded."});
    EXPECT_EQ(options_.gridFiles, Texts{"b.x"});
    EXPECT_FALSE(options_.hasNameFile);
}

TEST_F(FileListOfAllKinds, IsRefusedIfTheHostHasNoMemory) {
    for (const char* operation : {"QuorUtilStringListAppendString"}) {
        const HostStringList list = listOf({"FILELIST_DATAFILES", "2", "a.x", "a.q"});
        for (std::int64_t n = 1; n <= 2; ++n) {
            host().clearFaults();
            host().failCall(operation, n);
            EXPECT_FALSE(parseLoadInstructions(list.get(), options_)) << n;
            EXPECT_EQ(options_.gridFiles, Texts()) << n;
        }
    }
    EXPECT_EQ(messages(), Texts());
}

} // namespace
} // namespace quorvia::quorutildataio
