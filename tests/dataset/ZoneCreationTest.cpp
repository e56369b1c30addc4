#include "dataset/zones/ZoneCreation.h"
#include "dataset/zones/ZoneDimensions.h"

#include "DatasetFixture.h"
#include "dataset/items/CurrentTask.h"
#include "dataset/ondemand/Plot3DVarRepo.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

using Numbers32 = std::vector<std::int32_t>;

const GridList fourGrids = {{2, 3, 5}, {3, 2, 2}, {2, 2, 7}, {5, 2, 3}};
const Texts flowVariables = {"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"};

class ZoneCreation : public DatasetTest {
protected:
    Plot3DFile_s& grid(const std::string& name, const GridList& grids) {
        return write(name, describeGrid(grids));
    }
    Plot3DFile_s& solution(const std::string& name, const GridList& grids, double time = 0.0) {
        return write(name, describeSolution(grids, time));
    }
    /// Sizes of the zone of a grid under the I range.
    std::int64_t iMaxOf(std::int32_t iPoints, Plot3DIndexRange_s range) {
        Plot3DFile_s& file = recordOf("x");
        file.dataStructure = Plot3DDataStructure_3DWhole;
        file.gridDims = {{iPoints, 3, 5}};
        options.iRange = range;
        const Plot3DZoneDims_s dims = zoneDimensionsForGrid(options, step(&file), 0, 1);
        EXPECT_EQ(dims.j, 3);
        EXPECT_EQ(dims.k, 5);
        return dims.i;
    }
};

TEST_F(ZoneCreation, NamesZonesByTheGridsOfTheFile) {
    selectGrids({2, 4});
    ASSERT_TRUE(load({step(&grid("wing.x", fourGrids))}));
    EXPECT_EQ(zoneNames(), (Texts{"wing.x:2", "wing.x:4"}));
    EXPECT_EQ(membersOf(zonesAdded.get()), (std::vector<std::int64_t>{1, 2}));
    EXPECT_EQ(zone(2).i, 5);
    EXPECT_EQ(zone(2).j, 2);
    EXPECT_EQ(zone(2).k, 3);
}

TEST_F(ZoneCreation, NotesWhichGridOfTheLoadAZoneCameFrom) {
    Plot3DFile_s& x = grid("x", fourGrids);
    selectGrids({2, 4});
    ASSERT_TRUE(
        load({step(&x, &solution("q1", fourGrids, 1)), step(&x, &solution("q2", fourGrids, 2))}));
    EXPECT_EQ(Numbers32(parentZones.begin(), parentZones.begin() + 5), (Numbers32{2, 4, 6, 8, 0}));
}

TEST_F(ZoneCreation, EndsARangeAtTheLastIndex) {
    EXPECT_EQ(iMaxOf(10, {1, 0, 1}), 10);
    EXPECT_EQ(iMaxOf(10, {1, 11, 1}), 10);
    EXPECT_EQ(iMaxOf(10, {4, 7, 1}), 4);
}

TEST_F(ZoneCreation, CountsTheEndOfARangeInAnyCase) {
    EXPECT_EQ(iMaxOf(10, {1, 10, 3}), 4);
    EXPECT_EQ(iMaxOf(10, {1, 9, 3}), 4);
    EXPECT_EQ(iMaxOf(10, {5, 5, 7}), 1);
    EXPECT_EQ(iMaxOf(3, {5, 0, 1}), 1);
}

TEST_F(ZoneCreation, MeasuresUnstructuredGridsByNodesAndElements) {
    Plot3DFile_s& file = recordOf("x");
    file.dataStructure = Plot3DDataStructure_Unstructured;
    file.gridDims = {{11, 5, 0}, {13, 0, 7}};
    options.iRange = {2, 3, 1};
    const Plot3DZoneDims_s triangles = zoneDimensionsForGrid(options, step(&file), 0, 1);
    EXPECT_EQ(triangles.i, 11);
    EXPECT_EQ(triangles.j, 5);
    EXPECT_EQ(triangles.k, 3);
    const Plot3DZoneDims_s tetrahedra = zoneDimensionsForGrid(options, step(&file), 1, 1);
    EXPECT_EQ(tetrahedra.i, 13);
    EXPECT_EQ(tetrahedra.j, 7);
    EXPECT_EQ(tetrahedra.k, 4);
}

TEST_F(ZoneCreation, AsksAZoneForTheElementsThatASolutionDoesNotKnow) {
    makeDataSet({"X"});
    makeElementZone(11, 5, 1);
    Plot3DFile_s& file = recordOf("q");
    file.dataStructure = Plot3DDataStructure_Unstructured;
    file.gridDims = {{13, 1, 1}};
    const Plot3DZoneDims_s dims = zoneDimensionsForGrid(options, step(nullptr, &file), 0, 1);
    EXPECT_EQ(dims.i, 13);
    EXPECT_EQ(dims.j, 5);
    EXPECT_EQ(dims.k, 3);
}

TEST_F(ZoneCreation, HasOneStrandForAGridInAllTimeSteps) {
    Plot3DFile_s& x = grid("x", {{2, 3, 5}, {2, 3, 5}});
    const GridList grids = {{2, 3, 5}, {2, 3, 5}};
    ASSERT_TRUE(load({step(&x, &solution("q1", grids, 1)), step(&x, &solution("q2", grids, 2))}));
    EXPECT_EQ(strands(), (Numbers32{1, 2, 1, 2}));
}

TEST_F(ZoneCreation, DropsStrandsThatATimeStepDoesWithout) {
    const GridList two = {{2, 3, 5}, {2, 3, 5}};
    options.uniformGridStructure = false;
    ASSERT_TRUE(load({step(&grid("x1", two)), step(&grid("x2", two)), step(&grid("x3", oneGrid)),
                      step(&grid("x4", two))}));
    EXPECT_EQ(strands(), (Numbers32{1, 2, 1, 2, 1, 1, 3}));
}

TEST_F(ZoneCreation, GivesEveryZoneAStrandOfItsOwnIfToldSo) {
    const GridList two = {{2, 3, 5}, {2, 3, 5}};
    options.uniformGridStructure = false;
    strandMap.newStrandEachStep = true;
    ASSERT_TRUE(load({step(&grid("x1", two)), step(&grid("x2", two))}));
    EXPECT_EQ(strands(), (Numbers32{1, 2, 3, 4}));
}

TEST_F(ZoneCreation, LeavesStrandsOutIfToldSo) {
    options.assignStrandIds = false;
    ASSERT_TRUE(load({step(&grid("x", oneGrid))}));
    EXPECT_EQ(strands(), Numbers32{0});
}

TEST_F(ZoneCreation, SharesTheNodeMapWithTheFirstTimeStep) {
    const GridList surface = {{11, 5, 0}};
    Plot3DFile_s& x = write("x", describeGrid(surface, Layout_e::Unstructured));
    const auto q = [&](const std::string& name) -> Plot3DFile_s& {
        return write(name, describeSolution(surface, 1.0, Layout_e::Unstructured));
    };
    ASSERT_TRUE(load({step(&x, &q("q1")), step(&x, &q("q2"))}));
    EXPECT_EQ(host().frame().dataSet()->nodeMapHolders(), (Numbers32{1, 1}));
    EXPECT_EQ(holder(2, 1), 1);
    EXPECT_NE(zone(2).nodeMap->nodes(), nullptr);
}

TEST_F(ZoneCreation, HasNoConnectivityInLaterStepsWhereSharingIsForbidden) {
    host().settings().sharingAllowed = false;
    const GridList surface = {{11, 5, 0}};
    const FileDescription_s description = describeGrid(surface, Layout_e::Unstructured);
    Plot3DFile_s& x = write("x", description);
    const auto q = [&](const std::string& name) -> Plot3DFile_s& {
        return write(name, describeSolution(surface, 1.0, Layout_e::Unstructured));
    };
    ASSERT_TRUE(load({step(&x, &q("q1")), step(&x, &q("q2"))}));
    EXPECT_EQ(zone(2).nodeMap->nodes(), nullptr);
    EXPECT_EQ(holder(2, 1), 2);
    EXPECT_EQ(values(2, 1), fieldOf(description, 0, 0));
}

TEST_F(ZoneCreation, AsksTheHostForTypesOfTheFiles) {
    FileDescription_s x = describeGrid(oneGrid);
    x.hasIBlank = true;
    ASSERT_TRUE(
        load({step(&write("x", x), &write("q", describeSolution(oneGrid, 0),
                                          binary(ByteOrder_e::Little, Precision_e::Double)))}));
    Numbers32 types;
    for (const host::Field_s& field : zone(1).fields)
        types.push_back(field.type);
    EXPECT_EQ(types, (Numbers32{1, 1, 1, 3, 2, 2, 2, 2, 2}));
}

TEST_F(ZoneCreation, RefusesZonesBeyondTheHighestNumber) {
    makeDataSet({"X", "Y", "Z"});
    TimeSteps steps = {step(&grid("x", {{2, 3, 5}, {2, 3, 5}}))};
    selectGrids({2});
    firstNewZone = maximumZoneNumber + 1;
    EXPECT_FALSE(addZones(steps));
    EXPECT_EQ(messages(), Texts{"Failed to load grid 0 from " + options.gridFiles[0] +
                                "\nMaximum number of zones is 2147483646."});
}

TEST_F(ZoneCreation, StopsWhenTheHostRefusesAZone) {
    Plot3DFile_s& x = grid("x", fourGrids);
    host().failCall("QuorUtilDataSetAddZoneX", 2);
    EXPECT_FALSE(load({step(&x)}));
    EXPECT_EQ(zoneCount(), 1);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(ZoneCreation, ForgetsTheFilesOnEveryWayOut) {
    Plot3DFile_s& x = grid("x", fourGrids);
    std::weak_ptr<Plot3DVariable_s> known = Plot3DVarRepo::instance().getVariable(x);
    ASSERT_TRUE(load({step(&x)}));
    QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
    EXPECT_TRUE(known.expired());
    known = Plot3DVarRepo::instance().getVariable(x);
    host().failCall("QuorUtilDataSetAddZoneX", 1);
    EXPECT_FALSE(load({step(&x)}));
    EXPECT_TRUE(known.expired());
}

class ExistingZones : public ZoneCreation {
protected:
    void SetUp() override {
        makeDataSet(flowVariables);
        for (int zones = 0; zones < 3; ++zones)
            makeZone({2, 3, 5}, 8);
        existingZoneCount = 3;
    }
    const GridList two = {{2, 3, 5}, {2, 3, 5}};
};

TEST_F(ExistingZones, BeyondTheFilesAreDeletedAndTheOthersRenamed) {
    const Plot3DFileHandler handler = step(nullptr, &solution("q", two));
    EXPECT_TRUE(adjustExistingZones(2, handler, options, existingZoneCount));
    EXPECT_EQ(existingZoneCount, 2);
    EXPECT_EQ(zoneNames(), (Texts{"q:1", "q:2"}));
}

TEST_F(ExistingZones, ThatAreDeletedAreAnnounced) {
    const Plot3DFileHandler handler = step(nullptr, &solution("q", two));
    currentTask = createTaskProgressBar(1);
    EXPECT_TRUE(adjustExistingZones(2, handler, options, existingZoneCount));
    EXPECT_EQ(host().log().progress.texts(), Texts{"Adjusting existing zones"});
}

TEST_F(ExistingZones, TakeTheNamesOfSelectedGrids) {
    selectGrids({2, 4});
    const Plot3DFileHandler handler = step(nullptr, &solution("q", fourGrids));
    EXPECT_TRUE(adjustExistingZones(2, handler, options, existingZoneCount));
    EXPECT_EQ(zoneNames(), (Texts{"q:2", "q:4"}));
}

TEST_F(ExistingZones, AreNotDeletedIfThereAreNoMoreThanGrids) {
    const Plot3DFileHandler handler = step(nullptr, &solution("q", two));
    existingZoneCount = 2;
    EXPECT_TRUE(adjustExistingZones(2, handler, options, existingZoneCount));
    EXPECT_EQ(zoneNames(), (Texts{"q:1", "q:2", "old"}));
    EXPECT_EQ(host().callCount("QuorUtilZoneDelete"), 0);
}

TEST_F(ExistingZones, ThatCannotBeRenamedFail) {
    const Plot3DFileHandler handler = step(nullptr, &solution("q", two));
    host().failCall("QuorUtilZoneRename", 2);
    EXPECT_FALSE(adjustExistingZones(2, handler, options, existingZoneCount));
    EXPECT_EQ(existingZoneCount, 2);
}

TEST_F(ExistingZones, GetTheNewSolutionAndKeepTheirGrid) {
    const FileDescription_s q = describeSolution(oneGrid, 0.5);
    TimeSteps steps = {step(nullptr, &write("q", q))};
    shape.numSolutionVars = 5;
    ASSERT_TRUE(addZones(steps));
    EXPECT_EQ(zoneCount(), 3);
    EXPECT_EQ(state(1, 3), host::FieldState_e::Stored);
    EXPECT_EQ(holder(3, 1), 3);
    EXPECT_EQ(values(1, 4), fieldOf(q, 0, 0));
    EXPECT_EQ(zone(1).solutionTime, 0.5);
    EXPECT_EQ(membersOf(zonesAdded.get()), std::vector<std::int64_t>());
}

TEST_F(ExistingZones, GetTheNewSolutionOfATextInPlaceOfTheirValues) {
    const FileDescription_s q = describeSolution(oneGrid, 0.5);
    TimeSteps steps = {step(nullptr, &write("q", q, text()))};
    shape.numSolutionVars = 5;
    ASSERT_TRUE(addZones(steps));
    EXPECT_EQ(values(1, 8), fieldOf(q, 0, 4));
}

// Appended beside the zones that are there, a solution of nodes takes elements and grid of those of
// the last time step.
TEST_F(ExistingZones, LendNodeMapAndGridToASolutionThatIsAppendedBesideThem) {
    makeElementZone(11, 5, 8);
    TimeSteps steps = {
        step(nullptr, &write("q", describeSolution({{11, 5, 0}}, 1, Layout_e::Unstructured)))};
    options.append = true;
    shape.numSolutionVars = 5;
    existingZoneCount = 4;
    firstNewZone = 5;
    ASSERT_TRUE(addZones(steps));
    EXPECT_EQ(zone(5).j, 5);
    EXPECT_EQ(host().frame().dataSet()->nodeMapHolders()[4], 4);
    EXPECT_EQ(holder(5, 3), 4);
    EXPECT_EQ(holder(5, 4), 5);
}

TEST_F(ExistingZones, LendTheirGridToLaterTimeStepsOfASolution) {
    TimeSteps steps = {step(nullptr, &solution("q1", oneGrid, 1)),
                       step(nullptr, &solution("q2", oneGrid, 2))};
    shape.numSolutionVars = 5;
    firstNewZone = 3; // so that the second time step's zone comes behind the three
    existingZoneCount = 3;
    ASSERT_TRUE(addZones(steps));
    EXPECT_EQ(zoneCount(), 4);
    EXPECT_EQ(holder(4, 1), 3);
    EXPECT_EQ(holder(4, 4), 4);
}

TEST_F(ExistingZones, ThatGetASolutionAppendedTakeStrandsAndCountAsAdded) {
    TimeSteps steps = {step(nullptr, &solution("q", two))};
    options.append = true;
    addVarsToGrid = true;
    shape.numSolutionVars = 5;
    existingZoneCount = 2;
    ASSERT_TRUE(addZones(steps));
    EXPECT_EQ(strands(), (Numbers32{1, 2, 0}));
    EXPECT_EQ(membersOf(zonesAdded.get()), (std::vector<std::int64_t>{1, 2}));
    EXPECT_EQ(zoneCount(), 3);
}

// Without sharing, the grid of a zone would be copied onto itself, behind an allocation of zeros.
TEST_F(ExistingZones, KeepTheirGridWhenASolutionIsAppended) {
    host().settings().sharingAllowed = false;
    void* x = nullptr;
    QuorUtilDataValueGetRawPtr(1, 1, &x, nullptr);
    static_cast<float*>(x)[0] = 17.0F;
    TimeSteps steps = {step(nullptr, &solution("q", oneGrid))};
    options.append = true;
    addVarsToGrid = true;
    shape.numSolutionVars = 5;
    existingZoneCount = 1;
    ASSERT_TRUE(addZones(steps));
    EXPECT_EQ(values(1, 1)[0], 17.0);
}

TEST_F(ExistingZones, OfOtherSizesAreNotFilled) {
    TimeSteps steps = {step(nullptr, &solution("q", {{2, 3, 7}}))};
    shape.numSolutionVars = 5;
    existingZoneCount = 1;
    EXPECT_FALSE(addZones(steps));
    EXPECT_EQ(state(1, 4), host::FieldState_e::Stored);
    EXPECT_EQ(messages(), Texts());
}

} // namespace
