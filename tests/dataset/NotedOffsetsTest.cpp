#include "dataset/items/NotedOffsets.h"
#include "DatasetFixture.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

class NotedOffsets : public DatasetTest {
protected:
    void SetUp() override { ASSERT_TRUE(allocateOffsets(offsets, 3, "offsets")); }
    void TearDown() override {
        offsets.reset();
        DatasetTest::TearDown();
    }

    Plot3DOffsets offsets;
};

TEST_F(NotedOffsets, AreEmptyUntilAScanComes) {
    EXPECT_EQ(notedOffset(offsets, 1), std::nullopt);
    noteOffset(offsets, 1, 0);
    EXPECT_EQ(notedOffset(offsets, 1), 0);
    EXPECT_EQ(notedOffset(offsets, 2), std::nullopt);
}

TEST_F(NotedOffsets, BeyondTheEntriesAreNeitherKeptNorFound) {
    for (const std::int64_t entry : {-1, 3}) {
        noteOffset(offsets, entry, 7);
        EXPECT_EQ(notedOffset(offsets, entry), std::nullopt) << entry;
    }
}

TEST_F(NotedOffsets, AreCopiedAsFarAsAsked) {
    for (const std::int64_t entry : {0, 1, 2})
        noteOffset(offsets, entry, 11 + entry);
    Plot3DOffsets copy;
    EXPECT_TRUE(copyOffsets(offsets, copy, 2, "copy"));
    EXPECT_EQ(copy.count(), 2);
    EXPECT_EQ(notedOffset(copy, 1), 12);
    EXPECT_FALSE(copyOffsets(copy, offsets, 3, "copy"));
}

TEST_F(NotedOffsets, OfAFieldStandByGridAndVariable) {
    Plot3DFile_s& file = recordOf("q");
    file.numVars = 5;
    EXPECT_EQ(fieldEntry(file, 3, 2), 3 * 5 + 2);
}

} // namespace
