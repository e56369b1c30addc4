// What ParaView finds through indexes: every row of the matrix that they can tell of, and several
// zones and times on two ranks.
#include "program/index/IndexFixture.h"
#include "program/index/IndexRows.h"

namespace quorvia::testsupport {
namespace {

class ParaView : public IndexTest {
protected:
    ParaView() : IndexTest(READ_PARAVIEW_SCRIPT) {}

    /// Steps of two grids, in a folder of that name.
    void indexSeries(const std::string& name, bool moves, const std::vector<std::string>& endings) {
        const std::string where = folder(name);
        const std::vector<std::string> files = writeSeries(where, 3, moves);
        for (const std::string& ending : endings)
            ASSERT_EQ(index(files, where + "/out." + ending), 0);
        expectWhatTheLibraryFinds(where, files);
    }
};

TEST_F(ParaView, HoldsEveryValueOfTheMatrix) {
    int count = 0;
    for (const MatrixCase_s& tested : everyCase()) {
        const std::string where = folder(nameOf(tested));
        const OpenedCase_s opened = writeCase(where, tested);
        for (const std::string ending : {"cgns", "xmf2", "p3d"})
            if (canSay(ending, tested)) {
                EXPECT_EQ(index(arguments(opened), where + "/out." + ending), 0) << where;
                ++count;
            }
        writeExpected(where, opened);
    }
    expectReadBack(count);
}

TEST_F(ParaView, HoldsEveryValueOfEveryTime) {
    indexSeries("still", false, {"cgns", "xmf2", "p3d"});
    indexSeries("moves", true, {"cgns", "xmf2", "p3d"});
    expectReadBack(6);
}

TEST_F(ParaView, GivesBothRanksTheirZones) {
    indexSeries("still", false, {"cgns"});
    indexSeries("moves", true, {"cgns"});
    expectReadBack(2, "2");
}

} // namespace
} // namespace quorvia::testsupport
