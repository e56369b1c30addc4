// Auxiliary data.
#include "HostFixture.h"

namespace quorvia::host {
namespace {

class AuxDataTest : public HostTest {
protected:
    AuxDataTest() {
        createDataSet({"X"});
        addZone(2, 3, 5);
    }
};

TEST_F(AuxDataTest, ZoneAndDataSetHaveTheirOwn) {
    EXPECT_TRUE(QuorUtilAuxDataSetItem(QuorUtilAuxDataZoneGetRef(1), "Common.Mach", "0.5", 0, 1));
    EXPECT_TRUE(QuorUtilAuxDataSetItem(QuorUtilAuxDataDataSetGetRef(), "Common.U", "4", 0, 1));
    const DataSet& data = *host().frame().dataSet();
    EXPECT_EQ(data.zone(1)->auxData, (AuxData{{"Common.Mach", "0.5"}}));
    EXPECT_EQ(data.auxData, (AuxData{{"Common.U", "4"}}));
}

TEST_F(AuxDataTest, ItemOfOneNameIsReplaced) {
    const QuorAuxDataHandle handle = QuorUtilAuxDataZoneGetRef(1);
    QuorUtilAuxDataSetItem(handle, "Common.Mach", "0.5", 0, 1);
    QuorUtilAuxDataSetItem(handle, "Common.Mach", "0.7", 0, 1);
    EXPECT_EQ(host().frame().dataSet()->zone(1)->auxData.at("Common.Mach"), "0.7");
}

TEST_F(AuxDataTest, IsMissingWithoutZoneOrDataSet) {
    EXPECT_EQ(QuorUtilAuxDataZoneGetRef(2), nullptr);
    QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
    EXPECT_EQ(QuorUtilAuxDataDataSetGetRef(), nullptr);
}

TEST_F(AuxDataTest, HandleFollowsItsZoneAndEndsWithIt) {
    addZone(7, 1, 1);
    const QuorAuxDataHandle first = QuorUtilAuxDataZoneGetRef(1);
    const QuorAuxDataHandle second = QuorUtilAuxDataZoneGetRef(2);
    QuorUtilZoneDelete(setOf({1}).get());
    EXPECT_TRUE(QuorUtilAuxDataSetItem(second, "A", "b", 0, 1));
    EXPECT_EQ(host().frame().dataSet()->zone(1)->auxData, (AuxData{{"A", "b"}}));
    EXPECT_FALSE(QuorUtilAuxDataSetItem(first, "A", "b", 0, 1));
    expectViolations(
        {"QuorUtilAuxDataSetItem: the zone or data set of these auxiliary data is gone"});
}

TEST_F(AuxDataTest, OnlyRetainedStringsAreTaken) {
    EXPECT_FALSE(QuorUtilAuxDataSetItem(QuorUtilAuxDataZoneGetRef(1), "A", "b", 1, 1));
    expectViolations({"QuorUtilAuxDataSetItem: type is not 0, or retain is not 1"});
}

} // namespace
} // namespace quorvia::host
