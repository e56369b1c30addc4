// Which files go onto a data set that is there: what neither instructions nor dialog let through to
// the load. The rest is the same on every road and stands in tests/facts.
#include "loader/DatasetCompatibility.h"

#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

const GridList otherSize = {{2, 3, 7}};

class DatasetCompatibility : public LoaderTest {
protected:
    void thereIsASolution() {
        makeOldDataSet(gridAndSolution, 1);
        host().frame().setPlotType(QuorPlotType_3D);
    }
    /// What the user is told when the load is refused; the data set must be as it was.
    std::string refusal() {
        const Texts variables = variableNames();
        const std::int32_t zones = zoneCount();
        EXPECT_FALSE(load());
        EXPECT_EQ(variableNames(), variables);
        EXPECT_EQ(zoneCount(), zones);
        EXPECT_TRUE(host().log().stateChanges.empty());
        EXPECT_TRUE(host().log().undo.empty());
        EXPECT_EQ(messages().size(), 1U);
        return messages().empty() ? "" : messages().front();
    }
};

TEST_F(DatasetCompatibility, WantsADataSetToAppendAGridTo) {
    useFiles({gridFile("a.x", oneGrid)});
    options.append = true;
    EXPECT_EQ(refusal(), "No dataset present in Quorvia.  Cannot load solution only plot3d "
                         "files.");
}

TEST_F(DatasetCompatibility, AppendsNoListOfGridsThatIsEmpty) {
    thereIsASolution();
    useFiles({}, {solutionFile("a.q", oneGrid, 1)});
    options.hasGridFiles = true;
    options.append = true;
    EXPECT_EQ(refusal(), "The list of grid files to append is empty.");
}

// No instructions and no dialog name a grid file without the flag.
TEST_F(DatasetCompatibility, WarnsOfBoundaryZonesWhereSizesDiffer) {
    thereIsASolution();
    useFiles({gridFile("a.x", otherSize)}, {solutionFile("a.q", otherSize, 1)});
    options.hasGridFiles = false;
    directory.write("a.x.fvbnd", "FVBND 1 4\nBOUNDARIES\n");
    options.loadBoundary = true;
    EXPECT_EQ(
        refusal(),
        "Zone 1 in quorvia does not have the same dimensions as grid 1 in the incoming plot3d "
        "source file.  These must be the same in order to replace the existing solution."
        "\nThe existence of boundary zones will not allow appending. Please "
        "remove the boundary file or load all files at the same time.");
}

} // namespace
} // namespace quorvia::testsupport
