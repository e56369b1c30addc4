// A test that plays the dataset stage inside the reference host: files of a few points with values
// that name their places, time steps made of them, and zones to look into. At the end of each test
// the host must have seen no violation and miss nothing that it handed out.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dataset/variables/LoadShape.h"
#include "dataset/zones/ZoneCreation.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "session/ReferenceHost.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {

using Texts = std::vector<std::string>;
using Numbers = std::vector<double>;
using plot3dwriter::ByteOrder_e;
using plot3dwriter::Encoding_e;
using plot3dwriter::FileDescription_s;
using plot3dwriter::FileForm_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::GridDims_s;
using plot3dwriter::Layout_e;
using plot3dwriter::Precision_e;
using GridList = std::vector<GridDims_s>;

/// Exact in 32 bits for every file here.
double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k);
/// I-blank of a point.
std::int32_t placeIBlank(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k);

FileForm_s binary(ByteOrder_e byteOrder = ByteOrder_e::Little,
                  Precision_e precision = Precision_e::Single);
FileForm_s fortran(ByteOrder_e byteOrder = ByteOrder_e::Little,
                   Precision_e precision = Precision_e::Single);
FileForm_s text();

FileDescription_s describeGrid(const GridList& grids, Layout_e layout = Layout_e::ThreeDWhole);
/// Each grid has the scalars Mach 0.25 + its number from 1, alpha 2, Reynolds 3E6, and the time.
FileDescription_s describeSolution(const GridList& grids, double time,
                                   Layout_e layout = Layout_e::ThreeDWhole,
                                   FileKind_e kind = FileKind_e::ClassicSolution);
FileDescription_s describeFunction(const GridList& grids, std::int32_t varCount,
                                   Layout_e layout = Layout_e::ThreeDWhole);

/// The values of a whole field, I fastest.
Numbers fieldOf(const FileDescription_s& description, std::int32_t grid, std::int32_t variable);
Numbers iblankOf(const FileDescription_s& description, std::int32_t grid);

class DatasetTest : public ::testing::Test {
protected:
    DatasetTest();
    ~DatasetTest() override;
    void TearDown() override;

    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }

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

    /// A data set of the host's own.
    void makeDataSet(const Texts& variables);
    /// A zone of the host's own with fields of 32-bit reals, `firstIntegerVar` excepted (0: none).
    void makeZone(const GridDims_s& dims, std::int32_t varCount,
                  std::int32_t type = QuorFieldDataType_Float);
    void makeElementZone(std::int32_t nodes, std::int32_t triangles, std::int32_t varCount);

    // What is in the frame; zones and variables from 1.
    static const host::Zone_s& zone(std::int32_t number);
    static std::int32_t zoneCount();
    static Texts zoneNames();
    static Texts variableNames();
    static std::vector<std::int32_t> strands();
    static Numbers values(std::int32_t zone, std::int32_t var);
    static host::FieldState_e state(std::int32_t zone, std::int32_t var);
    static std::int32_t sharedWith(std::int32_t zone, std::int32_t var);
    static Texts messages();
    static std::vector<std::int64_t> membersOf(QuorSetHandle set);

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
