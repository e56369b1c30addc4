#include "describe/GatherOutcome.h"

#include <array>
#include <memory>

#include "host/describe/HandMadeFrame.h"

namespace quorvia::host {
namespace {

using GatherOutcome = HandMadeFrame;

TEST_F(GatherOutcome, TellsTheDataSet) {
    dataSet->auxData["Mach"] = "0.2";
    const DataSetOutcome_s outcome = described();
    EXPECT_EQ("Hand-made", outcome.title);
    EXPECT_EQ((std::vector<std::string>{"X", "Density "}), outcome.variables);
    EXPECT_EQ((AuxDataItems{{"Mach", "0.2"}}), outcome.auxData);
}

TEST_F(GatherOutcome, TellsAZone) {
    addZone(nullptr, nullptr);
    Zone_s& zone = addZone(nullptr, nullptr);
    zone.strandId = 7;
    zone.solutionTime = 0.25;
    zone.parentZoneId = dataSet->zone(1)->uniqueId;
    const ZoneOutcome_s outcome = described().zones.at(1);
    EXPECT_EQ(2, outcome.number);
    EXPECT_EQ("Zone", outcome.name);
    EXPECT_EQ((std::array<std::int64_t, 3>{2, 3, 5}),
              (std::array<std::int64_t, 3>{outcome.i, outcome.j, outcome.k}));
    EXPECT_EQ(7, outcome.strandId);
    EXPECT_EQ(0.25, outcome.solutionTime);
    EXPECT_EQ(1, outcome.parentZone);
}

TEST_F(GatherOutcome, TellsStatesBeforeAnyFetch) {
    addZone(deferred(), stored());
    addZone(dataSet->zone(1)->fields[0].storage, nullptr);
    const DataSetOutcome_s outcome = described();
    EXPECT_EQ(FieldState_e::Deferred, outcome.zones[0].fields[0].state);
    EXPECT_EQ(FieldState_e::Stored, outcome.zones[0].fields[1].state);
    EXPECT_EQ(FieldState_e::Deferred, outcome.zones[1].fields[0].state);
    EXPECT_EQ(FieldState_e::Empty, outcome.zones[1].fields[1].state);
    EXPECT_EQ(0, loads);
}

TEST_F(GatherOutcome, SharedFieldNamesTheLowestZoneThatHoldsIt) {
    addZone(nullptr, nullptr);
    addZone(deferred(), nullptr);
    addZone(dataSet->zone(2)->fields[0].storage, nullptr);
    addZone(dataSet->zone(2)->fields[0].storage, nullptr);
    const DataSetOutcome_s outcome = described();
    EXPECT_EQ(0, outcome.zones[1].fields[0].sharedWith);
    EXPECT_EQ(2, outcome.zones[2].fields[0].sharedWith);
    EXPECT_EQ(2, outcome.zones[3].fields[0].sharedWith);
}

TEST_F(GatherOutcome, ConnectivityIsToldWithItsChecksum) {
    auto nodeMap = std::make_shared<NodeMap>(3, 1, 3);
    ASSERT_TRUE(nodeMap->prepare());
    for (std::int32_t corner = 1; corner <= 3; ++corner)
        nodeMap->set(1, corner, corner);
    addTriangles(nodeMap);
    const ZoneOutcome_s zone = described().zones[0];
    ASSERT_TRUE(zone.connectivity.has_value());
    EXPECT_EQ(1, zone.connectivity->elements);
    EXPECT_EQ(3, zone.connectivity->corners);
    // Of the bytes 01 00 00 00 02 00 00 00 03 00 00 00, computed by another program.
    EXPECT_EQ(0xb0e02293U, zone.connectivity->crc32);
}

TEST_F(GatherOutcome, NodeMapInCommonNamesTheLowestZone) {
    auto nodeMap = std::make_shared<NodeMap>(3, 1, 3);
    ASSERT_TRUE(nodeMap->prepare());
    addTriangles(nodeMap);
    addTriangles(nodeMap);
    const DataSetOutcome_s outcome = described();
    EXPECT_EQ(0, outcome.zones[0].connectivitySharedWith);
    EXPECT_EQ(1, outcome.zones[1].connectivitySharedWith);
    EXPECT_EQ(outcome.zones[0].connectivity->crc32, outcome.zones[1].connectivity->crc32);
}

TEST_F(GatherOutcome, NodeMapThatNobodyWroteToIsNotTold) {
    addTriangles(std::make_shared<NodeMap>(3, 1, 3));
    EXPECT_FALSE(described().zones[0].connectivity.has_value());
}

TEST_F(GatherOutcome, OrderedZoneHasNoConnectivity) {
    addZone(nullptr, nullptr);
    EXPECT_FALSE(described().zones[0].connectivity.has_value());
}

TEST_F(GatherOutcome, FrameWithoutDataSetTellsNone) {
    host.frame().reset();
    LoadResult_s result;
    result.hostError = "No library.";
    const Outcome_s outcome = describeOutcome(host, result);
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ("No library.", outcome.hostError);
    EXPECT_FALSE(outcome.dataSet.has_value());
    EXPECT_EQ(QuorPlotType_None, outcome.plotType);
}

} // namespace
} // namespace quorvia::host
