// The data set: its beginning, its numbers, what is taken out of it.
#include "HostFixture.h"

namespace quorvia::host {
namespace {

class DataSetTest : public HostTest {
protected:
    static DataSet& data() { return *host().frame().dataSet(); }
    static std::pair<std::int32_t, std::int32_t> counts() {
        std::int32_t zones = -1;
        std::int32_t variables = -1;
        EXPECT_TRUE(QuorUtilDataSetGetInfo(nullptr, &zones, &variables));
        return {zones, variables};
    }
};

TEST_F(DataSetTest, IsMissingAtFirst) {
    EXPECT_FALSE(QuorUtilDataSetIsAvailable());
    EXPECT_FALSE(QuorUtilDataSetGetInfo(nullptr, nullptr, nullptr));
    EXPECT_EQ(QuorUtilDataSetGetMaxStrandID(), 0);
    EXPECT_EQ(host().frame().plotType(), QuorPlotType_None);
}

TEST_F(DataSetTest, KeepsTitleAndNamesAsPassed) {
    createDataSet({"X", "V2          "});
    HostString title;
    ASSERT_TRUE(QuorUtilDataSetGetInfo(title.outArgument(), nullptr, nullptr));
    EXPECT_EQ(title.view(), "Tests");
    HostString name;
    ASSERT_TRUE(QuorUtilVarGetName(2, name.outArgument()));
    EXPECT_EQ(name.view(), "V2          ");
    EXPECT_EQ(data().loaderName, "Guest Loader");
}

TEST_F(DataSetTest, ReplacesTheOneBefore) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    createDataSet({"A", "B", "C"});
    EXPECT_EQ(counts(), std::pair(0, 3));
}

TEST_F(DataSetTest, UnknownKeyIsRefused) {
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "Titel", "Tests");
    EXPECT_FALSE(QuorUtilDataSetCreateX(arguments.get()));
    expectViolations({"QuorUtilDataSetCreateX: key \"Titel\" is unknown"});
}

TEST_F(DataSetTest, KeyOfAnotherKindIsRefused) {
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendInt(arguments.get(), "LoaderName", 7);
    EXPECT_FALSE(QuorUtilDataSetCreateX(arguments.get()));
    expectViolations({"QuorUtilDataSetCreateX: key \"LoaderName\" is not a string"});
}

TEST_F(DataSetTest, DeletedZonesLeaveNoGap) {
    createDataSet({"X"});
    for (const std::int64_t size : {2, 3, 5, 7, 11})
        addZone(size, 1, 1);
    EXPECT_TRUE(QuorUtilDataSetDeleteZone(setOf({2, 4}).get()));
    ASSERT_EQ(data().zoneCount(), 3);
    EXPECT_EQ(data().zone(2)->i, 5);
    EXPECT_EQ(data().zone(3)->i, 11);
    EXPECT_EQ(data().zone(3)->number, 3);
}

TEST_F(DataSetTest, UniqueIdsOutliveRenumbering) {
    createDataSet({"X", "Y", "Z"});
    addZone(2, 1, 1);
    addZone(3, 1, 1);
    const std::int64_t zoneId = QuorUtilZoneGetUniqueID(2);
    const std::int64_t goneId = QuorUtilZoneGetUniqueID(1);
    const std::int64_t varId = QuorUtilVarGetUniqueID(3);
    QuorUtilZoneDelete(setOf({1}).get());
    QuorUtilDataSetDeleteVar(setOf({2}).get());
    EXPECT_EQ(QuorUtilZoneGetNumByUniqueID(zoneId), 1);
    EXPECT_EQ(QuorUtilZoneGetNumByUniqueID(goneId), 0);
    EXPECT_EQ(QuorUtilVarGetNumByUniqueID(varId), 2);
}

TEST_F(DataSetTest, UniqueIdsDoNotComeBackWithANewDataSet) {
    createDataSet({"X"});
    const std::int64_t varId = QuorUtilVarGetUniqueID(1);
    createDataSet({"X"});
    EXPECT_NE(QuorUtilVarGetUniqueID(1), varId);
    EXPECT_EQ(QuorUtilVarGetNumByUniqueID(varId), 0);
}

TEST_F(DataSetTest, DeletesNothingIfAMemberIsMissing) {
    createDataSet({"X"});
    addZone(2, 1, 1);
    EXPECT_FALSE(QuorUtilDataSetDeleteZone(setOf({1, 2}).get()));
    EXPECT_FALSE(QuorUtilDataSetDeleteVar(setOf({3}).get()));
    EXPECT_EQ(counts(), std::pair(1, 1));
    expectViolations({"QuorUtilDataSetDeleteZone: there is no zone 2",
                      "QuorUtilDataSetDeleteVar: there is no variable 3"});
}

TEST_F(DataSetTest, EnabledSetsHoldAllNumbers) {
    createDataSet({"X", "Y", "Z"});
    addZone(2, 1, 1);
    HostSet zones;
    HostSet vars;
    ASSERT_TRUE(QuorUtilZoneGetEnabled(zones.outArgument()));
    ASSERT_TRUE(QuorUtilVarGetEnabled(vars.outArgument()));
    EXPECT_EQ(QuorUtilSetGetMemberCount(zones.get()), 1);
    EXPECT_EQ(QuorUtilSetGetMemberCount(vars.get()), 3);
}

TEST_F(DataSetTest, EnabledSetsNeedADataSet) {
    HostSet zones;
    EXPECT_FALSE(QuorUtilZoneGetEnabled(zones.outArgument()));
    EXPECT_FALSE(static_cast<bool>(zones));
}

TEST_F(DataSetTest, NewVariableGetsAFieldInEveryZone) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    addZone(7, 1, 1);
    const std::int32_t types[] = {QuorFieldDataType_Double, QuorFieldDataType_Int32};
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "Name", "E");
    QuorUtilArgListAppendArray(arguments.get(), "VarDataType", types);
    QuorUtilArgListAppendInt(arguments.get(), "DeferVarCreation", 1);
    ASSERT_TRUE(QuorUtilDataSetAddVarX(arguments.get()));
    EXPECT_EQ(QuorUtilDataValueGetType(1, 2), QuorFieldDataType_Double);
    EXPECT_EQ(QuorUtilDataValueGetType(2, 2), QuorFieldDataType_Int32);
    EXPECT_EQ(field(2, 2).state(), FieldState_e::Empty);
}

TEST_F(DataSetTest, NewVariableIsZeroUnlessItIsLeftEmpty) {
    createDataSet({"X"});
    addZone(2, 3, 5);
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "Name", "E");
    ASSERT_TRUE(QuorUtilDataSetAddVarX(arguments.get()));
    const FetchResult_s fetched = host().fetch(1, 2);
    EXPECT_EQ(fetched.count, 30);
    EXPECT_EQ(firstFloat(fetched), 0.0F);
}

} // namespace
} // namespace quorvia::host
