// Node maps.
#include "HostFixture.h"

namespace quorvia::host {
namespace {

class ConnectivityTest : public HostTest {
protected:
    ConnectivityTest() {
        createDataSet({"X"});
        addZone(5, 7, 4, QuorZoneType_Tetrahedra);
    }
    static const NodeMap& nodeMap() { return *host().frame().dataSet()->zone(1)->nodeMap; }
};

TEST_F(ConnectivityTest, CornersOfAnElementLieTogether) {
    const QuorNodeMapHandle handle = QuorUtilDataNodeGetRef(1);
    QuorUtilDataNodeSetByRef(handle, 1, 2, 3);
    QuorUtilDataNodeSetByRef(handle, 2, 1, 5);
    EXPECT_EQ(nodeMap().nodes()[1], 3);
    EXPECT_EQ(nodeMap().nodes()[4], 5);
    EXPECT_EQ(nodeMap().nodes()[27], 0);
}

TEST_F(ConnectivityTest, IsNotAllocatedBeforeSomeoneAsks) {
    EXPECT_EQ(nodeMap().nodes(), nullptr);
}

TEST_F(ConnectivityTest, OrderedZoneHasNone) {
    addZone(2, 3, 5);
    EXPECT_EQ(QuorUtilDataNodeGetRef(2), nullptr);
}

TEST_F(ConnectivityTest, CanFailAsWithoutMemory) {
    host().failCall("QuorUtilDataNodeGetRef", 1);
    EXPECT_EQ(QuorUtilDataNodeGetRef(1), nullptr);
    EXPECT_NE(QuorUtilDataNodeGetRef(1), nullptr);
}

TEST_F(ConnectivityTest, ManyNodesAndElementsAreNoSizeTogether) {
    addZone(2'100'000'000, 140'000'000, 4, QuorZoneType_Tetrahedra);
    EXPECT_EQ(host().frame().dataSet()->zoneCount(), 2);
}

TEST_F(ConnectivityTest, NodesOutsideTheZoneAreBlamed) {
    const QuorNodeMapHandle handle = QuorUtilDataNodeGetRef(1);
    QuorUtilDataNodeSetByRef(handle, 8, 1, 1);
    QuorUtilDataNodeSetByRef(handle, 1, 5, 1);
    QuorUtilDataNodeSetByRef(handle, 1, 1, 6);
    QuorUtilDataNodeSetByRef(handle, 0, 1, 1);
    const std::string blame =
        "QuorUtilDataNodeSetByRef: element, corner or node is outside the zone";
    expectViolations({blame, blame, blame, blame});
}

TEST_F(ConnectivityTest, HandleEndsWithTheZones) {
    const QuorNodeMapHandle handle = QuorUtilDataNodeGetRef(1);
    QuorUtilZoneDelete(setOf({1}).get());
    QuorUtilDataNodeSetByRef(handle, 1, 1, 1);
    expectViolations({"QuorUtilDataNodeSetByRef: the zones of this node map are gone"});
}

} // namespace
} // namespace quorvia::host
