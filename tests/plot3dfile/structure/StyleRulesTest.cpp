#include "plot3dfile/layout/StyleRules.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "instructions/InstructionWords.h"
#include "support/SmallFiles.h"

namespace quorvia::quorutildataio {
namespace {

using plot3dwriter::FileKind_e;

/// The kind of file that the writer writes of a style. The compiler asks for every style here,
/// which makes the walks of this test whole.
std::optional<FileKind_e> writtenKind(Plot3DStyle_e style) {
    switch (style) {
    case Plot3DStyle_Classic:
        return FileKind_e::ClassicSolution;
    case Plot3DStyle_Function:
        return FileKind_e::Function;
    case Plot3DStyle_Overflow:
        return FileKind_e::OverflowSolution;
    case Plot3DStyle_Swift:
        return FileKind_e::SwiftSolution;
    case Plot3DStyle_Unknown:
        break;
    }
    return std::nullopt;
}

std::vector<Plot3DStyle_e> everyStyle() {
    std::vector<Plot3DStyle_e> styles;
    for (std::int32_t value = 0; value < Plot3DStyle_Unknown; ++value)
        if (writtenKind(static_cast<Plot3DStyle_e>(value)))
            styles.push_back(static_cast<Plot3DStyle_e>(value));
    return styles;
}

TEST(StyleRules, HaveARowForEveryStyleInTheOrderOfTrials) {
    std::vector<Plot3DStyle_e> rows;
    for (const StyleRules_s& rules : allStyleRules())
        rows.push_back(rules.style);
    EXPECT_EQ(rows, everyStyle());
}

TEST(StyleRules, GiveTheRowThatIsAskedFor) {
    for (const Plot3DStyle_e style : everyStyle())
        EXPECT_EQ(styleRules(style).style, style);
    EXPECT_EQ(styleRules(Plot3DStyle_Unknown).style, Plot3DStyle_Unknown);
}

TEST(StyleRules, HaveAKindOfTestFileEach) {
    std::vector<FileKind_e> kinds = {FileKind_e::Grid};
    for (const StyleRules_s& rules : allStyleRules())
        kinds.push_back(writtenKind(rules.style).value());
    EXPECT_TRUE(std::is_permutation(kinds.begin(), kinds.end(), std::begin(testsupport::everyKind),
                                    std::end(testsupport::everyKind)));
}

TEST(StyleRules, HaveWordsAndCaptionsInTheOrderOfTheMenu) {
    const std::vector<Plot3DStyle_e> styles = everyStyle();
    ASSERT_EQ(std::size(styleWords), styles.size());
    for (std::size_t place = 0; place < styles.size(); ++place) {
        EXPECT_EQ(styleWords[place].value, styles[place]);
        EXPECT_EQ(static_cast<std::size_t>(styles[place]), place);
        EXPECT_NE(std::string(styleWords[place].word), "");
        EXPECT_NE(std::string(styleWords[place].caption), "");
    }
}

// A style with scalars that none of them is the time of would give every time step the time 0.
TEST(StyleRules, HaveExactlyOneTimeAmongTheScalars) {
    const auto isTime = [](const StyleScalar_s& scalar) { return scalar.itemName == nullptr; };
    for (const StyleRules_s& rules : allStyleRules()) {
        const auto times = std::count_if(rules.scalars.begin(), rules.scalars.end(), isTime);
        EXPECT_EQ(times, rules.scalars.empty() ? 0 : 1) << findWord(styleWords, rules.style);
    }
}

// The first letter of its name makes a scalar an integer, and the size test knows of one alone.
TEST(StyleRules, HaveOneIntegerWithSpeciesAndNoneWithout) {
    const auto isInteger = [](const StyleScalar_s& scalar) {
        return scalar.itemName != nullptr && scalar.itemName[0] >= 'I' && scalar.itemName[0] <= 'N';
    };
    for (const StyleRules_s& rules : allStyleRules()) {
        const auto integers = std::count_if(rules.scalars.begin(), rules.scalars.end(), isInteger);
        EXPECT_EQ(integers, rules.hasSpecies ? 1 : 0) << findWord(styleWords, rules.style);
    }
}

// Four scalars are all that a 1-D file has.
TEST(StyleRules, HaveFourScalarsAtLeastWhereThereAreAnyIn1D) {
    for (const StyleRules_s& rules : allStyleRules()) {
        const bool hasFewer = !rules.scalars.empty() && rules.scalars.size() < 4;
        EXPECT_FALSE(rules.existsIn1D && hasFewer) << findWord(styleWords, rules.style);
    }
}

TEST(StyleRules, OfAGridFileAreThoseOfNoStyle) {
    Plot3DFile_s file;
    file.style = Plot3DStyle_Overflow;
    EXPECT_FALSE(hasScalars(file));
    EXPECT_TRUE(styleRulesOf(file).existsIn1D);
    file.isSolutionOrFunction = true;
    EXPECT_TRUE(hasScalars(file));
    EXPECT_FALSE(styleRulesOf(file).existsIn1D);
}

TEST(StyleRules, CountTheGammasOfSpecies) {
    const StyleRules_s& overflow = styleRules(Plot3DStyle_Overflow);
    EXPECT_EQ(scalarCount(overflow, 0), 11 + 2);
    EXPECT_EQ(scalarCount(overflow, 5), 11 + 5);
    EXPECT_EQ(scalarCount(styleRules(Plot3DStyle_Swift), 5), 5);
    EXPECT_EQ(scalarCount(styleRules(Plot3DStyle_Function), 5), 0);
}

TEST(StyleRules, KeepAnAbsurdCountOfSpeciesFromWrapping) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(scalarCount(styleRules(Plot3DStyle_Overflow), most), most);
}

TEST(LayoutWords, StandInTheOrderOfTheMenu) {
    for (std::size_t place = 0; place < std::size(dataStructureWords); ++place)
        EXPECT_EQ(static_cast<std::size_t>(dataStructureWords[place].value), place);
}

} // namespace
} // namespace quorvia::quorutildataio
