// Zones: what they need, and what they keep.
#include "HostFixture.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::host {
namespace {

class ZoneTest : public HostTest {
protected:
    ZoneTest() { createDataSet({"X", "Y", "Z"}); }

    static bool add(const HostArgList& arguments) {
        return QuorUtilDataSetAddZoneX(arguments.get());
    }
    static const Zone_s& zone(std::int32_t number) {
        return *host().frame().dataSet()->zone(number);
    }
};

TEST_F(ZoneTest, KeepsItsSizes) {
    addZone(2, 3, 5);
    std::int64_t i = 0;
    std::int64_t k = 0;
    QuorUtilZoneGetInfo(1, &i, nullptr, &k, nullptr);
    EXPECT_EQ(i, 2);
    EXPECT_EQ(k, 5);
    EXPECT_EQ(zone(1).valueCount(QuorValueLocation_Nodal), 30);
    EXPECT_EQ(zone(1).valueCount(QuorValueLocation_CellCentred), 8);
}

TEST_F(ZoneTest, KeepsStrandTimeAndParent) {
    addZone(2, 3, 5);
    const HostArgList arguments = zoneArguments(7, 1, 1);
    QuorUtilArgListAppendInt(arguments.get(), "StrandID", 4);
    QuorUtilArgListAppendDouble(arguments.get(), "SolutionTime", 0.25);
    QuorUtilArgListAppendInt(arguments.get(), "ParentZone", 1);
    ASSERT_TRUE(add(arguments));
    EXPECT_EQ(QuorUtilZoneGetStrandID(2), 4);
    EXPECT_EQ(zone(2).solutionTime, 0.25);
    EXPECT_EQ(zone(2).parentZoneId, zone(1).uniqueId);
    EXPECT_EQ(QuorUtilDataSetGetMaxStrandID(), 4);
}

TEST_F(ZoneTest, NeedsNameTypeAndSizes) {
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "Name", "zone");
    QuorUtilArgListAppendInt(arguments.get(), "ZoneType", 0);
    QuorUtilArgListAppendInt(arguments.get(), "IMax", 2);
    EXPECT_FALSE(add(arguments));
    expectViolations({"QuorUtilDataSetAddZoneX: key \"JMax\" is missing"});
}

TEST_F(ZoneTest, RefusesKeysThatItDoesNotKnow) {
    const HostArgList arguments = zoneArguments(2, 3, 5);
    QuorUtilArgListAppendInt(arguments.get(), "Strand", 1);
    EXPECT_FALSE(add(arguments));
    expectViolations({"QuorUtilDataSetAddZoneX: key \"Strand\" is unknown"});
}

TEST_F(ZoneTest, RefusesSizesBelowOneWithoutBlame) {
    EXPECT_FALSE(add(zoneArguments(0, 3, 5)));
    EXPECT_FALSE(add(zoneArguments(2, -4, 5)));
    EXPECT_TRUE(host().frame().dataSet()->zones().empty());
}

TEST_F(ZoneTest, RefusesMorePointsThan64BitsCount) {
    const std::int64_t large = std::int64_t{1} << 31;
    EXPECT_FALSE(add(zoneArguments(large, large, 2)));
    EXPECT_TRUE(add(zoneArguments(large, large / 32, 2)));
}

TEST_F(ZoneTest, RefusesTypesThatAreNone) {
    const std::int32_t types[] = {1, 2, 4};
    const HostArgList arguments = zoneArguments(2, 3, 5);
    QuorUtilArgListAppendArray(arguments.get(), "VarDataType", types);
    EXPECT_FALSE(add(arguments));
    EXPECT_FALSE(add(zoneArguments(2, 3, 3, 2)));
    expectViolations({"QuorUtilDataSetAddZoneX: \"VarDataType\" holds 4, which is no field type",
                      "QuorUtilDataSetAddZoneX: there is no zone type 2"});
}

TEST_F(ZoneTest, ElementsHaveTheCornersOfTheirType) {
    EXPECT_FALSE(add(zoneArguments(5, 7, 4, QuorZoneType_Triangles)));
    EXPECT_FALSE(add(zoneArguments(5, 7, 3, QuorZoneType_Tetrahedra)));
    EXPECT_TRUE(add(zoneArguments(5, 7, 3, QuorZoneType_Triangles)));
    expectViolations({"QuorUtilDataSetAddZoneX: a triangle has 3 corners (\"KMax\")",
                      "QuorUtilDataSetAddZoneX: a tetrahedron has 4 corners (\"KMax\")"});
}

TEST_F(ZoneTest, RefusesRelationsToZonesThatAreNone) {
    const HostArgList orphan = zoneArguments(2, 3, 5);
    QuorUtilArgListAppendInt(orphan.get(), "ParentZone", 1);
    EXPECT_FALSE(add(orphan));
    const HostArgList alone = zoneArguments(5, 7, 3, QuorZoneType_Triangles);
    QuorUtilArgListAppendInt(alone.get(), "ConnectShareZone", 1);
    EXPECT_FALSE(add(alone));
    expectViolations({"QuorUtilDataSetAddZoneX: \"ParentZone\" 1 does not exist",
                      "QuorUtilDataSetAddZoneX: \"ConnectShareZone\" 1 does not exist"});
}

TEST_F(ZoneTest, TakesTheTypesOfItsParentUnlessItNamesThem) {
    const std::int32_t types[] = {2, 3, 1};
    const HostArgList typed = zoneArguments(2, 3, 5);
    QuorUtilArgListAppendArray(typed.get(), "VarDataType", types);
    ASSERT_TRUE(add(typed));
    addZone(7, 1, 1);
    EXPECT_EQ(QuorUtilDataValueGetType(2, 2), QuorFieldDataType_Int32);
    const HostArgList plain = zoneArguments(2, 3, 5);
    const std::int32_t floats[] = {1, 1, 1};
    QuorUtilArgListAppendArray(plain.get(), "VarDataType", floats);
    ASSERT_TRUE(add(plain));
    const HostArgList child = zoneArguments(2, 1, 5);
    QuorUtilArgListAppendInt(child.get(), "ParentZone", 1);
    ASSERT_TRUE(add(child));
    EXPECT_EQ(QuorUtilDataValueGetType(4, 1), QuorFieldDataType_Double);
}

TEST_F(ZoneTest, FieldsAreZeroUnlessTheyAreDeferred) {
    addZone(2, 3, 5);
    EXPECT_EQ(field(1, 1).state(), FieldState_e::Empty);
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "Name", "zone");
    for (const char* key : {"ZoneType", "DeferVarCreation"})
        QuorUtilArgListAppendInt(arguments.get(), key, 0);
    for (const char* key : {"IMax", "JMax", "KMax"})
        QuorUtilArgListAppendInt(arguments.get(), key, 3);
    ASSERT_TRUE(add(arguments));
    EXPECT_EQ(field(2, 3).state(), FieldState_e::Stored);
    EXPECT_EQ(host().fetch(2, 3).count, 27);
}

TEST_F(ZoneTest, CanBeRenamedAndGetAnotherStrand) {
    addZone(2, 3, 5);
    EXPECT_TRUE(QuorUtilZoneRename(1, "wing:1"));
    QuorUtilZoneSetStrandID(1, 7);
    EXPECT_EQ(zone(1).name, "wing:1");
    EXPECT_EQ(QuorUtilZoneGetStrandID(1), 7);
}

TEST_F(ZoneTest, ThatDoesNotExistIsBlamedAndEmpty) {
    std::int64_t i = 7;
    QuorUtilZoneGetInfo(1, &i, nullptr, nullptr, nullptr);
    EXPECT_EQ(i, 0);
    EXPECT_FALSE(QuorUtilZoneRename(0, "none"));
    EXPECT_EQ(QuorUtilDataValueGetType(1, 1), QuorFieldDataType_Invalid);
    expectViolations({"QuorUtilZoneGetInfo: there is no zone 1",
                      "QuorUtilZoneRename: there is no zone 0",
                      "QuorUtilDataValueGetType: there is no zone 1"});
}

TEST_F(ZoneTest, ParentIsGoneWithItsZone) {
    addZone(2, 3, 5);
    const HostArgList child = zoneArguments(2, 1, 5);
    QuorUtilArgListAppendInt(child.get(), "ParentZone", 1);
    ASSERT_TRUE(add(child));
    QuorUtilZoneDelete(setOf({1}).get());
    EXPECT_EQ(host().frame().dataSet()->zoneNumber(zone(1).parentZoneId), 0);
}

TEST_F(ZoneTest, SolutionTimesAreToldOnceAfterTheDeferrer) {
    addZone(2, 3, 5);
    {
        const SolutionTimeNotificationDeferrer deferrer;
        EXPECT_TRUE(QuorUtilZoneSetSolutionTime(1, 0.5));
        EXPECT_TRUE(QuorUtilZoneSetSolutionTime(1, 0.75));
        EXPECT_EQ(host().log().solutionTimeNotifications, 0);
    }
    EXPECT_EQ(host().log().solutionTimeNotifications, 1);
    QuorUtilZoneSetSolutionTime(1, 1.0);
    EXPECT_EQ(host().log().solutionTimeNotifications, 2);
}

TEST_F(ZoneTest, ThatDoesNotExistGetsNoSolutionTimeAndNoBlame) {
    addZone(2, 3, 5);
    EXPECT_FALSE(QuorUtilZoneSetSolutionTime(2, 0.5));
    EXPECT_EQ(host().log().solutionTimeNotifications, 0);
}

TEST_F(ZoneTest, AutomaticStyleIsNoted) {
    addZone(2, 3, 5);
    QuorUtilZoneStyleApplyAuto(setOf({1}).get());
    EXPECT_EQ(host().log().autoStyledZones, (std::vector<std::vector<std::int64_t>>{{1}}));
}

} // namespace
} // namespace quorvia::host
