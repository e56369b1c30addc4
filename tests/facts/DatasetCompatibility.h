// Data sets that files are to go onto: made by hand, of ordered zones of 2 x 3 x 5 points.
#pragma once

#include <string>
#include <vector>

#include "acceptance/behaviour/Snapshot.h"
#include "support/LoadedAddOn.h"
#include "support/SmallFiles.h"

namespace quorvia::testsupport {

const Settings onto = {{"APPEND", "Yes"}};

class DatasetCompatibility : public LoadedAddOnTest {
protected:
    DatasetCompatibility() { files_.grids = {{2, 3, 5}}; }

    /// In place of what was there.
    static void thereAre(std::int32_t zones, const Texts& variables,
                         std::int32_t plotType = QuorPlotType_3D) {
        QuorUtilLockOn();
        makeDataSet(variables);
        for (std::int32_t zone = 0; zone < zones; ++zone)
            makeZone(2, 3, 5);
        QuorUtilLockOff();
        host().frame().setPlotType(plotType);
    }
    static host::Field_s& fieldThere(std::int32_t zone, std::int32_t variable) {
        return *dataSet().field(zone, variable);
    }
    static void makeIntegers(std::int32_t zone, std::int32_t variable) {
        fieldThere(zone, variable) = {QuorFieldDataType_Int32, QuorValueLocation_Nodal, false,
                                      nullptr};
    }
    static void makeCellCentred(std::int32_t zone, std::int32_t variable) {
        fieldThere(zone, variable).location = QuorValueLocation_CellCentred;
    }

    Load_s solution(const Settings& settings = {}) const {
        return {.solutionFiles = {files_.solution("a.q", 1)}, .settings = settings};
    }
    Load_s appendedGrid() const { return {.gridFiles = {files_.grid("a.x")}, .settings = onto}; }
    Load_s appendedGridAndSolution() const {
        Load_s load = appendedGrid();
        load.solutionFiles = solution().solutionFiles;
        return load;
    }
    /// Of more variables than its bytes could hold.
    std::string absurdFunctions() const {
        return directory().write("a.fun", "1\n2 3 5 2147483640\n" + std::string(600, '1'));
    }

    /// What the user is told when the load is refused; all must be as it was.
    static Texts refusalOf(const Load_s& load) {
        const std::string before = snapshotOfFrame();
        host().clearLog();
        EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
        EXPECT_TRUE(host().log().stateChanges.empty());
        EXPECT_TRUE(host().log().undo.empty());
        const Texts told = messages();
        EXPECT_EQ(snapshotOfFrame(), before);
        return told;
    }
    /// The zones behind a load that comes in silently.
    static Texts zonesAfter(const Load_s& load) {
        host().clearLog();
        expectLoads(load);
        return zoneNames();
    }

    SmallFiles files_{directory().path().string()};
};

/// The message of sizes that differ: zone and grid from 1.
inline std::string sizeFault(int zone, int grid) {
    return "Zone " + std::to_string(zone) +
           " in quorvia does not have the same dimensions as grid " + std::to_string(grid) +
           " in the incoming plot3d source file.  These must be the same in order to replace the "
           "existing solution.";
}

} // namespace quorvia::testsupport
