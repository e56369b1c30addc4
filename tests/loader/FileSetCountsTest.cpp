// What the flags of a load say of its numbers of files. The numbers themselves:
// tests/facts/FileCountsTest.cpp.
#include "loader/FileSetCounts.h"
#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

class FileSetCountFlags : public LoaderTest {};

TEST_F(FileSetCountFlags, OneClearFlagLetsAnyCountsPassWithoutFunctionFiles) {
    useFiles(Texts(3, "a.x"), Texts(2, "a.q"));
    options.hasSolutionFiles = false;
    EXPECT_TRUE(quorutildataio::checkFileSetCounts(options));
    options.hasSolutionFiles = true;
    options.hasGridFiles = false;
    EXPECT_TRUE(quorutildataio::checkFileSetCounts(options));
}

} // namespace
} // namespace quorvia::testsupport
