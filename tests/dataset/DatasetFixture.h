// A test that plays the dataset stage inside the reference host: small files, described by hand,
// and time steps made of them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dataset/variables/LoadShape.h"
#include "dataset/zones/ZoneCreation.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "support/HostedTest.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

inline const GridList oneGrid = {{2, 3, 5}};
inline const GridList threeGrids = {{2, 3, 5}, {3, 2, 2}, {2, 2, 7}};

class DatasetTest : public GuestTest {
protected:
    DatasetTest();
    void TearDown() override;

    /// Writes the file, describes it by hand, and enters it into the options' list of its kind. The
    /// record lives as long as the test.
    quorutildataio::Plot3DFile_s& write(const std::string& name,
                                        const FileDescription_s& description,
                                        const FileForm_s& form = binary());
    /// A record of a file of these bytes, its structure still to be filled in.
    quorutildataio::Plot3DFile_s& writeBytes(const std::string& name, const std::string& bytes);
    /// A record that no file stands behind.
    quorutildataio::Plot3DFile_s& recordOf(const std::string& name);

    void selectGrids(const std::vector<std::int64_t>& numbers);

    using TimeSteps = std::vector<quorutildataio::Plot3DFileHandler>;
    /// One time step; grid and solution may be null.
    static quorutildataio::Plot3DFileHandler
    step(quorutildataio::Plot3DFile_s* grid, quorutildataio::Plot3DFile_s* solution = nullptr,
         std::vector<quorutildataio::Plot3DFile_s*> functions = {});

    /// A fresh load: the data set with its variables, then the zones of each time step.
    bool load(TimeSteps steps);
    /// The zones of each time step alone, for a data set that is there.
    bool addZones(TimeSteps& steps);

    /// A zone of another program's with so many fields of a type.
    static void makeZone(const GridDims_s& dims, std::int32_t varCount,
                         std::int32_t type = QuorFieldDataType_Float);
    static void makeElementZone(std::int32_t nodes, std::int32_t triangles, std::int32_t varCount);

    TemporaryDirectory directory;
    quorutildataio::Plot3DLoadOptions_s options;

    // The counts that addZones works with; load() sets them from the first time step.
    quorutildataio::Plot3DLoadShape_s shape{.numSpatialVars = 3};
    bool addVarsToGrid = false;
    std::int32_t existingZoneCount = 0;
    std::int32_t firstNewZone = 1;
    quorutildataio::Plot3DStrandMap_s strandMap;
    HostSet zonesAdded;
    HostArray<std::int32_t> parentZones;

private:
    quorutildataio::Plot3DFileList files_;
};

} // namespace quorvia::testsupport
