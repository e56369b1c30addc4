// The list as a whole: its first string, its end, and what must hold when it has been read.
#include "instructions/ParserFixture.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class InstructionSyntax : public testsupport::ParserTest {};

TEST_F(InstructionSyntax, RefusesAListWithoutFiles) {
    EXPECT_FALSE(parse({}));
    EXPECT_EQ(messages(), Texts{noFiles});
}

TEST_F(InstructionSyntax, WantsAVersionBehindStandardSyntax) {
    EXPECT_FALSE(parse({"standardsyntax"}));
    EXPECT_EQ(messages(), Texts{missingOption("STANDARDSYNTAX")});
}

TEST_F(InstructionSyntax, TakesAnythingForTheVersion) {
    EXPECT_TRUE(parse({"STANDARDSYNTAX", "", "FILELIST_GRIDFILES", "1", "a.x"}));
    EXPECT_EQ(options_.gridFiles, Texts{"a.x"});
}

TEST_F(InstructionSyntax, TakesAKeyForTheVersionWhenThatIsMissing) {
    EXPECT_FALSE(parse({"STANDARDSYNTAX", "APPEND", "Yes"}));
    EXPECT_FALSE(options_.append);
    EXPECT_EQ(messages(), Texts{noFiles});
}

TEST_F(InstructionSyntax, DoesNotKnowALaterStandardSyntax) {
    EXPECT_TRUE(parseStandard({"STANDARDSYNTAX", "1.0", "ASCIIISDOUBLE", "Yes"}));
    EXPECT_FALSE(options_.asciiIsDouble);
}

TEST_F(InstructionSyntax, StopsQuietlyAtAStringThatIsNoKey) {
    EXPECT_TRUE(parseStandard({"SURPRISE", "ASCIIISDOUBLE", "Yes"}));
    EXPECT_FALSE(options_.asciiIsDouble);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(InstructionSyntax, TakesASurplusNameForAKey) {
    EXPECT_TRUE(
        parse({"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", "a.x", "b.x", "APPEND", "Yes"}));
    EXPECT_EQ(options_.gridFiles, Texts{"a.x"});
    EXPECT_FALSE(options_.append);
}

TEST_F(InstructionSyntax, ComparesKeysWholeAndWithoutCase) {
    EXPECT_TRUE(parseStandard({"asciiIsDouble", "Yes"}));
    EXPECT_TRUE(options_.asciiIsDouble);
    EXPECT_TRUE(parseStandard({"ASCIIISDOUBLE ", "Yes"}));
    EXPECT_FALSE(options_.asciiIsDouble);
}

TEST_F(InstructionSyntax, DetectsTheStructureUnlessTold) {
    EXPECT_TRUE(parseStandard({}));
    EXPECT_TRUE(options_.autoDetect);
}

TEST_F(InstructionSyntax, HasDefaultsOfItsOwnForWhatAListMustState) {
    options_.loadBoundary = options_.addToExistingStrands = true;
    EXPECT_TRUE(parseStandard({}));
    EXPECT_FALSE(options_.solutionsShareStructure || options_.assignStrandIds);
    EXPECT_FALSE(options_.assignStrandIdsRequested || options_.addToExistingStrands);
    EXPECT_FALSE(options_.extractTimeFromSolFileNames || options_.loadBoundary);
    EXPECT_TRUE(options_.isMultiGrid && options_.uniformGridStructure);
    EXPECT_TRUE(options_.assignNewStrandIdForEachTimeStep);
}

TEST_F(InstructionSyntax, WithoutDetectionRequiresThreeTagsInTheirOrder) {
    EXPECT_EQ(faultOf({"AUTODETECT", "No"}), "STYLE tag is required if AUTODETECT is FALSE.");
    EXPECT_EQ(faultOf({"AUTODETECT", "No", "STYLE", "SWIFT"}),
              "DATASTRUCTURE tag is required if AUTODETECT is FALSE.");
    EXPECT_EQ(faultOf({"AUTODETECT", "No", "STYLE", "SWIFT", "DATASTRUCTURE", "2D"}),
              "ISMULTIGRID tag is required if AUTODETECT is FALSE.");
    EXPECT_TRUE(parseStandard(
        {"STYLE", "SWIFT", "ISMULTIGRID", "No", "DATASTRUCTURE", "2D", "AUTODETECT", "No"}));
}

TEST_F(InstructionSyntax, OfOldDescribesFilesByHandAndRequiresNoTags) {
    EXPECT_TRUE(parse({"FILELIST_GRIDFILES", "1", "a.x"}));
    EXPECT_FALSE(options_.autoDetect);
    EXPECT_EQ(options_.style, Plot3DStyle_Classic);
    EXPECT_EQ(options_.dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_TRUE(options_.isMultiGrid);
}

TEST_F(InstructionSyntax, OfOldMayAskForDetection) {
    EXPECT_TRUE(parse({"FILELIST_GRIDFILES", "1", "a.x", "AUTODETECT", "Yes"}));
    EXPECT_TRUE(options_.autoDetect);
}

TEST_F(InstructionSyntax, RefusesAKRangeOfOtherThan3DWhole) {
    EXPECT_EQ(faultOf({"KINDEXRANGE", "1,,1", "DATASTRUCTURE", "2D"}), rangeNotAllowed);
    EXPECT_EQ(faultOf({"DATASTRUCTURE", "2D", "KINDEXRANGE", "1,,1"}), rangeNotAllowed);
    EXPECT_EQ(faultOf({"AUTODETECT", "No", "DATASTRUCTURE", "3DP", "KINDEXRANGE", "1,,1"}),
              rangeNotAllowed);
    EXPECT_TRUE(parseStandard({"KINDEXRANGE", "1,,1"}));
}

TEST_F(InstructionSyntax, AppendsOnlyToADataSet) {
    EXPECT_EQ(faultOf({"APPEND", "Yes"}), "Cannot append without an existing data set.");
}

TEST_F(InstructionSyntax, TellsTheFirstFaultOfTheOptionsAlone) {
    EXPECT_FALSE(parse({"STANDARDSYNTAX", "1.0", "APPEND", "Yes"})); // no data set, and no files
    EXPECT_EQ(messages(), Texts{"Cannot append without an existing data set."});
    EXPECT_FALSE(parse({"STANDARDSYNTAX", "1.0", "AUTODETECT", "No", "APPEND", "Yes"}));
    EXPECT_EQ(messages(), Texts{"STYLE tag is required if AUTODETECT is FALSE."});
    EXPECT_EQ(faultOf({"DATASTRUCTURE", "2D", "KINDEXRANGE", "1,,1", "APPEND", "Yes"}),
              rangeNotAllowed);
}

TEST_F(InstructionSyntax, AppendsToTheDataSetThatIsThere) {
    makeDataSet({"X"});
    EXPECT_TRUE(parseStandard({"APPEND", "Yes"}));
    EXPECT_TRUE(options_.append);
}

TEST_F(InstructionSyntax, IsRefusedSilentlyIfTheHostHasNoMemoryForAString) {
    for (std::int64_t n = 1; n <= 7; ++n) {
        host().clearFaults();
        host().failCall("QuorUtilStringListGetString", n);
        EXPECT_EQ(faultOf({"FILEGRIDSET", "3"}), "") << n;
    }
}

} // namespace
} // namespace quorvia::quorutildataio
