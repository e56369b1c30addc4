// What is written can be read: random options survive the way into text and back.
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>

#include "filenames/FileNameClassification.h"
#include "filenames/FilePatternTables.h"
#include "instructions/InstructionWriter.h"
#include "instructions/ParserFixture.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Members;
using testsupport::Texts;

/// From the clock, or from PLOT3D_TEST_SEED to repeat a run.
unsigned int testSeed() {
    const char* given = std::getenv("PLOT3D_TEST_SEED");
    return given != nullptr ? static_cast<unsigned int>(std::strtoul(given, nullptr, 10))
                            : std::random_device()();
}

class InstructionRoundTrip : public testsupport::ParserTest {
protected:
    void SetUp() override {
        ParserTest::SetUp();
        makeDataSet({"X"}); // so that APPEND is allowed
        const unsigned int seed = testSeed();
        RecordProperty("seed", static_cast<int>(seed));
        std::cout << "PLOT3D_TEST_SEED=" << seed << '\n';
        random_.seed(seed);
    }

    int number(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }
    bool flag() { return number(0, 1) == 1; }

    Texts files(const std::string& extension) {
        Texts names;
        for (int left = number(0, 3); left > 0; --left)
            names.push_back("run " + std::to_string(number(1, 999)) + "/APPEND" + extension);
        return names;
    }

    Plot3DIndexRange_s range() {
        const int start = number(1, 997);
        return {start, flag() ? 0 : number(start, 999999999), number(1, 13)};
    }

    HostSet gridSet() {
        HostSet set;
        if (flag()) {
            Members members;
            for (int left = number(0, 17); left > 0; --left)
                members.push_back(number(1, 23));
            set = setOf(members);
        }
        return set;
    }

    /// Options as a load may leave them: ranges are good and some file is named.
    Plot3DLoadOptions_s randomOptions() {
        Plot3DLoadOptions_s options;
        setLoadOptionDefaults(options);
        options.gridFiles = files(".x");
        options.solutionFiles = files(".q");
        options.functionFiles = files(".f");
        options.functionFiles.push_back("last.f");
        options.hasGridFiles = !options.gridFiles.empty();
        options.hasSolutionFiles = !options.solutionFiles.empty();
        options.hasNameFile = flag();
        options.nameFile = options.hasNameFile ? "names.nam" : "";
        options.iRange = range();
        options.jRange = range();
        options.kRange = range();
        options.gridSet = gridSet().release();
        options.style = static_cast<Plot3DStyle_e>(number(0, 3));
        options.dataStructure = static_cast<Plot3DDataStructure_e>(number(0, 4));
        for (bool Plot3DLoadOptions_s::*field : flags)
            options.*field = flag();
        return options;
    }

    bool parseWritten(const Plot3DLoadOptions_s& options) {
        return parse(textsOf(writeLoadInstructions(options)));
    }

    void expectSame(const Plot3DLoadOptions_s& written) {
        for (bool Plot3DLoadOptions_s::*field : flags)
            if (field != &Plot3DLoadOptions_s::isMultiGrid || !written.autoDetect) {
                EXPECT_EQ(options_.*field, written.*field);
            }
        EXPECT_EQ(options_.assignStrandIds, written.assignStrandIdsRequested);
        EXPECT_EQ(options_.hasGridFiles, written.hasGridFiles);
        EXPECT_EQ(options_.hasSolutionFiles, written.hasSolutionFiles);
        EXPECT_EQ(options_.hasNameFile, written.hasNameFile);
        EXPECT_EQ(options_.gridFiles, written.gridFiles);
        EXPECT_EQ(options_.solutionFiles, written.solutionFiles);
        EXPECT_EQ(options_.functionFiles, written.functionFiles);
        EXPECT_EQ(options_.nameFile, written.hasNameFile ? written.nameFile : options_.nameFile);
        expectSameStructure(written);
        expectSameGridSet(written.gridSet);
    }

    /// The structure stands in the text only if it is not detected, the ranges only if they apply.
    void expectSameStructure(const Plot3DLoadOptions_s& written) {
        if (!written.autoDetect) {
            EXPECT_EQ(options_.style, written.style);
            EXPECT_EQ(options_.dataStructure, written.dataStructure);
        }
        if (!written.autoDetect || written.dataStructure != Plot3DDataStructure_Unstructured) {
            EXPECT_STREQ(rangeText(options_.iRange).c_str(), rangeText(written.iRange).c_str());
            EXPECT_STREQ(rangeText(options_.jRange).c_str(), rangeText(written.jRange).c_str());
        }
        if (written.dataStructure == Plot3DDataStructure_3DWhole) {
            EXPECT_STREQ(rangeText(options_.kRange).c_str(), rangeText(written.kRange).c_str());
        }
    }

    void expectSameGridSet(QuorSetHandle written) {
        ASSERT_EQ(options_.gridSet == nullptr, written == nullptr);
        if (written != nullptr) {
            EXPECT_EQ(membersOf(options_.gridSet), membersOf(written));
        }
    }

    static std::string rangeText(const Plot3DIndexRange_s& range) {
        return std::to_string(range.start) + ' ' + std::to_string(range.end) + ' ' +
               std::to_string(range.skip);
    }

    static constexpr bool Plot3DLoadOptions_s::*flags[] = {
        &Plot3DLoadOptions_s::append,
        &Plot3DLoadOptions_s::loadBoundary,
        &Plot3DLoadOptions_s::autoDetect,
        &Plot3DLoadOptions_s::isMultiGrid,
        &Plot3DLoadOptions_s::solutionsShareStructure,
        &Plot3DLoadOptions_s::asciiIsDouble,
        &Plot3DLoadOptions_s::asciiHasIBlank,
        &Plot3DLoadOptions_s::assignStrandIdsRequested,
        &Plot3DLoadOptions_s::addToExistingStrands,
        &Plot3DLoadOptions_s::uniformGridStructure,
        &Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep,
        &Plot3DLoadOptions_s::extractTimeFromSolFileNames,
    };

    std::mt19937 random_;
};

TEST_F(InstructionRoundTrip, KeepsWhatTheTextCarries) {
    for (int run = 0; run < 300 && !HasFailure(); ++run) {
        Plot3DLoadOptions_s written = randomOptions();
        EXPECT_TRUE(parseWritten(written));
        expectSame(written);
        EXPECT_EQ(messages(), Texts());
        releaseLoadOptions(written);
    }
}

TEST_F(InstructionRoundTrip, WritesTheSameTextAfterOneParse) {
    for (int run = 0; run < 300 && !HasFailure(); ++run) {
        Plot3DLoadOptions_s options = randomOptions();
        EXPECT_TRUE(parseWritten(options));
        releaseLoadOptions(options);
        const Texts first = textsOf(writeLoadInstructions(options_));
        EXPECT_TRUE(parse(first));
        EXPECT_EQ(textsOf(writeLoadInstructions(options_)), first);
    }
}

TEST_F(InstructionRoundTrip, FindsTheTagsThatFilesDescribedByHandRequire) {
    Plot3DLoadOptions_s options = randomOptions();
    options.autoDetect = false;
    const Texts text = textsOf(writeLoadInstructions(options));
    for (const char* tag : {"ISMULTIGRID", "STYLE", "DATASTRUCTURE"})
        EXPECT_EQ(std::count(text.begin(), text.end(), tag), 1) << tag;
    EXPECT_TRUE(parse(text));
    releaseLoadOptions(options);
}

TEST_F(InstructionRoundTrip, KeepsAnEmptyGridSetApartFromNone) {
    Plot3DLoadOptions_s options = randomOptions();
    releaseLoadOptions(options);
    options.functionFiles = {"a.f"};
    options.gridSet = setOf({}).release();
    EXPECT_TRUE(parseWritten(options));
    EXPECT_NE(options_.gridSet, nullptr);
    releaseLoadOptions(options);
}

// ---- Lists of any keys and switches, of both syntaxes
// ---------------------------------------------

class RandomInstructions : public InstructionRoundTrip {
protected:
    static void SetUpTestSuite() {
        if (gGridPatterns.empty())
            buildFilePatternTables();
    }

    /// Keys and switches in any order and number. What rules of the whole list ask for stands at
    /// its end, so that it is accepted.
    Texts randomList() {
        list_.clear();
        if (flag())
            list_ = {"StandardSyntax", "1.0"};
        // First, since it takes the names of an earlier key away and leaves its flag.
        if (flag())
            addFiles("FILELIST_DATAFILES");
        for (int left = number(0, 40); left > 0; --left)
            addEntry();
        add({"-SF", "last.q"});
        const bool hasKRange = std::any_of(list_.begin(), list_.end(), isKRange);
        add({"STYLE", oneOf(styles), "ISMULTIGRID", oneOf({"Yes", "No"})});
        add({"DATASTRUCTURE", hasKRange ? "3DW" : oneOf(structures)});
        return list_;
    }

private:
    static bool isKRange(const std::string& text) {
        return text == "KINDEXRANGE" || text == "-KSET";
    }
    void add(const Texts& texts) { list_.insert(list_.end(), texts.begin(), texts.end()); }

    template <std::size_t count>
    const char* oneOf(const char* const (&words)[count]) {
        return words[static_cast<std::size_t>(number(0, static_cast<int>(count) - 1))];
    }

    void addEntry() {
        switch (number(0, 7)) {
        case 0:
        case 1:
            add({oneOf(boolKeys), oneOf({"Yes", "no", "T", "YouBetcha", "On", "true", "y"})});
            break;
        case 2:
            add({oneOf(switches)});
            break;
        case 3:
            add({oneOf({"IINDEXRANGE", "JINDEXRANGE", "KINDEXRANGE", "-ISET", "-JSET", "-KSET"}),
                 oneOf({"1,,1", ",,2", "2,7,3", "5,0,1", ",7,", "3,11,1"})});
            break;
        case 4:
            add({oneOf({"-GF", "FILENAME_GRIDFILE", "-SF", "-NF", "FILENAME_NAMEFILE"}),
                 oneOf({"a.x", "b c.q", "names.nam"})});
            break;
        case 5:
            addFileList();
            break;
        case 6:
            add({"FILEGRIDSET", oneOf({"1-5,7,12", "3", "2,4-9:2"})});
            break;
        case 7:
            addWord();
            break;
        }
    }
    void addFileList() {
        addFiles(oneOf({"FILELIST_GRIDFILES", "FILELIST_SOLUTIONFILES", "FILELIST_FUNCTIONFILES"}));
    }
    void addFiles(const std::string& key) {
        const int count = number(1, 3);
        add({key, std::to_string(count)});
        for (int left = count; left > 0; --left)
            add({oneOf({"a.x", "APPEND.q", " c.f ", "d 1.q", "e.xyz"})});
    }
    void addWord() {
        if (flag())
            add({"STYLE", oneOf(styles)});
        else
            add({"DATASTRUCTURE", oneOf(structures)});
    }

    static constexpr const char* styles[] = {"PLOT3DCLASSIC", "plot3dfunction", "OVERFLOW",
                                             "Swift"};
    static constexpr const char* structures[] = {"1D", "2d", "3DP", "3dw", "UNSTRUCTURED"};
    static constexpr const char* boolKeys[] = {"APPEND",
                                               "ISMULTIGRID",
                                               "AUTODETECT",
                                               "LOADBOUNDARY",
                                               "asciiIsDouble",
                                               "ASCIIHASIBLANK",
                                               "SOLUTIONSSHARESTRUCTURE",
                                               "ASSIGNSTRANDIDS",
                                               "ADDTOEXISTINGSTRANDS",
                                               "UNIFORMGRIDSTRUCTURE",
                                               "ASSIGNNEWSTRANDIDFOREACHTIMESTEP",
                                               "EXTRACTTIMEFROMSOLFILENAMES"};
    static constexpr const char* switches[] = {
        "-M",        "-I",  "-1D", "-2D",      "-3DP", "-3dw", "-UNSTRUCTURED",
        "-FUNCTION", "-IP", "-JP", "-FOREIGN", "-KP",  "-B",   "-f"};

    Texts list_;
};

TEST_F(RandomInstructions, MeanTheSameOnceTheyAreWritten) {
    for (int run = 0; run < 500 && !HasFailure(); ++run) {
        const Texts list = randomList();
        ASSERT_TRUE(parse(list)) << ::testing::PrintToString(list)
                                 << ::testing::PrintToString(messages());
        Plot3DLoadOptions_s first = std::move(options_);
        options_ = defaults();
        EXPECT_TRUE(parseWritten(first)) << ::testing::PrintToString(list);
        expectSame(first);
        releaseLoadOptions(first);
    }
}

} // namespace
} // namespace quorvia::quorutildataio
