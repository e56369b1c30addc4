#include "describe/ValueFetch.h"

#include <memory>

#include "host/describe/HandMadeFrame.h"

namespace quorvia::host {
namespace {

class ValueFetch : public HandMadeFrame {
protected:
    DataSetOutcome_s fetched() {
        DataSetOutcome_s outcome = described();
        EXPECT_TRUE(fetchValues(host, outcome));
        return outcome;
    }
    /// Of the fields that are given alone.
    FetchEnd_e fetch(DataSetOutcome_s& outcome, const std::vector<FieldAddress_s>& fields) {
        return fetchFields(host, outcome, fields, {});
    }
    /// Whether the field's values are known.
    static bool isTold(const DataSetOutcome_s& outcome, FieldAddress_s field) {
        return findField(outcome, field)->statistics.has_value();
    }
};

TEST_F(ValueFetch, FetchedFieldTellsItsValues) {
    addZone(deferred(), nullptr);
    const FieldOutcome_s field = fetched().zones[0].fields[0];
    ASSERT_TRUE(field.statistics.has_value());
    EXPECT_EQ(1, field.statistics->min);
    EXPECT_EQ(30, field.statistics->max);
    EXPECT_EQ(15.5, field.statistics->mean);
    EXPECT_EQ(30, field.count);
}

TEST_F(ValueFetch, FieldThatWasFetchedStaysDeferredInTheOutcome) {
    addZone(deferred(), nullptr);
    EXPECT_EQ(FieldState_e::Deferred, fetched().zones[0].fields[0].state);
}

TEST_F(ValueFetch, FieldOfManyZonesIsFetchedOnce) {
    constexpr int zoneCount = 2003;
    host.settings().memoryLimitBytes = 1; // so that a second look would be a second fetch
    const std::shared_ptr<FieldStorage> grid = deferred();
    for (int zone = 0; zone < zoneCount; ++zone)
        addZone(grid, nullptr);
    const DataSetOutcome_s outcome = fetched();
    EXPECT_EQ(1, loads);
    EXPECT_EQ(15.5, outcome.zones[zoneCount - 1].fields[0].statistics->mean);
}

TEST_F(ValueFetch, FieldThatFailsTellsWhyInEveryZone) {
    addZone(deferred(false), nullptr);
    addZone(dataSet->zone(1)->fields[0].storage, nullptr);
    const DataSetOutcome_s outcome = fetched();
    EXPECT_EQ("The values could not be read.", outcome.zones[0].fields[0].error);
    EXPECT_EQ("The values could not be read.", outcome.zones[1].fields[0].error);
    EXPECT_FALSE(outcome.zones[0].fields[0].statistics.has_value());
    EXPECT_EQ(1, loads);
}

TEST_F(ValueFetch, EmptyFieldHasNeitherValuesNorError) {
    addZone(nullptr, nullptr);
    const FieldOutcome_s field = fetched().zones[0].fields[0];
    EXPECT_FALSE(field.statistics.has_value());
    EXPECT_FALSE(field.error.has_value());
    EXPECT_EQ(30, field.count);
}

TEST_F(ValueFetch, ObserverCountsBytesAndEndsTheFetching) {
    constexpr std::int64_t fieldBytes = 4 * handMadeValueCount;
    addZone(deferred(), deferred());
    addZone(deferred(), deferred());
    DataSetOutcome_s outcome = described();
    EXPECT_FALSE(fetchValues(host, outcome, [](std::int64_t done, std::int64_t total) {
        EXPECT_EQ(4 * fieldBytes, total);
        return done < 3 * fieldBytes;
    }));
    EXPECT_EQ(3, loads);
    EXPECT_FALSE(outcome.zones[1].fields[1].statistics.has_value());
}

// ---- Some fields --------------------------------------------------------------------------------

TEST_F(ValueFetch, FetchesWhatIsAskedForAndNothingElse) {
    addZone(deferred(), deferred());
    addZone(deferred(), deferred());
    DataSetOutcome_s outcome = described();
    EXPECT_EQ(fetch(outcome, {{2, 2}}), FetchEnd_e::Done);
    EXPECT_TRUE(isTold(outcome, {2, 2}));
    EXPECT_FALSE(isTold(outcome, {1, 2}));
    EXPECT_EQ(loads, 1);
}

TEST_F(ValueFetch, SharedFieldIsFetchedOnceAndToldOfEveryHolder) {
    addZone(deferred(), nullptr);
    addZone(dataSet->zone(1)->fields[0].storage, nullptr);
    addZone(dataSet->zone(1)->fields[0].storage, nullptr);
    DataSetOutcome_s outcome = described();
    EXPECT_EQ(fetch(outcome, {{3, 1}, {2, 1}}), FetchEnd_e::Done);
    for (const std::int32_t zone : {1, 2, 3})
        EXPECT_TRUE(isTold(outcome, {zone, 1}));
    EXPECT_EQ(loads, 1);
}

TEST_F(ValueFetch, BytesOfASharedFieldAreCountedOnce) {
    addZone(deferred(), nullptr);
    addZone(dataSet->zone(1)->fields[0].storage, nullptr);
    DataSetOutcome_s outcome = described();
    fetchFields(host, outcome, {{1, 1}, {2, 1}}, [](std::int64_t, std::int64_t byteCount) {
        EXPECT_EQ(byteCount, 4 * handMadeValueCount);
        return true;
    });
}

TEST_F(ValueFetch, FirstFailureEndsTheFetching) {
    addZone(deferred(false), deferred());
    DataSetOutcome_s outcome = described();
    EXPECT_EQ(fetch(outcome, {{1, 1}, {1, 2}}), FetchEnd_e::Failed);
    EXPECT_TRUE(findField(outcome, {1, 1})->error.has_value());
    EXPECT_FALSE(isTold(outcome, {1, 2}));
}

TEST_F(ValueFetch, FieldThatFailedIsTriedAgainWhenAskedForAgain) {
    addZone(deferred(false), nullptr);
    DataSetOutcome_s outcome = described();
    fetch(outcome, {{1, 1}});
    EXPECT_EQ(fetch(outcome, {{1, 1}}), FetchEnd_e::Failed);
    EXPECT_EQ(loads, 2);
}

TEST_F(ValueFetch, StopsWhenItIsTold) {
    addZone(deferred(), deferred());
    DataSetOutcome_s outcome = described();
    EXPECT_EQ(fetchFields(host, outcome, {{1, 1}, {1, 2}},
                          [](std::int64_t done, std::int64_t) { return done == 0; }),
              FetchEnd_e::Stopped);
    EXPECT_TRUE(isTold(outcome, {1, 1}));
    EXPECT_FALSE(isTold(outcome, {1, 2}));
}

TEST_F(ValueFetch, UnknownFieldsArePassedOver) {
    addZone(deferred(), nullptr);
    DataSetOutcome_s outcome = described();
    EXPECT_EQ(fetch(outcome, {{0, 1}, {2, 1}, {1, 3}, {1, 0}}), FetchEnd_e::Done);
    EXPECT_EQ(loads, 0);
}

TEST_F(ValueFetch, ValuesAreForgotten) {
    addZone(deferred(), deferred(false));
    EXPECT_TRUE(withoutValues(fetched()) == described());
}

} // namespace
} // namespace quorvia::host
