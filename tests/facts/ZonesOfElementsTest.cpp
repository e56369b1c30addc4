// Solutions for zones of elements that are there, whatever they consist of.
#include "DatasetCompatibility.h"

namespace quorvia::testsupport {
namespace {

class ZonesOfElements : public DatasetCompatibility {
protected:
    ZonesOfElements() { files_.layout = Layout_e::Unstructured; }

    /// A zone of 7 nodes, whatever the host says that it consists of.
    static void thereIsAZoneOf(std::int32_t type) {
        thereAre(1, gridAndSolution);
        host::Zone_s& there = zone(1);
        there.type = type;
        there.i = 7;
        there.j = 5;
        there.k = type == QuorZoneType_Triangles ? 3 : 4;
    }
    Load_s solutionOf(std::int32_t nodes, const Settings& more = {}) {
        files_.grids = {{nodes, 0, 0}};
        Load_s load = solution(more);
        load.settings.insert(load.settings.end(), {{"AUTODETECT", "No"},
                                                   {"DATASTRUCTURE", "UNSTRUCTURED"},
                                                   {"STYLE", "PLOT3DCLASSIC"},
                                                   {"ISMULTIGRID", "Yes"}});
        return load;
    }
};

constexpr std::int32_t otherElements = 2; // a type that PLOT3D does not know

TEST_F(ZonesOfElements, AreComparedByTheirNodesIfTheyAreTrianglesOrTetrahedra) {
    for (const std::int32_t type : {QuorZoneType_Triangles, QuorZoneType_Tetrahedra}) {
        thereIsAZoneOf(type);
        host().clearLog();
        EXPECT_FALSE(load(solutionOf(11)).ok);
        EXPECT_EQ(messages(), Texts{sizeFault(1, 1)});
        thereIsAZoneOf(type);
        EXPECT_EQ(zonesAfter(solutionOf(7)), Texts{"a.q:1"});
    }
}

// They pass this check, and another one looks whether the values fit.
TEST_F(ZonesOfElements, OfOtherTypesAreNotCompared) {
    thereIsAZoneOf(otherElements);
    const Load_s load = solutionOf(11);
    EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(messages(), Texts{"The solution file does not fit the zones that are there.\nFile: " +
                                load.solutionFiles.front()});
}

TEST_F(ZonesOfElements, OfOtherTypesDoNotGiveTheirsToNewZones) {
    for (const std::int32_t type : {otherElements, std::int32_t{QuorZoneType_Ordered}}) {
        thereIsAZoneOf(type);
        const Load_s load = solutionOf(7, onto);
        host().clearLog();
        EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
        EXPECT_TRUE(host().log().undo.empty());
        EXPECT_EQ(messages(),
                  (Texts{"Zone 1 has neither triangles nor tetrahedra that a zone of an "
                         "unstructured solution could have.",
                         "Invalid Plot 3D solution file.\nFile: " + load.solutionFiles.front()}));
        EXPECT_EQ(zoneNames(), Texts{"old"});
    }
}

TEST_F(ZonesOfElements, OfOtherTypesAreLeftByAReplacementThatWouldAddZones) {
    thereIsAZoneOf(otherElements);
    Load_s load = solutionOf(7);
    load.solutionFiles.push_back(files_.solution("b.q", 2));
    EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(messages().size(), 2U);
    EXPECT_EQ(messages().back(),
              "Invalid Plot 3D solution file.\nFile: " + load.solutionFiles.back());
    EXPECT_EQ(zoneNames(), Texts{"old"});
}

} // namespace
} // namespace quorvia::testsupport
