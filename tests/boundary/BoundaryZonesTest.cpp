// Which zones a boundary file makes: their names, sizes, parents, strands and labels.
#include "BoundaryFixture.h"

#include <new>

namespace quorvia::testsupport {
namespace {

class BoundaryZones : public BoundaryTest {
protected:
    std::string grid = gridFile("a.x", parentGrids);

    /// One time step for each time, on one grid file.
    void useSeries(const std::vector<double>& times) {
        Texts solutions;
        for (const double time : times)
            solutions.push_back(
                solutionFile("s" + std::to_string(solutions.size()) + ".q", parentGrids, time));
        useFiles({grid}, solutions);
        options.assignStrandIds = options.assignStrandIdsRequested = true;
    }
    /// A face of either grid.
    void useTwoFaces() {
        writeBoundaries("a.x", {"inlet", "symmetry"},
                        {"2 2 1 $ 1 $ 1 1 F 0", "1 1 1 1 1 $ 1 $ F 0"});
    }
    /// A load of two time steps in which the n-th call of the operation fails; 0: none does.
    void attemptSeries(const std::string& operation, std::int64_t n) {
        useSeries({0.25, 0.75});
        host().frame().reset();
        host().clearFaults();
        if (n > 0)
            host().failCall(operation, n);
        try {
            load();
        } catch (const std::bad_alloc&) { // a load may run out of memory
        }
    }
    static Texts namesFrom(std::int32_t first) {
        Texts names;
        for (std::int32_t number = first; number <= zoneCount(); ++number)
            names.push_back(zone(number).name);
        return names;
    }
};

TEST_F(BoundaryZones, StandBehindTheGridsWithTheirRangesInTheirNames) {
    useFiles({grid});
    useTwoFaces();
    loadWell();
    EXPECT_EQ(namesFrom(3),
              (Texts{"symmetry: I[1-5],J[1-3],K[1-1]", "inlet: I[1-1],J[1-3],K[1-5]"}));
    EXPECT_TRUE(showedProgress("Loading Boundary Zones..."));
}

TEST_F(BoundaryZones, HaveThePointsOfTheirRanges) {
    useFiles({grid});
    useTwoFaces();
    loadWell();
    EXPECT_EQ(zone(3).type, QuorZoneType_Ordered);
    EXPECT_EQ((std::vector<std::int64_t>{zone(3).i, zone(3).j, zone(3).k}),
              (std::vector<std::int64_t>{5, 3, 1}));
    EXPECT_EQ((std::vector<std::int64_t>{zone(4).i, zone(4).j, zone(4).k}),
              (std::vector<std::int64_t>{1, 3, 5}));
}

TEST_F(BoundaryZones, MayBeOneLineOfPoints) {
    useFiles({grid});
    writeBoundaries("a.x", {"wall"}, {"1 2 5 5 2 2 1 $ F 0"});
    loadWell();
    EXPECT_EQ(zone(3).i, 1);
    EXPECT_EQ(zone(3).j, 1);
    EXPECT_EQ(zone(3).k, 7);
}

TEST_F(BoundaryZones, TakeEveryOtherPointAndTheLast) {
    useFiles({gridFile("long.x", {{11, 3, 2}})});
    writeBoundaries("long.x", {"wall"}, {"1 1 1 10 1 $ 1 1 F 0"});
    options.iRange.skip = 2;
    loadWell();
    EXPECT_EQ(zone(2).i, 6);
    EXPECT_EQ(zone(2).j, 3);
}

TEST_F(BoundaryZones, KnowTheirParents) {
    useFiles({grid});
    useTwoFaces();
    loadWell();
    EXPECT_EQ(parentOf(3), 2);
    EXPECT_EQ(parentOf(4), 1);
}

TEST_F(BoundaryZones, OfAGridThatIsNotLoadedHaveNoParent) {
    useFiles({grid});
    selectGrids({2});
    useTwoFaces();
    loadWell();
    ASSERT_EQ(zoneCount(), 3);
    EXPECT_EQ(parentOf(2), 1);
    EXPECT_EQ(parentOf(3), 0);
}

TEST_F(BoundaryZones, AreLabelled) {
    useFiles({grid});
    useTwoFaces();
    loadWell();
    EXPECT_EQ(auxData(1, "Common.IsBoundaryZone"), "(none)");
    EXPECT_EQ(auxData(3, "Common.IsBoundaryZone"), "Y");
    EXPECT_EQ(auxData(3, "Common.BoundaryCondition"), "Symmetry");
    EXPECT_EQ(auxData(4, "Common.BoundaryCondition"), "Inflow");
}

TEST_F(BoundaryZones, WithoutStrandsComeForTheFirstTimeStep) {
    useSeries({0.25, 0.75});
    options.assignStrandIds = options.assignStrandIdsRequested = false;
    useTwoFaces();
    loadWell();
    EXPECT_EQ(zoneCount(), 4 + 2);
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(parentOf(5), 2);
}

TEST_F(BoundaryZones, WithStrandsComeForEachTimeStep) {
    useSeries({0.25, 0.75, 2.0});
    useTwoFaces();
    loadWell();
    ASSERT_EQ(zoneCount(), 6 + 6);
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 1, 2, 1, 2, 3, 4, 3, 4, 3, 4}));
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0.25, 0.25, 0.75, 0.75, 2.0, 2.0, 0.25, 0.25,
                                                    0.75, 0.75, 2.0, 2.0}));
}

TEST_F(BoundaryZones, HaveTheParentOfTheirTimeStep) {
    useSeries({0.25, 0.75});
    useTwoFaces();
    loadWell();
    EXPECT_EQ(parentOf(5), 2);
    EXPECT_EQ(parentOf(6), 1);
    EXPECT_EQ(parentOf(7), 4);
    EXPECT_EQ(parentOf(8), 3);
}

TEST_F(BoundaryZones, ThatJoinStrandsFollowOnThatOfTheLastZone) {
    makeOldDataSet({"X", "Y", "Z"}, 1);
    host().frame().setPlotType(QuorPlotType_3D);
    useFiles({grid});
    useTwoFaces();
    options.append = true;
    options.assignStrandIds = options.assignStrandIdsRequested = true;
    options.addToExistingStrands = true;
    loadWell();
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{0, 1, 2, 3, 4}));
    EXPECT_EQ(parentOf(4), 3);
    EXPECT_EQ(parentOf(5), 2);
}

/// An appended grid beside an old zone of a higher strand than the new zones get.
class StrandsOfBoundaryZones : public BoundaryZones {
protected:
    StrandsOfBoundaryZones() {
        makeOldDataSet(gridAndSolution, 1);
        host().frame().setPlotType(QuorPlotType_3D);
        host().frame().dataSet()->zone(1)->strandId = 7;
        useSeries({0.25, 0.75});
        useTwoFaces();
        options.append = true;
    }
};

TEST_F(StrandsOfBoundaryZones, FollowOnTheHighestOfAll) {
    loadWell();
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{7, 8, 9, 8, 9, 10, 11, 10, 11}));
}

// That of the last zone, which in a later step is the last boundary zone of the step before.
TEST_F(StrandsOfBoundaryZones, ThatJoinOthersFollowOnTheLastAndNotTheHighest) {
    options.addToExistingStrands = true;
    loadWell();
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{7, 1, 2, 1, 2, 3, 4, 5, 6}));
}

TEST_F(BoundaryZones, StandInTheWayOfAppendedFunctions) {
    useFiles({grid});
    useTwoFaces();
    loadWell();
    useFiles({}, {}, {functionFile("a.fun", parentGrids, 2)});
    options.append = true;
    options.loadBoundary = false;
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(),
              Texts{"If you are appending function files, you must append one file per existing "
                    "time step already loaded. Also, any existing boundary zones will not allow "
                    "appending function files. You are appending 1 function files with 2 zones "
                    "each and there exist 4 zones."});
}

TEST_F(BoundaryZones, OfAnAppendedGridStandBehindAllZones) {
    makeOldDataSet({"X", "Y", "Z"}, 3);
    host().frame().setPlotType(QuorPlotType_3D);
    useFiles({grid});
    useTwoFaces();
    options.append = true;
    loadWell();
    ASSERT_EQ(zoneCount(), 3 + 2 + 2);
    EXPECT_EQ(parentOf(6), 5);
    expectShows(6, 5, {1, 5, 1, 3, 1, 1});
    ASSERT_EQ(host().log().stateChanges.size(), 1U);
}

TEST_F(BoundaryZones, AreNoneForAFileWithoutBoundaries) {
    useFiles({grid});
    writeBoundaries("a.x", {}, {});
    loadWell();
    EXPECT_EQ(zoneCount(), 2);
}

TEST_F(BoundaryZones, AreNotMadeFromAFileWithAnErrorInIt) {
    useFiles({grid});
    writeBoundaries("a.x", {"wall"}, {"1 1 1 1 1 $ 1 $ F 0", "1 2 1 6 1 $ 1 $ F 0"});
    EXPECT_TRUE(load());
    EXPECT_EQ(zoneCount(), 2);
    EXPECT_EQ(messages(),
              Texts{"Error reading Boundary File: " + grid +
                    ".fvbnd.\nLine: 1 2 1 6 1 $ 1 $ F 0\nCheck that version is 1.4 and file is "
                    "correctly formatted.\nBoundary zones will not be loaded."});
}

TEST_F(BoundaryZones, OfAnUnstructuredGridAreRefused) {
    useFiles({gridFile("u.x", {{7, 5, 0}}, Layout_e::Unstructured)});
    writeBoundaries("u.x", {"wall"}, {"1 1 1 $ 1 $ 1 $ F 0"});
    EXPECT_TRUE(load());
    EXPECT_EQ(zoneCount(), 1);
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(BoundaryZones, MadeBeforeTheHostRefusesOneStay) {
    useFiles({grid});
    useTwoFaces();
    host().failCall("QuorUtilDataSetAddZoneX", 4);
    EXPECT_TRUE(load());
    EXPECT_EQ(namesFrom(3), Texts{"symmetry: I[1-5],J[1-3],K[1-1]"});
    EXPECT_EQ(messages(),
              Texts{"Not all boundary zones could be loaded.\nFile: " + grid + ".fvbnd"});
}

TEST_F(BoundaryZones, LeaveTheLoadSoundWhateverTheHostRefuses) {
    useTwoFaces();
    for (const std::string& operation : host::ReferenceHost::operationsThatCanFail()) {
        options.loadBoundary = false;
        attemptSeries(operation, 0);
        std::int64_t n = host().callCount(operation); // calls of a load without boundaries
        do {
            options.loadBoundary = true;
            attemptSeries(operation, ++n);
            host().checkForLeaks();
            ASSERT_EQ(host().log().violations, Texts()) << operation << ' ' << n;
            ASSERT_EQ(host().lockDepth(), 0) << operation << ' ' << n;
        } while (host().callCount(operation) >= n);
    }
}

// What the load numbers its boundary zones from must be known.
TEST_F(BoundaryZones, LeaveTheGridZonesAloneIfTheHostDoesNotTellHowManyThereAre) {
    useTwoFaces();
    attemptSeries("QuorUtilDataSetGetInfo", 0);
    const std::int64_t calls = host().callCount("QuorUtilDataSetGetInfo");
    for (std::int64_t n = 1; n <= calls; ++n) {
        attemptSeries("QuorUtilDataSetGetInfo", n);
        for (std::int32_t number = 1; number <= zoneCount(); ++number)
            EXPECT_EQ(auxData(number, "Common.IsBoundaryZone") == "Y", parentOf(number) != 0)
                << "zone " << number << ", call " << n;
    }
}

} // namespace
} // namespace quorvia::testsupport
