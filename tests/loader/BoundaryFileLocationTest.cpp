// Where the boundary file of a grid file is looked for.
#include "boundary/BoundaryFileLocation.h"
#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

class BoundaryFileLocation : public LoaderTest {
protected:
    BoundaryFileLocation() {
        useFiles({directory.file("wing.x"), directory.file("tail.x")});
        options.boundaryFile = "left over";
    }
    bool find() { return quorutildataio::findBoundaryFile(options); }
};

TEST_F(BoundaryFileLocation, IsTheWholeNameOfTheFirstGridFileWithAnExtension) {
    const std::string file = directory.write("wing.x.fvbnd", "FVBND 1 4");
    EXPECT_TRUE(find());
    EXPECT_EQ(options.boundaryFile, file);
}

TEST_F(BoundaryFileLocation, MayBeInCapitals) {
    const std::string file = directory.write("wing.x.FVBND", "FVBND 1 4");
    EXPECT_TRUE(find());
    EXPECT_EQ(options.boundaryFile, file);
}

TEST_F(BoundaryFileLocation, PrefersSmallLetters) {
    directory.write("wing.x.FVBND", "FVBND 1 4");
    const std::string file = directory.write("wing.x.fvbnd", "FVBND 1 4");
    EXPECT_TRUE(find());
    EXPECT_EQ(options.boundaryFile, file);
}

TEST_F(BoundaryFileLocation, IsNotTheNameWithoutItsExtension) {
    directory.write("wing.fvbnd", "FVBND 1 4");
    directory.write("tail.x.fvbnd", "FVBND 1 4");
    EXPECT_FALSE(find());
    EXPECT_EQ(options.boundaryFile, "");
}

TEST_F(BoundaryFileLocation, NeedsAGridFile) {
    useFiles({});
    EXPECT_FALSE(find());
    EXPECT_EQ(options.boundaryFile, "");
}

} // namespace
} // namespace quorvia::testsupport
