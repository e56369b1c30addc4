#include "instructions/Plot3DLoadOptions.h"

#include "support/HostedTest.h"

namespace quorvia::quorutildataio {

bool operator==(const Plot3DIndexRange_s& a, const Plot3DIndexRange_s& b) {
    return a.start == b.start && a.end == b.end && a.skip == b.skip;
}

void PrintTo(const Plot3DIndexRange_s& range, std::ostream* out) {
    *out << range.start << ',' << range.end << ',' << range.skip;
}

namespace {

using testsupport::Texts;

class LoadOptions : public testsupport::GuestTest {};

/// A record in which no field holds its default.
Plot3DLoadOptions_s optionsWithoutDefaults() {
    Plot3DLoadOptions_s options;
    options.append = options.hasGridFiles = options.hasSolutionFiles = true;
    options.hasNameFile = options.loadBoundary = true;
    options.gridFiles = options.solutionFiles = options.functionFiles = {"file"};
    options.nameFile = "kept.nam";
    options.boundaryFile = "kept.fvbnd";
    options.iRange = options.jRange = options.kRange = {2, 7, 3};
    options.gridSet = nullptr;
    options.autoDetect = options.isMultiGrid = options.solutionsShareStructure = false;
    options.style = Plot3DStyle_Swift;
    options.dataStructure = Plot3DDataStructure_2D;
    options.asciiIsDouble = options.asciiHasIBlank = true;
    options.assignStrandIds = options.assignStrandIdsRequested = false;
    options.addToExistingStrands = options.extractTimeFromSolFileNames = true;
    options.uniformGridStructure = options.assignNewStrandIdForEachTimeStep = false;
    options.solutionTimes["file"] = 0.5;
    return options;
}

TEST_F(LoadOptions, DefaultsReplaceWhateverWasThere) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    setLoadOptionDefaults(options);
    const Plot3DIndexRange_s whole = {1, 0, 1};
    EXPECT_EQ(options.iRange, whole);
    EXPECT_EQ(options.jRange, whole);
    EXPECT_EQ(options.kRange, whole);
    EXPECT_EQ(options.style, Plot3DStyle_Classic);
    EXPECT_EQ(options.dataStructure, Plot3DDataStructure_3DWhole);
    EXPECT_TRUE(options.gridFiles.empty() && options.solutionFiles.empty());
    EXPECT_TRUE(options.functionFiles.empty() && options.solutionTimes.empty());
}

TEST_F(LoadOptions, DefaultsOfFlags) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    setLoadOptionDefaults(options);
    EXPECT_TRUE(options.autoDetect && options.isMultiGrid && options.solutionsShareStructure);
    EXPECT_TRUE(options.assignStrandIds && options.assignStrandIdsRequested);
    EXPECT_TRUE(options.uniformGridStructure && options.assignNewStrandIdForEachTimeStep);
    EXPECT_FALSE(options.append || options.hasGridFiles || options.hasSolutionFiles);
    EXPECT_FALSE(options.hasNameFile || options.loadBoundary || options.addToExistingStrands);
    EXPECT_FALSE(options.asciiIsDouble || options.asciiHasIBlank);
    EXPECT_FALSE(options.extractTimeFromSolFileNames);
}

TEST_F(LoadOptions, DefaultsLeaveNameAndBoundaryFile) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    setLoadOptionDefaults(options);
    EXPECT_EQ(options.nameFile, "kept.nam");
    EXPECT_EQ(options.boundaryFile, "kept.fvbnd");
}

TEST_F(LoadOptions, DefaultsForgetAGridSetWithoutReleasingIt) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    const HostSet set = setOf({3});
    options.gridSet = set.get();
    setLoadOptionDefaults(options);
    EXPECT_EQ(options.gridSet, nullptr);
    EXPECT_EQ(membersOf(set.get()), testsupport::Members{3});
}

TEST_F(LoadOptions, ReleaseGivesTheGridSetBackOnce) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    options.gridSet = setOf({3}).release();
    releaseLoadOptions(options);
    EXPECT_EQ(options.gridSet, nullptr);
    releaseLoadOptions(options);
    EXPECT_EQ(host().callCount("QuorUtilSetDealloc"), 1);
}

TEST_F(LoadOptions, ReleaseEmptiesTheListsAndNothingElse) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    releaseLoadOptions(options);
    EXPECT_TRUE(options.gridFiles.empty() && options.solutionFiles.empty());
    EXPECT_TRUE(options.functionFiles.empty());
    EXPECT_EQ(options.nameFile, "kept.nam");
    EXPECT_TRUE(options.hasGridFiles);
    EXPECT_EQ(options.solutionTimes.size(), 1u);
}

TEST_F(LoadOptions, AreUniformBySettingOrWithOneGridFile) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    EXPECT_TRUE(hasUniformGrids(options));
    options.gridFiles = {"a", "b"};
    EXPECT_FALSE(hasUniformGrids(options));
    options.uniformGridStructure = true;
    EXPECT_TRUE(hasUniformGrids(options));
}

TEST_F(LoadOptions, HaveASingleGridFileOnlyIfGridFilesWereNamed) {
    Plot3DLoadOptions_s options = optionsWithoutDefaults();
    EXPECT_TRUE(hasSingleGridFile(options));
    options.hasGridFiles = false;
    EXPECT_FALSE(hasSingleGridFile(options));
}

TEST_F(LoadOptions, SelectAllGridsWithoutASetOrWithAnEmptyOne) {
    EXPECT_TRUE(isGridSelected(nullptr, 5));
    EXPECT_TRUE(isGridSelected(setOf({}).get(), 5));
    EXPECT_TRUE(isGridSelected(setOf({3, 5}).get(), 5));
    EXPECT_FALSE(isGridSelected(setOf({3, 5}).get(), 4));
}

TEST(IndexRange, StaysInsideTheDimension) {
    EXPECT_EQ(resolveIndexRange({2, 7, 3}, 11), (Plot3DIndexRange_s{2, 7, 3}));
    EXPECT_EQ(resolveIndexRange({12, 999, 1}, 11), (Plot3DIndexRange_s{11, 11, 1}));
    EXPECT_EQ(resolveIndexRange({11, 11, 5}, 11), (Plot3DIndexRange_s{11, 11, 5}));
}

TEST(IndexRange, CountsFromTheEndBelowOne) {
    EXPECT_EQ(resolveIndexRange({1, 0, 1}, 11), (Plot3DIndexRange_s{1, 11, 1}));
    EXPECT_EQ(resolveIndexRange({-3, -1, 2}, 11), (Plot3DIndexRange_s{8, 10, 2}));
    EXPECT_EQ(resolveIndexRange({-11, -12, 1}, 11), (Plot3DIndexRange_s{0, 1, 1}));
}

} // namespace
} // namespace quorvia::quorutildataio
