// Which zones a boundary file makes: their names, sizes, parents, strands, labels and values.
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {
namespace {

using Strands = std::vector<std::int32_t>;

const Settings onStrands = {{"ASSIGNSTRANDIDS", "Yes"}};
const Settings appended = {{"APPEND", "Yes"}};
const Texts coordinates = {"X", "Y", "Z"};

Settings operator+(Settings settings, const Settings& more) {
    settings.insert(settings.end(), more.begin(), more.end());
    return settings;
}

/// Points of a boundary, ends included, from 1.
struct Part_s {
    std::int32_t iStart, iEnd, jStart, jEnd, kStart, kEnd;
};

class BoundaryZones : public LoadedAddOnTest {
protected:
    BoundaryZones() { files_.grids = {{2, 3, 5}, {5, 3, 7}}; }

    /// The boundary file of a grid file: each line a name's number and its numbers.
    void writeBoundaries(const Texts& names, const Texts& lines,
                         const std::string& gridFile = "a.x") const {
        std::string content = "FVBND 1 4\n";
        for (const std::string& name : names)
            content += name + "\n";
        content += "BOUNDARIES\n";
        for (const std::string& line : lines)
            content += line + "\n";
        directory().write(gridFile + ".fvbnd", content);
    }
    /// A face of either grid.
    void writeTwoFaces() const {
        writeBoundaries({"inlet", "symmetry"}, {"2 2 1 $ 1 $ 1 1 F 0", "1 1 1 1 1 $ 1 $ F 0"});
    }
    static constexpr Part_s symmetryPart = {1, 5, 1, 3, 1, 1}; // of the second grid
    static constexpr Part_s inletPart = {1, 1, 1, 3, 1, 5};    // of the first

    /// The grid file with its boundaries.
    Load_s grid(const Settings& more = {}) const {
        return {.gridFiles = {files_.grid("a.x")},
                .settings = Settings{{"LOADBOUNDARY", "Yes"}} + more};
    }
    /// With a solution for each time, of values 30 above those of the one before.
    Load_s series(const Numbers& times, const Settings& more = onStrands) const {
        Load_s load = grid(more);
        double shift = 0;
        for (const double time : times) {
            const std::string name = "s" + std::to_string(load.solutionFiles.size()) + ".q";
            load.solutionFiles.push_back(files_.solution(name, time, shift));
            shift += 30;
        }
        return load;
    }
    static void thereAre(std::int32_t zones, const Texts& variables) {
        QuorUtilLockOn();
        makeDataSet(variables);
        for (std::int32_t zone = 0; zone < zones; ++zone)
            makeZone(2, 3, 5);
        QuorUtilLockOff();
        host().frame().setPlotType(QuorPlotType_3D);
    }
    /// A load of two time steps in which the n-th call of the operation fails; 0: none does.
    void attemptSeries(const Settings& boundaries, const std::string& operation, std::int64_t n) {
        Load_s load = series({0.25, 0.75});
        load.settings = boundaries + onStrands;
        host().frame().reset();
        host().clearFaults();
        if (n > 0)
            host().failCall(operation, n);
        LoadedAddOnTest::load(load);
    }

    static Texts namesFrom(std::size_t first) {
        const Texts all = zoneNames();
        return {all.begin() + static_cast<std::ptrdiff_t>(first - 1), all.end()};
    }
    static std::vector<std::int64_t> sizeOf(std::int32_t number) {
        return {zone(number).i, zone(number).j, zone(number).k};
    }
    /// 0 for none.
    static std::int32_t parentOf(std::int32_t number) {
        const std::int64_t parent = zone(number).parentZoneId;
        return parent != 0 ? dataSet().zoneNumber(parent) : 0;
    }
    static std::vector<std::int32_t> parents() {
        std::vector<std::int32_t> all;
        for (std::int32_t number = 1; number <= zoneCount(); ++number)
            all.push_back(parentOf(number));
        return all;
    }
    static std::string auxData(std::int32_t number, const std::string& item) {
        const host::AuxData& all = zone(number).auxData;
        const auto found = all.find(item);
        return found != all.end() ? found->second : "(none)";
    }
    /// Every field of the zone is the part of the file's grid, from 0; those of the solution are
    /// shifted.
    static void expectShows(std::int32_t zoneNumber, std::int32_t grid, const Part_s& part,
                            double shift = 0) {
        const auto count = static_cast<std::int32_t>(variableNames().size());
        ASSERT_GE(count, 3);
        for (std::int32_t variable = 0; variable < count; ++variable) {
            const bool isCoordinate = variable < 3;
            Numbers expected;
            for (std::int32_t k = part.kStart - 1; k < part.kEnd; ++k)
                for (std::int32_t j = part.jStart - 1; j < part.jEnd; ++j)
                    for (std::int32_t i = part.iStart - 1; i < part.iEnd; ++i)
                        expected.push_back(
                            placeValue(grid, isCoordinate ? variable : variable - 3, i, j, k) +
                            (isCoordinate ? 0 : shift));
            EXPECT_EQ(values(zoneNumber, variable + 1), expected) << "variable " << variable + 1;
        }
    }

    SmallFiles files_{directory().path().string()};
};

TEST_F(BoundaryZones, StandBehindTheGridsWithTheirRangesInTheirNames) {
    writeTwoFaces();
    expectLoads(grid());
    EXPECT_EQ(zoneNames(), (Texts{"a.x:1", "a.x:2", "symmetry: I[1-5],J[1-3],K[1-1]",
                                  "inlet: I[1-1],J[1-3],K[1-5]"}));
    EXPECT_TRUE(showedProgress("Loading Boundary Zones..."));
}

TEST_F(BoundaryZones, HaveThePointsOfTheirRanges) {
    writeTwoFaces();
    expectLoads(grid());
    EXPECT_EQ(zone(3).type, QuorZoneType_Ordered);
    EXPECT_EQ(sizeOf(3), (std::vector<std::int64_t>{5, 3, 1}));
    EXPECT_EQ(sizeOf(4), (std::vector<std::int64_t>{1, 3, 5}));
    expectShows(3, 1, symmetryPart);
    expectShows(4, 0, inletPart);
}

TEST_F(BoundaryZones, MayBeBlocksLinesAndPoints) {
    writeBoundaries({"wall"},
                    {"1 2 2 5 1 2 3 6 F 0", "1 2 5 5 2 2 1 $ F 0", "1 1 1 1 2 2 5 5 F 0"});
    expectLoads(grid());
    EXPECT_EQ(namesFrom(3), (Texts{"wall: I[2-5],J[1-2],K[3-6]", "wall: I[5-5],J[2-2],K[1-7]",
                                   "wall: I[1-1],J[2-2],K[5-5]"}));
    EXPECT_EQ(sizeOf(4), (std::vector<std::int64_t>{1, 1, 7}));
    expectShows(3, 1, {2, 5, 1, 2, 3, 6});
    expectShows(4, 1, {5, 5, 2, 2, 1, 7});
    expectShows(5, 0, {1, 1, 2, 2, 5, 5});
}

TEST_F(BoundaryZones, TakeEveryOtherPointAndTheLast) {
    files_.grids = {{11, 3, 2}};
    writeBoundaries({"wall"}, {"1 1 1 10 1 $ 1 1 F 0"});
    expectLoads(grid({{"IINDEXRANGE", "1,,2"}}));
    EXPECT_EQ(sizeOf(2), (std::vector<std::int64_t>{6, 3, 1}));
}

TEST_F(BoundaryZones, KnowTheirParents) {
    writeTwoFaces();
    expectLoads(grid());
    EXPECT_EQ(parents(), (std::vector<std::int32_t>{0, 0, 2, 1}));
}

TEST_F(BoundaryZones, OfAGridThatIsNotLoadedHaveNoParent) {
    writeTwoFaces();
    expectLoads(grid({{"FILEGRIDSET", "2"}}));
    EXPECT_EQ(parents(), (std::vector<std::int32_t>{0, 1, 0}));
    expectShows(2, 1, symmetryPart);
    expectShows(3, 0, inletPart);
}

TEST_F(BoundaryZones, AreLabelled) {
    writeTwoFaces();
    expectLoads(grid());
    EXPECT_EQ(auxData(1, "Common.IsBoundaryZone"), "(none)");
    EXPECT_EQ(auxData(3, "Common.IsBoundaryZone"), "Y");
    EXPECT_EQ(auxData(3, "Common.BoundaryCondition"), "Symmetry");
    EXPECT_EQ(auxData(4, "Common.BoundaryCondition"), "Inflow");
}

TEST_F(BoundaryZones, WithoutStrandsComeForTheFirstTimeStep) {
    writeTwoFaces();
    expectLoads(series({0.25, 0.75}, {{"ASSIGNSTRANDIDS", "No"}}));
    EXPECT_EQ(strands(), (Strands{0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(parents(), (Strands{0, 0, 0, 0, 2, 1}));
    expectShows(5, 1, symmetryPart);
}

TEST_F(BoundaryZones, WithStrandsComeForEachTimeStep) {
    writeTwoFaces();
    expectLoads(series({0.25, 0.75, 2.0}));
    EXPECT_EQ(strands(), (Strands{1, 2, 1, 2, 1, 2, 3, 4, 3, 4, 3, 4}));
    EXPECT_EQ(solutionTimes(),
              (Numbers{0.25, 0.25, 0.75, 0.75, 2.0, 2.0, 0.25, 0.25, 0.75, 0.75, 2.0, 2.0}));
    expectShows(9, 1, symmetryPart, 30);
    expectShows(11, 1, symmetryPart, 60);
}

TEST_F(BoundaryZones, HaveTheParentOfTheirTimeStep) {
    writeTwoFaces();
    expectLoads(series({0.25, 0.75}));
    EXPECT_EQ(parents(), (Strands{0, 0, 0, 0, 2, 1, 4, 3}));
}

const Settings joining = {{"ADDTOEXISTINGSTRANDS", "Yes"}};

TEST_F(BoundaryZones, ThatJoinStrandsFollowOnThatOfTheLastZone) {
    thereAre(1, coordinates);
    writeTwoFaces();
    expectLoads(grid(appended + onStrands + joining));
    EXPECT_EQ(strands(), (Strands{0, 1, 2, 3, 4}));
    EXPECT_EQ(parents(), (Strands{0, 0, 0, 3, 2}));
}

TEST_F(BoundaryZones, ThatJoinThoseOfAnEarlierLoadHaveTheSameStrands) {
    writeTwoFaces();
    expectLoads(series({1}));
    expectLoads(series({1}, appended + onStrands + joining));
    EXPECT_EQ(strands(), (Strands{1, 2, 3, 4, 1, 2, 3, 4}));
}

/// An appended grid beside an old zone of a higher strand than the new zones get.
class StrandsOfBoundaryZones : public BoundaryZones {
protected:
    Strands strandsAfter(const Settings& more) {
        thereAre(1, gridAndSolution);
        zone(1).strandId = 7;
        writeTwoFaces();
        expectLoads(series({0.25, 0.75}, appended + onStrands + more));
        return strands();
    }
};

TEST_F(StrandsOfBoundaryZones, FollowOnTheHighestOfAll) {
    EXPECT_EQ(strandsAfter({}), (Strands{7, 8, 9, 8, 9, 10, 11, 10, 11}));
}

// That of the last zone, which in a later step is the last boundary zone of the step before.
TEST_F(StrandsOfBoundaryZones, ThatJoinOthersFollowOnTheLastAndNotTheHighest) {
    EXPECT_EQ(strandsAfter(joining), (Strands{7, 1, 2, 1, 2, 3, 4, 5, 6}));
}

TEST_F(BoundaryZones, StandInTheWayOfAppendedFunctions) {
    writeTwoFaces();
    expectLoads(grid());
    EXPECT_FALSE(load({.functionFiles = {files_.function("a.fun", 2)}, .settings = appended}).ok);
    EXPECT_EQ(messages(),
              Texts{"If you are appending function files, you must append one file per existing "
                    "time step already loaded. Also, any existing boundary zones will not allow "
                    "appending function files. You are appending 1 function files with 2 zones "
                    "each and there exist 4 zones."});
    EXPECT_EQ(variableNames(), coordinates);
}

TEST_F(BoundaryZones, OfAnAppendedGridStandBehindAllZones) {
    thereAre(3, gridAndSolution);
    writeTwoFaces();
    expectLoads(series({1}, appended));
    EXPECT_EQ(parents(), (Strands{0, 0, 0, 0, 0, 5, 4}));
    expectShows(6, 1, symmetryPart);
    expectShows(7, 0, inletPart);
    EXPECT_EQ(host().log().stateChanges.size(), 1U);
}

TEST_F(BoundaryZones, AreNoneForAFileWithoutBoundaries) {
    writeBoundaries({}, {});
    expectLoads(grid());
    EXPECT_EQ(zoneCount(), 2);
}

TEST_F(BoundaryZones, AreNotMadeFromAFileWithAnErrorInIt) {
    writeBoundaries({"wall"}, {"1 1 1 1 1 $ 1 $ F 0", "1 2 1 6 1 $ 1 $ F 0"});
    const Load_s load = grid();
    EXPECT_TRUE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(zoneCount(), 2);
    EXPECT_EQ(messages(),
              Texts{"Error reading Boundary File: " + load.gridFiles.front() +
                    ".fvbnd.\nLine: 1 2 1 6 1 $ 1 $ F 0\nCheck that version is 1.4 and file is "
                    "correctly formatted.\nBoundary zones will not be loaded."});
}

TEST_F(BoundaryZones, OfAnUnstructuredGridAreRefused) {
    files_.layout = Layout_e::Unstructured;
    files_.grids = {{7, 5, 0}};
    writeBoundaries({"wall"}, {"1 1 1 $ 1 $ 1 $ F 0"});
    EXPECT_TRUE(load(grid()).ok);
    EXPECT_EQ(zoneCount(), 1);
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(BoundaryZones, MadeBeforeTheHostRefusesOneStay) {
    writeTwoFaces();
    const Load_s load = grid();
    host().failCall("QuorUtilDataSetAddZoneX", 4);
    EXPECT_TRUE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(namesFrom(3), Texts{"symmetry: I[1-5],J[1-3],K[1-1]"});
    EXPECT_EQ(messages(), Texts{"Not all boundary zones could be loaded.\nFile: " +
                                load.gridFiles.front() + ".fvbnd"});
}

TEST_F(BoundaryZones, LeaveTheLoadSoundWhateverTheHostRefuses) {
    writeTwoFaces();
    for (const std::string& operation : host::ReferenceHost::operationsThatCanFail()) {
        attemptSeries({}, operation, 0);
        std::int64_t n = host().callCount(operation); // calls of a load without boundaries
        do {
            attemptSeries({{"LOADBOUNDARY", "Yes"}}, operation, ++n);
            host().checkForLeaks();
            ASSERT_EQ(host().log().violations, Texts()) << operation << ' ' << n;
            ASSERT_EQ(host().lockDepth(), 0) << operation << ' ' << n;
        } while (host().callCount(operation) >= n);
    }
}

// What the load numbers its boundary zones from must be known.
TEST_F(BoundaryZones, LeaveTheGridZonesAloneIfTheHostDoesNotTellHowManyThereAre) {
    writeTwoFaces();
    const Settings boundaries = {{"LOADBOUNDARY", "Yes"}};
    attemptSeries(boundaries, "QuorUtilDataSetGetInfo", 0);
    const std::int64_t calls = host().callCount("QuorUtilDataSetGetInfo");
    for (std::int64_t n = 1; n <= calls; ++n) {
        attemptSeries(boundaries, "QuorUtilDataSetGetInfo", n);
        for (std::int32_t number = 1; number <= zoneCount(); ++number)
            EXPECT_EQ(auxData(number, "Common.IsBoundaryZone") == "Y", parentOf(number) != 0)
                << "zone " << number << ", call " << n;
    }
}

} // namespace
} // namespace quorvia::testsupport
