#include "dataset/items/Connectivity.h"

#include <filesystem>

#include "DatasetFixture.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

const GridList surface = {{11, 5, 0}};
const GridList volume = {{11, 0, 7}};
const GridList twoSurfaces = {{11, 5, 0}, {7, 3, 0}};

class Connectivity : public DatasetTest {
protected:
    static std::vector<std::int32_t> nodesOf(std::int32_t zoneNumber) {
        const host::NodeMap& map = *zone(zoneNumber).nodeMap;
        if (map.nodes() == nullptr)
            return {};
        return {map.nodes(), map.nodes() + map.elementCount() * map.cornerCount()};
    }
    static std::vector<std::int32_t> nodesOf(const FileDescription_s& grid, std::int32_t gridIndex,
                                             std::int64_t elements, std::int32_t corners) {
        std::vector<std::int32_t> nodes;
        for (std::int64_t element = 0; element < elements; ++element)
            for (std::int32_t corner = 0; corner < corners; ++corner)
                nodes.push_back(grid.corner(gridIndex, element, corner));
        return nodes;
    }
    /// The grids with one node number of the last grid changed.
    static FileDescription_s withNode(const GridList& grids, std::int32_t gridIndex,
                                      std::int32_t node) {
        FileDescription_s grid = describeGrid(grids, Layout_e::Unstructured);
        grid.corner = [=](std::int32_t g, std::int64_t element, std::int32_t corner) {
            return g == gridIndex && element == 1 && corner == 2 ? node : 1;
        };
        return grid;
    }
};

class ConnectivityInEveryForm : public Connectivity,
                                public ::testing::WithParamInterface<FileForm_s> {};

TEST_P(ConnectivityInEveryForm, OfTrianglesLandsInTheZone) {
    FileDescription_s grid = describeGrid(surface, Layout_e::Unstructured);
    grid.triangleTag = [](std::int32_t, std::int64_t triangle) {
        return static_cast<std::int32_t>(-1000 * triangle);
    };
    ASSERT_TRUE(load({step(&write("x", grid, GetParam()))}));
    EXPECT_EQ(zone(1).type, QuorZoneType_Triangles);
    EXPECT_EQ(nodesOf(1), nodesOf(grid, 0, 5, 3));
    EXPECT_EQ(values(1, 3), fieldOf(grid, 0, 2));
}

TEST_P(ConnectivityInEveryForm, OfTetrahedraLandsInTheZone) {
    const FileDescription_s grid = describeGrid(volume, Layout_e::Unstructured);
    ASSERT_TRUE(load({step(&write("x", grid, GetParam()))}));
    EXPECT_EQ(zone(1).type, QuorZoneType_Tetrahedra);
    EXPECT_EQ(nodesOf(1), nodesOf(grid, 0, 7, 4));
}

INSTANTIATE_TEST_SUITE_P(All, ConnectivityInEveryForm,
                         ::testing::Values(text(), binary(), binary(ByteOrder_e::Big), fortran()));

TEST_F(Connectivity, IsAnnounced) {
    ASSERT_TRUE(load({step(&write("x", describeGrid(surface, Layout_e::Unstructured)))}));
    const std::string path = options.gridFiles[0];
    EXPECT_EQ(host().log().progress.texts().back(),
              "Loading Connectivity for Zone=001, from Grid 001 in "
              "..." +
                  path.substr(path.size() - 17) + ".");
}

TEST_F(Connectivity, RefusesNodesOutsideTheGrid) {
    EXPECT_FALSE(load({step(&write("x", withNode(surface, 0, 0)))}));
    EXPECT_FALSE(load({step(&write("x", withNode(surface, 0, 12)))}));
    EXPECT_FALSE(load({step(&write("x", withNode(twoSurfaces, 1, 8)))}));
    EXPECT_EQ(messages(),
              (Texts{"Corrupt Connectivity List, Grid=1.", "Corrupt Connectivity List, Grid=1.",
                     "Corrupt Connectivity List, Grid=2."}));
}

TEST_F(Connectivity, TakesTheLastNode) {
    EXPECT_TRUE(load({step(&write("x", withNode(surface, 0, 11)))}));
    EXPECT_EQ(nodesOf(1)[5], 11);
}

TEST_F(Connectivity, OfAGridThatIsNotLoadedIsTestedAllTheSame) {
    selectGrids({2});
    EXPECT_FALSE(load({step(&write("x", withNode(twoSurfaces, 0, 12)))}));
    EXPECT_EQ(messages(), Texts{"Corrupt Connectivity List, Grid=1."});
}

TEST_F(Connectivity, OfAGridThatIsNotLoadedIsReadPast) {
    const FileDescription_s grid = describeGrid(twoSurfaces, Layout_e::Unstructured);
    selectGrids({2});
    ASSERT_TRUE(load({step(&write("x", grid))}));
    EXPECT_EQ(zoneCount(), 1);
    EXPECT_EQ(nodesOf(1), nodesOf(grid, 1, 3, 3));
}

// The file ends inside the integers behind the triangles.
TEST_F(Connectivity, ThatBreaksOffIsCorrupt) {
    Plot3DFile_s& file = write("x", describeGrid(surface, Layout_e::Unstructured));
    std::filesystem::resize_file(file.fileName.str(),
                                 static_cast<std::uintmax_t>(file.fileSize - 4));
    EXPECT_FALSE(load({step(&file)}));
    EXPECT_EQ(messages(), Texts{"Corrupt Connectivity List, Grid=1."});
}

TEST_F(Connectivity, ReadsRepeatCountsOfText) {
    Plot3DFile_s& file = writeBytes("x", "2*3 1 2*2.0 3");
    ASSERT_TRUE(openPlot3DFile(file));
    EXPECT_TRUE(readElementNodes(file, false, nullptr, 1, 3, 3));
    EXPECT_TRUE(skipIntegers(file, 0));
    EXPECT_FALSE(skipIntegers(file, 7));
}

} // namespace
