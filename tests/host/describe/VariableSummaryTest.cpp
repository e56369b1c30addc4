#include "describe/VariableSummary.h"

#include <gtest/gtest.h>

#include "host/describe/OutcomeSamples.h"

namespace quorvia::host {
namespace {

TEST(VariableSummary, SpansTheZonesThatWereFetched) {
    DataSetOutcome_s dataSet = *loadedOutcome(3).dataSet;
    dataSet.zones[1].fields[1] = fetchedField(2, -11, 1);
    dataSet.zones[2].fields[1].statistics.reset();
    const VariableSummary_s summary = summariseVariable(dataSet, 2);
    EXPECT_EQ(summary.min, -11);
    EXPECT_EQ(summary.max, 7);
    EXPECT_EQ(summary.fetchedCount, 2U);
    EXPECT_EQ(summary.fieldCount, 3U);
}

TEST(VariableSummary, TellsTypesOfEmptyFieldsTooButCountsThemNot) {
    DataSetOutcome_s dataSet = *loadedOutcome(2).dataSet;
    dataSet.zones[1].fields[0] = FieldOutcome_s();
    dataSet.zones[1].fields[0].type = QuorFieldDataType_Double;
    const VariableSummary_s summary = summariseVariable(dataSet, 1);
    EXPECT_EQ(summary.types.size(), 2U);
    EXPECT_EQ(summary.lastType, QuorFieldDataType_Float);
    EXPECT_EQ(summary.fieldCount, 1U);
}

TEST(VariableSummary, OfAVariableThatIsNotThereHasNoRange) {
    const VariableSummary_s summary = summariseVariable(*loadedOutcome(1).dataSet, 7);
    EXPECT_FALSE(summary.hasRange());
    EXPECT_EQ(summary.fieldCount, 0U);
}

} // namespace
} // namespace quorvia::host
