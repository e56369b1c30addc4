#include "acceptance/transcripts/GoldenFile.h"

#include <cstdlib>

namespace quorvia::testsupport {
namespace {

TEST(GoldenFile, DifferenceIsTheLinesThatDiffer) {
    EXPECT_EQ(differenceOf({"a", "b", "c", "d"}, {"a", "x", "y", "d"}),
              "  1: a\n- b\n- c\n+ x\n+ y\n  4: d\n");
}

TEST(GoldenFile, DifferenceOfALongerTextIsWhatWasAdded) {
    EXPECT_EQ(differenceOf({"a", "a"}, {"a", "a", "a"}), "  2: a\n+ a\n");
    EXPECT_EQ(differenceOf({}, {"a"}), "+ a\n");
}

TEST(GoldenFile, ThatIsMissingIsADifference) {
    if (std::getenv("PLOT3D_UPDATE_GOLDEN") != nullptr)
        GTEST_SKIP() << "golden files are being written";
    EXPECT_FALSE(isGolden("no-such-file.txt", {"a"}));
}

} // namespace
} // namespace quorvia::testsupport
