// Real files in binary encodings.
#include "acceptance/realdata/RealDataFixture.h"

namespace quorvia::testsupport {
namespace {

constexpr PlainReals_s bigEndianFloats = {4, true};
constexpr PlainReals_s littleEndianDoubles = {8, false};
constexpr std::int64_t singleGridHeader = 12; // i, j, k without markers
constexpr std::int64_t fourFloats = 16;       // the scalars of a Classic solution

class Combustor : public RealDataTest {
protected:
    static constexpr std::int64_t points = 57 * 33 * 25;

    void SetUp() override {
        RealDataTest::SetUp();
        if (!IsSkipped())
            expectLoads({{realFile("combxyz.bin")}, {realFile("combq.bin")}, {}, {}, {}});
    }
};

TEST_F(Combustor, IsOneZoneWithAClassicSolution) {
    ASSERT_EQ(dataSet().zoneCount(), 1);
    expectOrderedZone(1, 57, 33, 25);
    EXPECT_EQ(zone(1).name, "combq.bin:1");
    EXPECT_EQ(variableNames(), Texts({"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"}));
    EXPECT_EQ(host().frame().plotType(), QuorPlotType_3D);
}

TEST_F(Combustor, LeavesItsFieldsInTheFiles) {
    for (std::int32_t variable = 1; variable <= 8; ++variable) {
        EXPECT_EQ(field(1, variable).state(), host::FieldState_e::Deferred);
        EXPECT_EQ(field(1, variable).type, QuorFieldDataType_Float);
    }
}

TEST_F(Combustor, HasEveryCoordinate) {
    expectFields(
        1, 1, 3,
        plainReals(realFile("combxyz.bin"), singleGridHeader, 3 * points, bigEndianFloats));
}

TEST_F(Combustor, HasEveryValueOfItsSolution) {
    expectFields(1, 4, 5,
                 plainReals(realFile("combq.bin"), singleGridHeader + fourFloats, 5 * points,
                            bigEndianFloats));
}

TEST_F(Combustor, HasScalarsOfZero) {
    EXPECT_EQ(zone(1).auxData, host::AuxData({{"Common.ReferenceMachNumber", "0"},
                                              {"Common.AngleOfAttack", "0"},
                                              {"Common.ReynoldsNumber", "0"}}));
    EXPECT_EQ(zone(1).solutionTime, 0.0);
}

class BluntFin : public RealDataTest {
protected:
    static constexpr std::int64_t points = 40 * 32 * 32;
    static Load_s gridOnly() { return {{realFile("bluntfinxyz.bin")}, {}, {}, {}, {}}; }
    static Load_s gridAndSolution() {
        return {{realFile("bluntfinxyz.bin")}, {realFile("bluntfinq.bin")}, {}, {}, {}};
    }
    static Load_s describedByHand() {
        Load_s load = gridAndSolution();
        load.settings = {{"AUTODETECT", "No"},
                         {"STYLE", "PLOT3DCLASSIC"},
                         {"DATASTRUCTURE", "3DW"},
                         {"ISMULTIGRID", "No"}};
        return load;
    }
    static void expectGrid() {
        expectOrderedZone(1, 40, 32, 32);
        expectFields(
            1, 1, 3,
            plainReals(realFile("bluntfinxyz.bin"), singleGridHeader, 3 * points, bigEndianFloats));
    }
};

TEST_F(BluntFin, GridComesInAlone) {
    expectLoads(gridOnly());
    EXPECT_EQ(zoneNames(), Texts({"bluntfinxyz.bin:1"}));
    expectGrid();
}

TEST_F(BluntFin, SolutionWithBytesBehindItsLastValueIsRefused) {
    EXPECT_FALSE(load(gridAndSolution()).ok);
    EXPECT_EQ(messages(),
              Texts({"Auto Detect cannot determine the Plot 3D solution/function file structure.\n"
                     "Please manually describe the file on the File Structure tab of the advanced "
                     "load dialog.\nFile: " +
                     realFile("bluntfinq.bin")}));
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(BluntFin, ComesInWhenItIsDescribedByHand) {
    expectLoads(describedByHand());
    expectGrid();
    expectFields(1, 4, 5,
                 plainReals(realFile("bluntfinq.bin"), singleGridHeader + fourFloats, 5 * points,
                            bigEndianFloats));
    EXPECT_EQ(zone(1).auxData.at("Common.ReferenceMachNumber"), "2.95");
    EXPECT_EQ(zone(1).auxData.at("Common.ReynoldsNumber"), "2.1E+06");
}

/// Two grids of 8 x 12 x 12 in Fortran records of 64-bit reals.
class MultiBin : public RealDataTest {
protected:
    static constexpr std::int64_t points = 8 * 12 * 12;
    static constexpr std::int64_t header = 12 + 4 + 24 + 4; // count of grids, dimensions
};

TEST_F(MultiBin, HasEveryValueOfBothGrids) {
    expectSelectionLoads({realFile("multi-bin.xyz"), realFile("multi-bin.q")});
    ASSERT_EQ(dataSet().zoneCount(), 2);
    std::int64_t gridPosition = header + 4;
    std::int64_t solutionPosition = header + 4 + 32 + 4 + 4;
    for (std::int32_t number = 1; number <= 2; ++number) {
        expectOrderedZone(number, 8, 12, 12);
        EXPECT_EQ(field(number, 1).type, QuorFieldDataType_Double);
        expectFields(
            number, 1, 3,
            plainReals(realFile("multi-bin.xyz"), gridPosition, 3 * points, littleEndianDoubles));
        expectFields(
            number, 4, 5,
            plainReals(realFile("multi-bin.q"), solutionPosition, 5 * points, littleEndianDoubles));
        gridPosition += 3 * 8 * points + 4 + 4;
        solutionPosition += 5 * 8 * points + 4 + 4 + 32 + 4 + 4;
    }
}

TEST_F(MultiBin, TellsScalarsAndTime) {
    expectSelectionLoads({realFile("multi-bin.xyz"), realFile("multi-bin.q")});
    const std::vector<double> scalars =
        plainReals(realFile("multi-bin.q"), header + 4, 4, littleEndianDoubles);
    EXPECT_EQ(zone(1).auxData.at("Common.ReferenceMachNumber"), "2.95");
    EXPECT_EQ(zone(1).auxData.at("Common.AngleOfAttack"), "0");
    EXPECT_EQ(zone(1).auxData.at("Common.ReynoldsNumber"), "2.1E+06");
    EXPECT_EQ(zone(1).solutionTime, scalars[3]);
}

/// Two ducts in big-endian Fortran records, without a solution.
class SDuct : public RealDataTest {};

TEST_F(SDuct, HasEveryCoordinate) {
    expectLoads({{realFile("sduct.new.x.bin")}, {}, {}, {}, {}});
    ASSERT_EQ(dataSet().zoneCount(), 2);
    constexpr std::int64_t firstPoints = 25 * 31 * 21;
    constexpr std::int64_t secondPoints = 123 * 31 * 21;
    constexpr std::int64_t firstData = 12 + 4 + 24 + 4 + 4;
    constexpr std::int64_t secondData = firstData + 12 * firstPoints + 4 + 4;
    expectOrderedZone(1, 25, 31, 21);
    expectOrderedZone(2, 123, 31, 21);
    const std::string path = realFile("sduct.new.x.bin");
    expectFields(1, 1, 3, plainReals(path, firstData, 3 * firstPoints, bigEndianFloats));
    expectFields(2, 1, 3, plainReals(path, secondData, 3 * secondPoints, bigEndianFloats));
}

} // namespace
} // namespace quorvia::testsupport
