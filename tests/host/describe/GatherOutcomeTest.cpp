#include "describe/GatherOutcome.h"

#include <array>
#include <memory>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

constexpr std::int64_t kValueCount = 2 * 3 * 5;

/// Gives 1, 2, 3 ... and counts how often it was asked, or refuses.
class CountingDeferral : public Deferral {
public:
    CountingDeferral(int& loads, bool works) : loads_(loads), works_(works) {}
    bool load(FieldStorage& storage) noexcept override {
        ++loads_;
        auto* values = static_cast<float*>(storage.values());
        for (std::int64_t index = 0; works_ && index < storage.valueCount(); ++index)
            values[index] = static_cast<float>(index + 1);
        return works_;
    }
    bool mayUnload(FieldStorage&) noexcept override { return true; }

private:
    int& loads_;
    bool works_;
};

/// The frame is filled by hand: what is told must not depend on how it came in.
class GatherOutcome : public testing::Test {
protected:
    GatherOutcome() {
        host.reset();
        dataSet = &host.frame().createDataSet("Loader", "Hand-made", {"X", "Density "});
    }
    ~GatherOutcome() override { host.reset(); }

    static Field fieldOf(std::shared_ptr<FieldStorage> storage) {
        Field field;
        field.storage = std::move(storage);
        return field;
    }
    std::shared_ptr<FieldStorage> deferred(bool works = true) {
        return FieldStorage::deferred<CountingDeferral>(QuorFieldDataType_Float, kValueCount, loads,
                                                        works);
    }
    static std::shared_ptr<FieldStorage> stored() {
        return FieldStorage::stored(QuorFieldDataType_Float, kValueCount);
    }

    /// An ordered zone of 2 x 3 x 5 points; null storage is an empty field.
    Zone& addZone(std::shared_ptr<FieldStorage> x, std::shared_ptr<FieldStorage> density) {
        auto zone = std::make_unique<Zone>();
        zone->name = "Zone";
        zone->i = 2;
        zone->j = 3;
        zone->k = 5;
        zone->fields = {fieldOf(std::move(x)), fieldOf(std::move(density))};
        return dataSet->addZone(std::move(zone));
    }

    /// A zone of triangles over three nodes.
    Zone& addTriangles(std::shared_ptr<NodeMap> nodeMap) {
        Zone& zone = addZone(nullptr, nullptr);
        zone.type = QuorZoneType_Triangles;
        zone.i = nodeMap->nodeCount();
        zone.j = nodeMap->elementCount();
        zone.k = nodeMap->cornerCount();
        zone.nodeMap = std::move(nodeMap);
        return zone;
    }

    DataSetOutcome_s described() {
        LoadResult result;
        result.ok = true;
        return describeOutcome(host, result).dataSet.value();
    }
    DataSetOutcome_s fetched() {
        DataSetOutcome_s outcome = described();
        EXPECT_TRUE(fetchValues(host, outcome));
        return outcome;
    }

    ReferenceHost& host = ReferenceHost::instance();
    DataSet* dataSet = nullptr;
    int loads = 0;
};

TEST_F(GatherOutcome, TellsTheDataSet) {
    dataSet->auxData["Mach"] = "0.2";
    const DataSetOutcome_s outcome = described();
    EXPECT_EQ("Hand-made", outcome.title);
    EXPECT_EQ((std::vector<std::string>{"X", "Density "}), outcome.variables);
    EXPECT_EQ((AuxDataItems{{"Mach", "0.2"}}), outcome.auxData);
}

TEST_F(GatherOutcome, TellsAZone) {
    addZone(nullptr, nullptr);
    Zone& zone = addZone(nullptr, nullptr);
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
    EXPECT_EQ(FieldState::Deferred, outcome.zones[0].fields[0].state);
    EXPECT_EQ(FieldState::Stored, outcome.zones[0].fields[1].state);
    EXPECT_EQ(FieldState::Deferred, outcome.zones[1].fields[0].state);
    EXPECT_EQ(FieldState::Empty, outcome.zones[1].fields[1].state);
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

TEST_F(GatherOutcome, FetchedFieldTellsItsValues) {
    addZone(deferred(), nullptr);
    const FieldOutcome_s field = fetched().zones[0].fields[0];
    ASSERT_TRUE(field.statistics.has_value());
    EXPECT_EQ(1, field.statistics->min);
    EXPECT_EQ(30, field.statistics->max);
    EXPECT_EQ(15.5, field.statistics->mean);
    EXPECT_EQ(30, field.count);
}

TEST_F(GatherOutcome, FieldThatWasFetchedStaysDeferredInTheOutcome) {
    addZone(deferred(), nullptr);
    EXPECT_EQ(FieldState::Deferred, fetched().zones[0].fields[0].state);
}

TEST_F(GatherOutcome, FieldOfManyZonesIsFetchedOnce) {
    constexpr int kZones = 2003;
    host.settings().memoryLimitBytes = 1; // so that a second look would be a second fetch
    const std::shared_ptr<FieldStorage> grid = deferred();
    for (int zone = 0; zone < kZones; ++zone)
        addZone(grid, nullptr);
    const DataSetOutcome_s outcome = fetched();
    EXPECT_EQ(1, loads);
    EXPECT_EQ(15.5, outcome.zones[kZones - 1].fields[0].statistics->mean);
}

TEST_F(GatherOutcome, FieldThatFailsTellsWhyInEveryZone) {
    addZone(deferred(false), nullptr);
    addZone(dataSet->zone(1)->fields[0].storage, nullptr);
    const DataSetOutcome_s outcome = fetched();
    EXPECT_EQ("The values could not be read.", outcome.zones[0].fields[0].error);
    EXPECT_EQ("The values could not be read.", outcome.zones[1].fields[0].error);
    EXPECT_FALSE(outcome.zones[0].fields[0].statistics.has_value());
    EXPECT_EQ(1, loads);
}

TEST_F(GatherOutcome, EmptyFieldHasNeitherValuesNorError) {
    addZone(nullptr, nullptr);
    const FieldOutcome_s field = fetched().zones[0].fields[0];
    EXPECT_FALSE(field.statistics.has_value());
    EXPECT_FALSE(field.error.has_value());
    EXPECT_EQ(30, field.count);
}

TEST_F(GatherOutcome, ObserverCountsBytesAndEndsTheFetching) {
    constexpr std::int64_t kFieldBytes = 4 * kValueCount;
    addZone(deferred(), deferred());
    addZone(deferred(), deferred());
    DataSetOutcome_s outcome = described();
    EXPECT_FALSE(fetchValues(host, outcome, [](std::int64_t done, std::int64_t total) {
        EXPECT_EQ(4 * kFieldBytes, total);
        return done < 3 * kFieldBytes;
    }));
    EXPECT_EQ(3, loads);
    EXPECT_FALSE(outcome.zones[1].fields[1].statistics.has_value());
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
    LoadResult result;
    result.hostError = "No library.";
    const Outcome_s outcome = describeOutcome(host, result);
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ("No library.", outcome.hostError);
    EXPECT_FALSE(outcome.dataSet.has_value());
    EXPECT_EQ(QuorPlotType_None, outcome.plotType);
}

} // namespace
} // namespace quorvia::host
