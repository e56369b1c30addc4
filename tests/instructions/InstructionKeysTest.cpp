// Each key with its values.
#include "instructions/InstructionKeys.h"

#include "instructions/ParserFixture.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Members;
using testsupport::Texts;
using Options = Plot3DLoadOptions_s;

class InstructionKeys : public testsupport::ParserTest {};

struct FlagKey_s {
    const char* word;
    bool Options::*flag;
};

class FlagInstruction : public testsupport::ParserTest,
                        public ::testing::WithParamInterface<FlagKey_s> {
protected:
    bool flagAfter(const char* value) {
        makeDataSet({"X"}); // so that APPEND is allowed
        const bool isGood = parseStandard({"STYLE", "SWIFT", "DATASTRUCTURE", "3DW", "ISMULTIGRID",
                                           "Yes", GetParam().word, value});
        EXPECT_TRUE(isGood);
        return options_.*GetParam().flag;
    }
};

TEST_P(FlagInstruction, IsTrueForTheWordsThatMeanItAndFalseForAllOthers) {
    EXPECT_TRUE(flagAfter("Yes"));
    EXPECT_FALSE(flagAfter("No"));
    EXPECT_TRUE(flagAfter("youbetcha"));
    EXPECT_FALSE(flagAfter("On"));
    EXPECT_FALSE(flagAfter(""));
}

TEST_P(FlagInstruction, WantsAValue) {
    EXPECT_EQ(faultOf({GetParam().word}), missingOption(GetParam().word));
}

INSTANTIATE_TEST_SUITE_P(
    Keys, FlagInstruction,
    ::testing::Values(
        FlagKey_s{"APPEND", &Options::append}, FlagKey_s{"ASCIIISDOUBLE", &Options::asciiIsDouble},
        FlagKey_s{"ASCIIHASIBLANK", &Options::asciiHasIBlank},
        FlagKey_s{"SOLUTIONSSHARESTRUCTURE", &Options::solutionsShareStructure},
        FlagKey_s{"AUTODETECT", &Options::autoDetect},
        FlagKey_s{"ISMULTIGRID", &Options::isMultiGrid},
        FlagKey_s{"ADDTOEXISTINGSTRANDS", &Options::addToExistingStrands},
        FlagKey_s{"LOADBOUNDARY", &Options::loadBoundary},
        FlagKey_s{"UNIFORMGRIDSTRUCTURE", &Options::uniformGridStructure},
        FlagKey_s{"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", &Options::assignNewStrandIdForEachTimeStep},
        FlagKey_s{"EXTRACTTIMEFROMSOLFILENAMES", &Options::extractTimeFromSolFileNames},
        FlagKey_s{"ASSIGNSTRANDIDS", &Options::assignStrandIds},
        FlagKey_s{"ASSIGNSTRANDIDS", &Options::assignStrandIdsRequested}));

TEST_F(InstructionKeys, KnowTheWordsOfStyles) {
    const Plot3DStyle_e styles[] = {Plot3DStyle_Classic, Plot3DStyle_Function, Plot3DStyle_Overflow,
                                    Plot3DStyle_Swift};
    const char* words[] = {"Plot3DClassic", "PLOT3DFUNCTION", "overflow", "SWIFT"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(parseStandard({"STYLE", words[i]}));
        EXPECT_EQ(options_.style, styles[i]);
    }
}

TEST_F(InstructionKeys, KnowTheWordsOfStructures) {
    const char* words[] = {"1d", "2D", "3dp", "3DW", "Unstructured"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(parseStandard({"DATASTRUCTURE", words[i]}));
        EXPECT_EQ(options_.dataStructure, i);
    }
}

TEST_F(InstructionKeys, RefuseUnknownWordsSilently) {
    EXPECT_EQ(faultOf({"STYLE", "BAROQUE"}), "");
    EXPECT_EQ(faultOf({"DATASTRUCTURE", "4D"}), "");
    EXPECT_EQ(faultOf({"DATASTRUCTURE", ""}), "");
}

TEST_F(InstructionKeys, ReadRangesUnderTheirLabels) {
    EXPECT_TRUE(
        parseStandard({"IINDEXRANGE", "2,3,5", "JINDEXRANGE", "7,,1", "KINDEXRANGE", ",11,13"}));
    EXPECT_EQ(options_.iRange.skip, 5);
    EXPECT_EQ(options_.jRange.start, 7);
    EXPECT_EQ(options_.kRange.end, 11);
    EXPECT_EQ(faultOf({"IINDEXRANGE", "1,5,a"}), "Invalid definition for I-Index Start,End,Skip");
    EXPECT_EQ(faultOf({"JINDEXRANGE", "a"}), "Invalid definition for J-Index Start,End,Skip");
    EXPECT_EQ(faultOf({"KINDEXRANGE", "a"}), "Invalid definition for K-Index Start,End,Skip");
}

TEST_F(InstructionKeys, ReadAGridSet) {
    EXPECT_TRUE(parseStandard({"FILEGRIDSET", "1-3,7"}));
    EXPECT_EQ(membersOf(options_.gridSet), (Members{1, 2, 3, 7}));
    EXPECT_TRUE(parseStandard({"FILEGRIDSET", ""}));
    EXPECT_NE(options_.gridSet, nullptr);
    EXPECT_EQ(membersOf(options_.gridSet), Members());
}

TEST_F(InstructionKeys, LetALaterGridSetReplaceAnEarlierOne) {
    EXPECT_TRUE(parseStandard({"FILEGRIDSET", "1-3", "FILEGRIDSET", "5"}));
    EXPECT_EQ(membersOf(options_.gridSet), Members{5});
}

TEST_F(InstructionKeys, RefuseABadGridSet) {
    EXPECT_EQ(faultOf({"FILEGRIDSET", "3-1"}), "Invalid Set assigned to FILEGRIDSET");
    EXPECT_EQ(faultOf({"FILEGRIDSET", "2", "FILEGRIDSET", "0"}),
              "Invalid Set assigned to FILEGRIDSET");
    EXPECT_EQ(options_.gridSet, nullptr);
    host().failCall("QuorUtilSetAlloc", 1);
    EXPECT_EQ(faultOf({"FILEGRIDSET", "1"}), "Invalid Set assigned to FILEGRIDSET");
}

TEST_F(InstructionKeys, WantTheirValues) {
    for (const char* word : {"STYLE", "DATASTRUCTURE", "IINDEXRANGE", "JINDEXRANGE", "KINDEXRANGE",
                             "FILEGRIDSET", "FILELIST_GRIDFILES", "FILELIST_SOLUTIONFILES",
                             "FILELIST_FUNCTIONFILES", "FILENAME_NAMEFILE"})
        EXPECT_EQ(faultOf({word}), missingOption(word));
}

TEST_F(InstructionKeys, ReadAllKindsOfFiles) {
    EXPECT_TRUE(parse({"STANDARDSYNTAX", "1.0", "FILELIST_SOLUTIONFILES", "2", "a.q", " b.q\r\n",
                       "FILELIST_FUNCTIONFILES", " 1", "a.f", "FILENAME_NAMEFILE", " n.nam "}));
    EXPECT_EQ(options_.solutionFiles, (Texts{"a.q", "b.q"}));
    EXPECT_EQ(options_.functionFiles, Texts{"a.f"});
    EXPECT_EQ(options_.nameFile, " n.nam "); // a name that stands alone is not trimmed
    EXPECT_FALSE(options_.hasGridFiles);
    EXPECT_TRUE(options_.hasSolutionFiles && options_.hasNameFile);
}

TEST_F(InstructionKeys, LetALaterFileListReplaceAnEarlierOne) {
    EXPECT_TRUE(parseStandard({"FILELIST_GRIDFILES", "2", "b.x", "c.x"}));
    EXPECT_EQ(options_.gridFiles, (Texts{"b.x", "c.x"}));
    EXPECT_TRUE(options_.hasGridFiles);
}

TEST_F(InstructionKeys, ReadNoNamesForACountOfZeroOrBelow) {
    EXPECT_TRUE(parseStandard({"FILELIST_SOLUTIONFILES", "0", "ASCIIISDOUBLE", "Yes"}));
    EXPECT_TRUE(options_.asciiIsDouble && options_.hasSolutionFiles);
    EXPECT_TRUE(parseStandard({"FILELIST_SOLUTIONFILES", "-3", "ASCIIISDOUBLE", "Yes"}));
    EXPECT_TRUE(options_.asciiIsDouble && options_.solutionFiles.empty());
}

TEST_F(InstructionKeys, RefuseACountThatIsNoneSilently) {
    for (const char* count : {"", "many", "99999999999"})
        EXPECT_EQ(faultOf({"FILELIST_SOLUTIONFILES", count, "a.q"}), "") << count;
    EXPECT_TRUE(options_.hasSolutionFiles);
}

// Whoever looks at the options of a refused list finds the kinds of files that were named.
TEST_F(InstructionKeys, NameTheKindOfFilesAlsoWhenTheirListIsRefused) {
    for (const Texts& list : {Texts{"many"}, Texts{""}, Texts{"2", "b.x"}, Texts{"1", ""}}) {
        for (const char* key : {"FILELIST_GRIDFILES", "FILELIST_SOLUTIONFILES"}) {
            Texts all = {"STANDARDSYNTAX", "1.0", key};
            all.insert(all.end(), list.begin(), list.end());
            EXPECT_FALSE(parse(all));
            EXPECT_EQ(options_.hasGridFiles, key == std::string("FILELIST_GRIDFILES"));
            EXPECT_NE(options_.hasSolutionFiles, options_.hasGridFiles);
        }
    }
}

TEST_F(InstructionKeys, EmptyAnEarlierListAlsoWhenALaterOneIsRefused) {
    EXPECT_EQ(faultOf({"FILELIST_GRIDFILES", "many"}), "");
    EXPECT_EQ(options_.gridFiles, Texts());
}

TEST_F(InstructionKeys, RefuseEmptyNamesSilently) {
    EXPECT_EQ(faultOf({"FILELIST_SOLUTIONFILES", "2", "a.q", ""}), "");
    EXPECT_EQ(options_.solutionFiles, Texts{"a.q"});
    EXPECT_EQ(faultOf({"FILENAME_NAMEFILE", ""}), "");
    EXPECT_TRUE(options_.hasNameFile);
}

TEST_F(InstructionKeys, TrimANameOfBlanksToNothing) {
    EXPECT_TRUE(parseStandard({"FILELIST_SOLUTIONFILES", "1", "  "}));
    EXPECT_EQ(options_.solutionFiles, Texts{""});
}

TEST_F(InstructionKeys, TellOfAShortFileListByItsLastName) {
    EXPECT_EQ(faultOf({"FILELIST_SOLUTIONFILES", "2", "a.q"}), missingOption("a.q"));
    EXPECT_EQ(faultOf({"FILELIST_SOLUTIONFILES", "2000000000"}), missingOption("2000000000"));
    EXPECT_TRUE(options_.hasSolutionFiles);
    const std::string longName(4999, 'q');
    EXPECT_EQ(faultOf({"FILELIST_SOLUTIONFILES", "2", longName}), missingOption(longName));
}

TEST_F(InstructionKeys, AreFoundByTheirWholeWord) {
    EXPECT_EQ(findInstructionKey(nullptr), nullptr);
    EXPECT_EQ(findInstructionKey(""), nullptr);
    EXPECT_EQ(findInstructionKey("STANDARDSYNTAX"), nullptr);
    EXPECT_EQ(findInstructionKey("append"), findInstructionKey("APPEND"));
}

} // namespace
} // namespace quorvia::quorutildataio
