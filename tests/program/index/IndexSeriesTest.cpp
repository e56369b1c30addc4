// Several times of two grids through each index.
#include "IndexFixture.h"

namespace quorvia::testsupport {
namespace {

class IndexSeries : public IndexTest, public ::testing::WithParamInterface<bool> {};

TEST_P(IndexSeries, HoldsEveryValueOfEveryTime) {
    const std::string where = folder("series");
    const std::vector<std::string> files = writeSeries(where, 3, GetParam());
    for (const std::string ending : {"cgns", "json", "xmf2"})
        EXPECT_EQ(index(files, where + "/out." + ending), 0);
    expectWhatTheLibraryFinds(where, files);
    expectReadBack(3);
}

INSTANTIATE_TEST_SUITE_P(Grids, IndexSeries, ::testing::Bool(),
                         [](const auto& tested) { return tested.param ? "Move" : "StandStill"; });

} // namespace
} // namespace quorvia::testsupport
