// Fields and node maps that several zones hold in common.
#include "HostFixture.h"

namespace quorvia::host {
namespace {

class SharingTest : public HostTest {
protected:
    SharingTest() {
        createDataSet({"X", "Y"});
        addZone(2, 3, 5);
        addZone(5, 2, 3);
        addZone(2, 3, 7);
    }
    static DataSet& data() { return *host().frame().dataSet(); }
    FakeSource_s source_{.firstValue = 10.0F};
};

TEST_F(SharingTest, DeferredFieldIsFetchedOnceForAll) {
    source_.registerAt(1, 1);
    ASSERT_TRUE(QuorUtilDataValueShare(1, 2, 1));
    EXPECT_EQ(field(2, 1).state(), FieldState_e::Deferred);
    EXPECT_EQ(firstFloat(host().fetch(2, 1)), 10.0F);
    EXPECT_EQ(host().fetch(1, 1).values, host().fetch(2, 1).values);
    EXPECT_EQ(source_.loadCount, 1);
}

TEST_F(SharingTest, FieldStaysWithTheOthersWhenItsFirstZoneGoes) {
    source_.registerAt(1, 1);
    QuorUtilDataValueShare(1, 2, 1);
    QuorUtilZoneDelete(setOf({1}).get());
    EXPECT_EQ(source_.cleanUpCount, 0);
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 10.0F);
    QuorUtilZoneDelete(setOf({1}).get());
    EXPECT_EQ(source_.cleanUpCount, 1);
}

TEST_F(SharingTest, EndsWhenOneZoneGetsStorageOfItsOwn) {
    QuorUtilDataValueAlloc(1, 1);
    QuorUtilDataValueShare(1, 2, 1);
    QuorUtilDataValueAlloc(2, 1);
    EXPECT_NE(field(1, 1).storage, field(2, 1).storage);
    EXPECT_EQ(data().fieldHolders(1), (std::vector<std::int32_t>{1, 2, 0}));
}

TEST_F(SharingTest, HoldersNameTheLowestZone) {
    QuorUtilDataValueAlloc(1, 2);
    QuorUtilDataValueShare(1, 2, 2);
    EXPECT_EQ(data().fieldHolders(2), (std::vector<std::int32_t>{1, 1, 0}));
}

TEST_F(SharingTest, NeedsTheSameNumberOfValues) {
    source_.registerAt(1, 1);
    EXPECT_TRUE(QuorUtilDataValueIsSharingOk(1, 2, 1));
    EXPECT_FALSE(QuorUtilDataValueIsSharingOk(1, 3, 1));
    EXPECT_FALSE(QuorUtilDataValueShare(1, 3, 1));
}

TEST_F(SharingTest, NeedsTheSameType) {
    QuorUtilDataValueAlloc(1, 1);
    field(2, 1).type = QuorFieldDataType_Double;
    EXPECT_FALSE(QuorUtilDataValueIsSharingOk(1, 2, 1));
    EXPECT_FALSE(QuorUtilDataValueShare(1, 2, 1));
}

TEST_F(SharingTest, NeedsASourceWithValues) {
    EXPECT_FALSE(QuorUtilDataValueShare(1, 2, 1));
    EXPECT_EQ(field(2, 1).state(), FieldState_e::Empty);
}

TEST_F(SharingTest, CanBeForbidden) {
    host().settings().sharingAllowed = false;
    QuorUtilDataValueAlloc(1, 1);
    EXPECT_FALSE(QuorUtilDataSetIsSharingAllowed());
    EXPECT_FALSE(QuorUtilDataValueIsSharingOk(1, 2, 1));
    EXPECT_FALSE(QuorUtilDataValueShare(1, 2, 1));
}

TEST_F(SharingTest, CopyFetchesItsSourceAndStandsAlone) {
    source_.registerAt(1, 1);
    QuorUtilDataValueAlloc(2, 1);
    ASSERT_TRUE(QuorUtilDataValueCopy(1, 2, 1));
    QuorUtilZoneDelete(setOf({1}).get());
    EXPECT_EQ(firstFloat(host().fetch(1, 1)), 10.0F);
    EXPECT_EQ(source_.loadCount, 1);
}

TEST_F(SharingTest, CopyNeedsStorageToGoTo) {
    source_.registerAt(1, 1);
    EXPECT_FALSE(QuorUtilDataValueCopy(1, 2, 1));
    expectViolations({"QuorUtilDataValueCopy: the destination has no storage of its own"});
}

TEST_F(SharingTest, CopyFailsWithItsSource) {
    source_.loads = false;
    source_.registerAt(1, 1);
    QuorUtilDataValueAlloc(2, 1);
    EXPECT_FALSE(QuorUtilDataValueCopy(1, 2, 1));
}

class NodeMapSharingTest : public HostTest {
protected:
    NodeMapSharingTest() {
        createDataSet({"X"});
        addZone(5, 7, 3, QuorZoneType_Triangles);
    }
    static bool addSharing(std::int64_t i, std::int64_t j) {
        const HostArgList arguments = zoneArguments(i, j, 3, QuorZoneType_Triangles);
        QuorUtilArgListAppendInt(arguments.get(), "ConnectShareZone", 1);
        return QuorUtilDataSetAddZoneX(arguments.get());
    }
    static Zone_s& zone(std::int32_t number) { return *host().frame().dataSet()->zone(number); }
};

TEST_F(NodeMapSharingTest, NodesOutliveTheZoneTheyCameWith) {
    ASSERT_TRUE(addSharing(5, 7));
    QuorUtilDataNodeSetByRef(QuorUtilDataNodeGetRef(1), 7, 3, 5);
    EXPECT_EQ(host().frame().dataSet()->nodeMapHolders(), (std::vector<std::int32_t>{1, 1}));
    QuorUtilZoneDelete(setOf({1}).get());
    EXPECT_EQ(zone(1).nodeMap->nodes()[20], 5);
}

TEST_F(NodeMapSharingTest, NeedsEqualSizes) {
    EXPECT_FALSE(addSharing(5, 11));
    EXPECT_FALSE(addSharing(2, 7));
}

TEST_F(NodeMapSharingTest, CanBeForbidden) {
    host().settings().sharingAllowed = false;
    EXPECT_FALSE(addSharing(5, 7));
}

} // namespace
} // namespace quorvia::host
