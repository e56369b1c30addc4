// Variables that zones get which are there already.
#include "dataset/variables/AddedVariables.h"

#include "DatasetFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

const GridList oneGrid = {{2, 3, 5}};

class AddedVariables : public DatasetTest {
protected:
    AddedVariables() {
        makeDataSet({"X", "Y", "Z"});
        makeZone(oneGrid.front(), 3);
        makeZone(oneGrid.front(), 3);
    }
    void TearDown() override {
        varsAdded.reset();
        DatasetTest::TearDown();
    }
    bool addMissing(const Plot3DFileHandler& handler, std::int32_t wanted) {
        const HostStringList names(QuorUtilStringListAlloc());
        for (const char* name : {"a", "b", "c", "V4", "V5"})
            QuorUtilStringListAppendString(names.get(), name);
        const HostArgList arguments(QuorUtilArgListAlloc());
        return addMissingVariables(options, handler, names.get(), arguments.get(), wanted, varCount,
                                   varsAdded);
    }
    std::int32_t typeOf(std::int32_t zoneNumber, std::int32_t var) {
        return zone(zoneNumber).fields[static_cast<std::size_t>(var - 1)].type;
    }

    std::int32_t varCount = 3;
    HostSet varsAdded;
};

TEST_F(AddedVariables, HaveTheirNamesAndThePrecisionOfTheSolution) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q =
        write("q", describeSolution(oneGrid, 1), binary(ByteOrder_e::Little, Precision_e::Double));
    EXPECT_TRUE(addMissing(step(&x, &q), 5));
    EXPECT_EQ(varCount, 5);
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z", "V4", "V5"}));
    EXPECT_EQ(membersOf(varsAdded.get()), (std::vector<std::int64_t>{4, 5}));
    EXPECT_EQ(typeOf(2, 5), QuorFieldDataType_Double);
    EXPECT_EQ(state(1, 4), host::FieldState_e::Empty);
}

TEST_F(AddedVariables, HaveThePrecisionOfTheSolutionBehindIBlankToo) {
    FileDescription_s grid = describeGrid(oneGrid);
    grid.hasIBlank = true;
    Plot3DFile_s& x = write("x", grid);
    Plot3DFile_s& q =
        write("q", describeSolution(oneGrid, 1), binary(ByteOrder_e::Little, Precision_e::Double));
    EXPECT_TRUE(addMissing(step(&x, &q), 5));
    EXPECT_EQ(typeOf(1, 4), QuorFieldDataType_Double);
}

TEST_F(AddedVariables, OfFunctionFilesAloneAreOfSinglePrecision) {
    Plot3DFile_s& f =
        write("f", describeFunction(oneGrid, 2), binary(ByteOrder_e::Little, Precision_e::Double));
    EXPECT_TRUE(addMissing(step(nullptr, nullptr, {&f}), 4));
    EXPECT_EQ(typeOf(1, 4), QuorFieldDataType_Float);
}

TEST_F(AddedVariables, AreNotCountedIfOneIsRefused) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    host().failCall("QuorUtilDataSetAddVarX", 2);
    EXPECT_FALSE(addMissing(step(&x), 5));
    EXPECT_EQ(varCount, 3);
}

TEST_F(AddedVariables, AreLeftOutWithoutMemoryForTheirSet) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    host().failCall("QuorUtilSetAlloc", 1);
    EXPECT_TRUE(addMissing(step(&x), 5));
    EXPECT_EQ(varCount, 3);
    EXPECT_EQ(variableNames().size(), 3U);
}

TEST_F(AddedVariables, OfFunctionFilesHaveOrdinalsThatAreFree) {
    makeDataSet({"X", "Y", "f1v2"});
    makeZone(oneGrid.front(), 3);
    Plot3DFile_s& f = write("f", describeFunction(oneGrid, 2));
    Plot3DFile_s& g = write("g", describeFunction(oneGrid, 1));
    EXPECT_TRUE(addFunctionVariables(varsAdded, 1, varCount, {step(nullptr, nullptr, {&f, &g})}));
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "f1v2", "F2V1", "F2V2", "F3V1"}));
    EXPECT_EQ(varCount, 6);
    EXPECT_EQ(membersOf(varsAdded.get()), (std::vector<std::int64_t>{4, 5, 6}));
}

} // namespace
} // namespace quorvia::testsupport
