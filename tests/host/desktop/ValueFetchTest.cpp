#include "host/desktop/DesktopFixture.h"

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

/// Two time steps on one grid, in the host, and as describeOutcome() tells them.
class ValueFetchTest : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        writeSample({"vortex", "--steps", "2", "--size", "7x5"});
        import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q"});
        dataSet_ = *window().tree().dataSet();
    }
    FetchEnd_e fetch(const std::vector<FieldAddress_s>& fields,
                     std::int64_t mostBytes = 1'000'000) {
        return fetchFields(host(), dataSet_, fields, [mostBytes](std::int64_t done, std::int64_t) {
            return done < mostBytes;
        });
    }
    const FieldOutcome_s& field(std::int32_t zone, std::int32_t variable) const {
        return *findField(dataSet_, {zone, variable});
    }

private:
    DataSetOutcome_s dataSet_;
};

TEST_F(ValueFetchTest, FetchesWhatIsAskedForAndNothingElse) {
    EXPECT_EQ(fetch({{2, 4}}), FetchEnd_e::Done);
    EXPECT_TRUE(field(2, 4).statistics.has_value());
    EXPECT_FALSE(field(1, 4).statistics.has_value());
}

TEST_F(ValueFetchTest, SharedFieldIsToldOfEveryHolder) {
    EXPECT_EQ(fetch({{2, 1}}), FetchEnd_e::Done);
    for (const std::int32_t zone : {1, 2}) {
        ASSERT_TRUE(field(zone, 1).statistics.has_value());
        EXPECT_EQ(field(zone, 1).statistics->max, 5.0);
    }
}

TEST_F(ValueFetchTest, StopsWhenItIsTold) {
    EXPECT_EQ(fetch({{1, 3}, {2, 3}}, 1), FetchEnd_e::Stopped);
    EXPECT_TRUE(field(1, 3).statistics.has_value());
    EXPECT_FALSE(field(2, 3).statistics.has_value());
}

TEST_F(ValueFetchTest, UnknownFieldsArePassedOver) {
    EXPECT_EQ(fetch({{0, 1}, {3, 1}, {1, 7}, {1, 0}}), FetchEnd_e::Done);
}

} // namespace
} // namespace quorvia::host
