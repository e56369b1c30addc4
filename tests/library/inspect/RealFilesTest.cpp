// Files that other people's programs wrote.
#include <cstdlib>
#include <filesystem>

#include "InspectFixture.h"

namespace plot3d {
namespace {

class RealFiles : public InspectTest {
protected:
    void SetUp() override {
        if (!std::filesystem::is_directory(folder()))
            GTEST_SKIP() << "the real files are not here; PLOT3D_REAL_DATA tells where they lie";
    }

    static std::filesystem::path folder() {
        const char* const told = std::getenv("PLOT3D_REAL_DATA");
        return told != nullptr ? told : PLOT3D_REAL_DATA_FOLDER;
    }
    static FileInfo inspectReal(const char* name) { return inspect((folder() / name).string()); }
    static GridSize firstGrid(const FileInfo& info) {
        return info.grids.empty() ? GridSize{} : info.grids.front();
    }
};

TEST_F(RealFiles, TellsPlainBinaryOfTheOtherByteOrder) {
    for (const char* name : {"combxyz.bin", "combq.bin"}) {
        const FileInfo info = inspectReal(name);
        EXPECT_TRUE(info.ok);
        EXPECT_EQ(info.kind, name[4] == 'x' ? FileKind::Grid : FileKind::Solution);
        EXPECT_EQ(info.byteOrder, ByteOrder::Big);
        EXPECT_EQ(firstGrid(info), (GridSize{57, 33, 25}));
        EXPECT_EQ(info.bytes.used, info.bytes.size);
    }
}

TEST_F(RealFiles, TellsTextAndFortranOfTheSameGrids) {
    for (const char* name : {"multi-ascii.xyz", "multi-ascii.q", "multi-bin.xyz", "multi-bin.q"}) {
        const FileInfo info = inspectReal(name);
        EXPECT_TRUE(info.ok) << name;
        EXPECT_TRUE(info.multiGrid) << name;
        EXPECT_EQ(info.grids, (std::vector<GridSize>{{8, 12, 12}, {8, 12, 12}})) << name;
        EXPECT_EQ(info.bytes.used, info.bytes.size) << name;
        EXPECT_EQ(info.warnings.size(), 0U) << name << ": " << warningOf(info);
    }
}

TEST_F(RealFiles, TellsWhatStandsBehindARefusedSolution) {
    const FileInfo info = inspectReal("bluntfinq.bin");
    EXPECT_FALSE(info.ok);
    EXPECT_EQ(info.kind, FileKind::Solution);
    EXPECT_EQ(firstGrid(info), (GridSize{40, 32, 32}));
    EXPECT_EQ(info.bytes.surplus, 484);
    EXPECT_EQ(problemOf(info), "484 of 819,712 bytes stand behind the last grid.");
    EXPECT_EQ(nextOf(*info.problem, info), "plot3d stats --grid GRID --solution FILE --set "
                                           "AUTODETECT=No --set DATASTRUCTURE=3DW --set "
                                           "STYLE=PLOT3DCLASSIC --set ISMULTIGRID=No");
}

} // namespace
} // namespace plot3d
