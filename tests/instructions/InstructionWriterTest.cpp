#include "instructions/InstructionWriter.h"

#include <algorithm>

#include "support/HostedTest.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Members;
using testsupport::Texts;

class InstructionWriter : public testsupport::GuestTest {
protected:
    void SetUp() override {
        GuestTest::SetUp();
        setLoadOptionDefaults(options_);
    }

    Texts written() const { return textsOf(writeLoadInstructions(options_)); }

    /// How often a word stands among what is written.
    std::int64_t countOf(const char* word) const {
        const Texts all = written();
        return std::count(all.begin(), all.end(), word);
    }

    /// The strings from `word` on, as many as `count`.
    Texts writtenFrom(const char* word, std::ptrdiff_t count) const {
        const Texts all = written();
        const auto first = std::find(all.begin(), all.end(), word);
        return {first, first + std::min(count, all.end() - first)};
    }

    std::string gridSetText(const Members& members) {
        const HostSet set = setOf(members);
        const HostStringList list = listOf({});
        appendGridSetInstruction(list.get(), set.get());
        const Texts texts = textsOf(list);
        EXPECT_EQ(texts.size(), 2u);
        EXPECT_EQ(texts.front(), "FILEGRIDSET");
        return texts.back();
    }

    Plot3DLoadOptions_s options_;
};

TEST_F(InstructionWriter, WritesALoadOfTheDialogKeyByKey) {
    options_.gridFiles = {"a.x"};
    options_.solutionFiles = {"a.q"};
    options_.hasGridFiles = options_.hasSolutionFiles = true;
    EXPECT_EQ(written(), (Texts{"STANDARDSYNTAX",
                                "1.0",
                                "APPEND",
                                "No",
                                "FILELIST_GRIDFILES",
                                "1",
                                "a.x",
                                "FILELIST_SOLUTIONFILES",
                                "1",
                                "a.q",
                                "IINDEXRANGE",
                                "1,,1",
                                "JINDEXRANGE",
                                "1,,1",
                                "KINDEXRANGE",
                                "1,,1",
                                "AUTODETECT",
                                "Yes",
                                "LOADBOUNDARY",
                                "No",
                                "ASCIIISDOUBLE",
                                "No",
                                "ASCIIHASIBLANK",
                                "No",
                                "SOLUTIONSSHARESTRUCTURE",
                                "Yes",
                                "ASSIGNSTRANDIDS",
                                "Yes",
                                "ADDTOEXISTINGSTRANDS",
                                "No",
                                "UNIFORMGRIDSTRUCTURE",
                                "Yes",
                                "ASSIGNNEWSTRANDIDFOREACHTIMESTEP",
                                "Yes",
                                "EXTRACTTIMEFROMSOLFILENAMES",
                                "No"}));
}

TEST_F(InstructionWriter, WritesEveryKeyInItsPlace) {
    const HostSet set = setOf({1, 2, 3, 7});
    options_.gridSet = set.get();
    options_.append = options_.hasNameFile = options_.asciiIsDouble = true;
    options_.functionFiles = {"a.f", "b.f"};
    options_.nameFile = "n.nam";
    options_.autoDetect = false;
    options_.style = Plot3DStyle_Overflow;
    options_.kRange = {2, 40, 3};
    EXPECT_EQ(written(), (Texts{"STANDARDSYNTAX",
                                "1.0",
                                "APPEND",
                                "Yes",
                                "FILELIST_FUNCTIONFILES",
                                "2",
                                "a.f",
                                "b.f",
                                "FILENAME_NAMEFILE",
                                "n.nam",
                                "ISMULTIGRID",
                                "Yes",
                                "STYLE",
                                "OVERFLOW",
                                "DATASTRUCTURE",
                                "3DW",
                                "IINDEXRANGE",
                                "1,,1",
                                "JINDEXRANGE",
                                "1,,1",
                                "KINDEXRANGE",
                                "2,40,3",
                                "FILEGRIDSET",
                                "1-3,7",
                                "AUTODETECT",
                                "No",
                                "LOADBOUNDARY",
                                "No",
                                "ASCIIISDOUBLE",
                                "Yes",
                                "ASCIIHASIBLANK",
                                "No",
                                "SOLUTIONSSHARESTRUCTURE",
                                "Yes",
                                "ASSIGNSTRANDIDS",
                                "Yes",
                                "ADDTOEXISTINGSTRANDS",
                                "No",
                                "UNIFORMGRIDSTRUCTURE",
                                "Yes",
                                "ASSIGNNEWSTRANDIDFOREACHTIMESTEP",
                                "Yes",
                                "EXTRACTTIMEFROMSOLFILENAMES",
                                "No"}));
}

TEST_F(InstructionWriter, KnowsTheWordsOfStylesAndStructures) {
    options_.autoDetect = false;
    const char* styles[] = {"PLOT3DCLASSIC", "PLOT3DFUNCTION", "OVERFLOW", "SWIFT"};
    for (int i = 0; i < 4; ++i) {
        options_.style = static_cast<Plot3DStyle_e>(i);
        EXPECT_EQ(writtenFrom("STYLE", 2).back(), styles[i]);
    }
    const char* structures[] = {"1D", "2D", "3DP", "3DW", "UNSTRUCTURED"};
    for (int i = 0; i < 5; ++i) {
        options_.dataStructure = static_cast<Plot3DDataStructure_e>(i);
        EXPECT_EQ(writtenFrom("DATASTRUCTURE", 2).back(), structures[i]);
    }
}

TEST_F(InstructionWriter, WritesNoWordForAStructureThatIsNotDetermined) {
    options_.autoDetect = false;
    options_.dataStructure = Plot3DDataStructure_Unknown;
    EXPECT_EQ(writtenFrom("DATASTRUCTURE", 2), (Texts{"DATASTRUCTURE", "IINDEXRANGE"}));
}

TEST_F(InstructionWriter, WritesAKRangeOf3DWholeOnly) {
    options_.dataStructure = Plot3DDataStructure_2D;
    EXPECT_EQ(countOf("KINDEXRANGE"), 0);
    EXPECT_EQ(countOf("JINDEXRANGE"), 1);
}

TEST_F(InstructionWriter, WritesRangesOfUnstructuredGridsOnlyIfTheyWereNotDetected) {
    options_.dataStructure = Plot3DDataStructure_Unstructured;
    EXPECT_EQ(countOf("IINDEXRANGE"), 0);
    options_.autoDetect = false;
    EXPECT_EQ(countOf("IINDEXRANGE"), 1);
    EXPECT_EQ(countOf("JINDEXRANGE"), 1);
    EXPECT_EQ(countOf("KINDEXRANGE"), 0);
}

TEST_F(InstructionWriter, WritesTheStrandsThatWereAskedFor) {
    options_.assignStrandIds = false;
    EXPECT_EQ(writtenFrom("ASSIGNSTRANDIDS", 2).back(), "Yes");
}

TEST_F(InstructionWriter, WritesNoNameFileUnlessItIsUsed) {
    options_.nameFile = "n.nam";
    EXPECT_EQ(countOf("FILENAME_NAMEFILE"), 0);
}

TEST_F(InstructionWriter, WritesNoGridFilesForALoadOfFunctionsOnly) {
    options_.functionFiles = {"a.f"};
    EXPECT_EQ(countOf("FILELIST_GRIDFILES"), 0);
    EXPECT_EQ(countOf("FILELIST_FUNCTIONFILES"), 1);
}

TEST_F(InstructionWriter, WritesSetsAsRuns) {
    EXPECT_EQ(gridSetText({1, 2, 3, 7, 12, 13}), "1-3,7,12-13");
    EXPECT_EQ(gridSetText({4}), "4");
    EXPECT_EQ(gridSetText({1, 3}), "1,3");
    EXPECT_EQ(gridSetText({2, 3, 5, 6}), "2-3,5-6");
    EXPECT_EQ(gridSetText({}), "");
}

TEST_F(InstructionWriter, AllocatesTheTextOfASetOnce) {
    Members odd;
    for (std::int64_t member = 1; member < 2000; member += 2)
        odd.push_back(member);
    const std::int64_t before = host().callCount("QuorUtilStringAlloc");
    const std::string text = gridSetText(odd);
    EXPECT_EQ(text.substr(0, 8), "1,3,5,7,");
    EXPECT_EQ(host().callCount("QuorUtilStringAlloc"), before + 1);
}

TEST_F(InstructionWriter, WritesNothingForANullSet) {
    const HostStringList list = listOf({});
    appendGridSetInstruction(list.get(), nullptr);
    EXPECT_EQ(textsOf(list), Texts());
}

TEST_F(InstructionWriter, LeavesTheSetOutIfThereIsNoMemoryForItsText) {
    const HostSet set = setOf({1, 2, 5, 6});
    const HostStringList list = listOf({});
    host().failCall("QuorUtilStringAlloc", 1);
    appendGridSetInstruction(list.get(), set.get());
    EXPECT_EQ(QuorUtilStringListGetCount(list.get()), 0);
}

TEST_F(InstructionWriter, GivesNullAndAMessageWithoutMemoryForTheList) {
    host().failCall("QuorUtilStringListAlloc", 1);
    EXPECT_FALSE(writeLoadInstructions(options_));
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
}

TEST_F(InstructionWriter, GivesNullSilentlyWithoutMemoryForAFile) {
    options_.gridFiles = {"a.x", "b.x"};
    options_.functionFiles = {"a.f"};
    for (std::int64_t n = 5; n <= 11; ++n) { // behind STANDARDSYNTAX and APPEND
        host().clearFaults();
        host().failCall("QuorUtilStringListAppendString", n);
        EXPECT_FALSE(writeLoadInstructions(options_)) << n;
    }
    EXPECT_EQ(messages(), Texts());
}

TEST_F(InstructionWriter, DoesNotWatchTheOtherAppends) {
    host().failCall("QuorUtilStringListAppendString", 1);
    EXPECT_TRUE(writeLoadInstructions(options_));
}

TEST(FormatIndexRange, LeavesZerosEmptyButNeverTheSkip) {
    EXPECT_STREQ(formatIndexRange({1, 0, 1}), "1,,1");
    EXPECT_STREQ(formatIndexRange({2, 40, 3}), "2,40,3");
    EXPECT_STREQ(formatIndexRange({0, 0, 0}), ",,0");
    EXPECT_STREQ(formatIndexRange({-2147483648, -2147483648, -2147483648}),
                 "-2147483648,-2147483648,-2147483648");
}

} // namespace
} // namespace quorvia::quorutildataio
