// The fields of boundary zones: the values of the parent's part, whatever the files look like, and
// what becomes of them when something goes wrong.
#include "BoundaryFixture.h"

#include <filesystem>
#include <tuple>

#include "boundary/BoundaryFields.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::ByteOrder_e;
using plot3dwriter::Encoding_e;
using plot3dwriter::FileForm_s;
using plot3dwriter::Precision_e;

const GridList twoGrids = {{2, 3, 5}, {5, 3, 7}};
const Part_s bottom = {1, 5, 1, 3, 1, 1}; // of the second grid
const Part_s inner = {2, 4, 2, 3, 3, 6};

using Form = std::tuple<Encoding_e, ByteOrder_e, Precision_e, std::int32_t>;

class BoundaryFieldForms : public BoundaryTest, public ::testing::WithParamInterface<Form> {
protected:
    BoundaryFieldForms() {
        std::tie(form.encoding, form.byteOrder, form.precision, form.markerBytes) = GetParam();
        options.asciiIsDouble = form.precision == Precision_e::Double;
        options.asciiHasIBlank = true;
    }
};

TEST_P(BoundaryFieldForms, HaveTheValuesOfTheirParents) {
    useFiles({iblankGridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 0.25)});
    writeBoundaries("a.x", {"wall"},
                    {"1 2 1 $ 1 $ 1 1 F 0", "1 2 2 4 2 3 3 6 F 0", "1 1 2 2 1 3 5 5 F 0"});
    loadWell();
    ASSERT_EQ(variableNames().size(), 9U);
    EXPECT_EQ(fieldType(3, 4), QuorFieldDataType_Int32);
    EXPECT_EQ(state(3, 1), host::FieldState_e::Deferred);
    expectShows(3, 2, bottom);
    expectShows(4, 2, inner);
    expectShows(5, 1, {2, 2, 1, 3, 5, 5});
}

INSTANTIATE_TEST_SUITE_P(
    All, BoundaryFieldForms,
    ::testing::Values(Form{Encoding_e::Text, ByteOrder_e::Little, Precision_e::Single, 4},
                      Form{Encoding_e::Text, ByteOrder_e::Little, Precision_e::Double, 4},
                      Form{Encoding_e::Binary, ByteOrder_e::Little, Precision_e::Single, 4},
                      Form{Encoding_e::Binary, ByteOrder_e::Big, Precision_e::Single, 4},
                      Form{Encoding_e::Binary, ByteOrder_e::Little, Precision_e::Double, 4},
                      Form{Encoding_e::Binary, ByteOrder_e::Big, Precision_e::Double, 4},
                      Form{Encoding_e::Fortran, ByteOrder_e::Little, Precision_e::Single, 4},
                      Form{Encoding_e::Fortran, ByteOrder_e::Big, Precision_e::Single, 4},
                      Form{Encoding_e::Fortran, ByteOrder_e::Little, Precision_e::Double, 4},
                      Form{Encoding_e::Fortran, ByteOrder_e::Big, Precision_e::Double, 8},
                      Form{Encoding_e::Fortran, ByteOrder_e::Little, Precision_e::Single, 8}));

class BoundaryFields : public BoundaryTest {
protected:
    std::string grid = gridFile("a.x", twoGrids);

    void useOneFace() { writeBoundaries("a.x", {"wall"}, {"1 2 1 $ 1 $ 1 1 F 0"}); }
    void useSeries() {
        useFiles({grid},
                 {solutionFile("a.q", twoGrids, 0.25), solutionFile("b.q", twoGrids, 0.75)});
        options.assignStrandIds = options.assignStrandIdsRequested = true;
        useOneFace();
    }
};

TEST_F(BoundaryFields, OfAPlaneHaveTheValuesOfTheirParents) {
    useFiles({gridFile("flat.x", {{5, 3}, {7, 2}}, Layout_e::TwoD)},
             {solutionFile("flat.q", {{5, 3}, {7, 2}}, 0.25, Layout_e::TwoD)});
    writeBoundaries("flat.x", {"wall"}, {"1 1 1 5 3 3 1 1 F 0"});
    loadWell();
    expectShows(3, 1, {1, 5, 3, 3, 1, 1});
}

TEST_F(BoundaryFields, FollowTheStridesOfTheLoad) {
    useFiles({gridFile("long.x", {{11, 7, 5}})}, {solutionFile("long.q", {{11, 7, 5}}, 0.25)});
    writeBoundaries("long.x", {"wall"}, {"1 1 1 10 2 7 1 5 F 0"});
    loadWell();
    const Numbers expected = partOf(1, 5, {1, 10, 2, 7, 1, 5}, 2, 3, 5);
    options.iRange.skip = 2;
    options.jRange.skip = 3;
    options.kRange.skip = 5;
    loadWell();
    EXPECT_EQ(values(2, 5), expected);
    EXPECT_EQ(expected.size(), 6U * 3U * 2U);
}

TEST_F(BoundaryFields, OfEachTimeStepHaveItsValues) {
    useSeries();
    loadWell();
    ASSERT_EQ(zoneCount(), 6);
    expectShows(5, 2, bottom);
    expectShows(6, 4, bottom);
}

TEST_F(BoundaryFields, OfLaterTimeStepsShareTheGridWithTheFirst) {
    useSeries();
    loadWell();
    EXPECT_EQ(holder(6, 1), 5);
    EXPECT_EQ(holder(6, 3), 5);
    EXPECT_EQ(holder(6, 4), 6);
}

TEST_F(BoundaryFields, OfLaterTimeStepsHaveTheirOwnGridWhereSharingIsNotAllowed) {
    host().settings().sharingAllowed = false;
    useSeries();
    loadWell();
    EXPECT_EQ(holder(6, 1), 6);
    EXPECT_EQ(state(6, 1), host::FieldState_e::Deferred);
    expectShows(6, 4, bottom);
}

TEST_F(BoundaryFields, OfLaterTimeStepsShareTheGridWholeOrNotAtAll) {
    for (const std::int64_t var : {1, 2, 3}) {
        useSeries();
        host().clearFaults();
        host().failCall("QuorUtilDataValueIsSharingOk", var);
        loadWell();
        for (std::int32_t each = 1; each <= 3; ++each)
            EXPECT_EQ(holder(6, each), 6) << var;
        expectShows(6, 4, bottom);
    }
}

TEST_F(BoundaryFields, OfLaterTimeStepsShareTheIBlankToo) {
    iblankGridFile("a.x", twoGrids);
    useSeries();
    loadWell();
    EXPECT_EQ(holder(6, 4), 5);
    EXPECT_EQ(holder(6, 5), 6);
    expectShows(6, 4, bottom);
}

TEST_F(BoundaryFields, AlsoComeFromSolutionsThatAreScanned) {
    options.solutionsShareStructure = false;
    useSeries();
    loadWell();
    expectShows(6, 4, bottom);
}

TEST_F(BoundaryFields, ComeFromTheFunctionFileIfThereIsNoSolution) {
    useFiles({grid}, {}, {functionFile("a.fun", twoGrids, 2)});
    useOneFace();
    loadWell();
    ASSERT_EQ(variableNames().size(), 5U);
    expectShows(3, 2, bottom);
}

TEST_F(BoundaryFields, ShowTheLastOfSeveralFunctionFilesInTheFirstsPlace) {
    const std::string covered = functionFile("a.fun", twoGrids, 2);
    useFiles({grid}, {}, {covered, functionFile("b.fun", twoGrids, 2)});
    options.assignStrandIds = options.assignStrandIdsRequested = false;
    useOneFace();
    loadWell();
    ASSERT_EQ(variableNames().size(), 7U);
    std::filesystem::remove(covered);
    EXPECT_EQ(values(3, 4), partOf(2, 6, bottom));
    EXPECT_EQ(values(3, 5), partOf(2, 7, bottom));
    EXPECT_EQ(state(3, 6), host::FieldState_e::Empty);
}

TEST_F(BoundaryFields, StayEmptyForFunctionsBesideASolution) {
    useFiles({grid}, {solutionFile("a.q", twoGrids, 0.25)}, {functionFile("a.fun", twoGrids, 2)});
    useOneFace();
    loadWell();
    EXPECT_EQ(state(3, 8), host::FieldState_e::Deferred);
    EXPECT_EQ(state(3, 9), host::FieldState_e::Empty);
}

TEST_F(BoundaryFields, CostNoFileAccessUntilTheyAreWanted) {
    useFiles({grid});
    useOneFace();
    loadWell();
    std::filesystem::remove(grid);
    EXPECT_EQ(state(3, 1), host::FieldState_e::Deferred);
    EXPECT_EQ(host().fetch(3, 1).error, "The file " + grid + " could not be opened.");
    gridFile("a.x", twoGrids);
    expectShows(3, 2, bottom);
}

TEST_F(BoundaryFields, MayBeDroppedAndReadAgain) {
    useFiles({grid});
    useOneFace();
    loadWell();
    const Numbers first = values(3, 2);
    ASSERT_TRUE(host().unload(3, 2));
    EXPECT_EQ(values(3, 2), first);
}

TEST_F(BoundaryFields, OfAFileThatWasCutShortAreRefusedWithoutAMessage) {
    useFiles({grid});
    useOneFace();
    loadWell();
    shorten(grid, 4);
    EXPECT_TRUE(host().fetch(3, 2).ok);
    EXPECT_FALSE(host().fetch(3, 3).ok);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(BoundaryFields, HoldNothingAfterAnInterruptedFetch) {
    useFiles({grid});
    useOneFace();
    loadWell();
    host().clearFaults();
    host().failCall("QuorUtilDataValueArraySetByRef", 1);
    EXPECT_FALSE(host().fetch(3, 1).ok);
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(values(3, 1), partOf(2, 1, bottom));
}

TEST_F(BoundaryFields, AreRefusedWithoutMemory) {
    useFiles({grid});
    useOneFace();
    loadWell();
    for (const std::int64_t n : {1, 2}) {
        host().clearFaults();
        host().failCall("QuorUtilStringAlloc", n);
        EXPECT_FALSE(host().fetch(3, 1).ok) << n;
    }
    host().clearFaults();
    EXPECT_TRUE(host().fetch(3, 1).ok);
}

TEST_F(BoundaryFields, AreFoundAgainAfterZonesWereDeleted) {
    useFiles({grid});
    useOneFace();
    loadWell();
    const Numbers expected = partOf(2, 3, bottom);
    host().frame().dataSet()->deleteZones({1});
    EXPECT_EQ(values(2, 3), expected);
}

TEST_F(BoundaryFields, EndOnceWithTheDataSet) {
    useSeries();
    loadWell();
    host().frame().reset();
    host().checkForLeaks(); // a block that ended twice would be a violation at once
    EXPECT_EQ(host().log().violations, Texts());
}

// The record tells the dimensions of every grid of the file.
TEST_F(BoundaryFields, OfOneFileShareItsRecord) {
    useSeries();
    writeBoundaries("a.x", {"wall"}, {"1 2 1 $ 1 $ 1 1 F 0", "1 1 1 1 1 $ 1 $ F 0"});
    loadWell();
    const auto recordOfField = [](std::int32_t zoneNumber, std::size_t var) {
        const void* data = zone(zoneNumber).fields[var].storage->deferral()->clientData();
        return static_cast<const quorutildataio::Plot3DBoundaryClientData_s*>(data)->file.get();
    };
    std::int32_t first = 1;
    while (parentOf(first) == 0)
        ++first;
    ASSERT_LT(first, zoneCount());
    EXPECT_EQ(recordOfField(first, 0), recordOfField(first + 1, 2));
    EXPECT_EQ(recordOfField(first, 4), recordOfField(first + 1, 5));
    EXPECT_NE(recordOfField(first, 0), recordOfField(first, 4));
}

TEST_F(BoundaryFields, NeedTheFilesPositions) {
    const quorutildataio::Plot3DFilePtr file =
        recordOf(grid, 2, quorutildataio::Plot3DStyle_Classic);
    file->numVars = 3;
    quorutildataio::Plot3DBoundary_s boundary;
    boundary.gridNumber = 2;
    makeOldDataSet({"X", "Y", "Z"}, 1);
    const HostLock lock(quorutildataio::addOnID);
    EXPECT_FALSE(quorutildataio::setUpBoundaryVars(*file, quorutildataio::copyForFields(*file), 1,
                                                   1, 1, boundary, 1, 3, 1));
}

} // namespace
} // namespace quorvia::testsupport
