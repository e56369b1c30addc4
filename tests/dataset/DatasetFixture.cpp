#include "DatasetFixture.h"

#include <algorithm>
#include <stdexcept>

#include "dataset/items/CommonAuxData.h"
#include "dataset/items/CurrentTask.h"
#include "dataset/ondemand/Plot3DVarRepo.h"
#include "dataset/variables/VariableNames.h"
#include "plot3dfile/detection/FileCreation.h"
#include "plot3dfile/layout/LayoutParsers.h"

namespace quorvia::testsupport {

using namespace quorutildataio;

namespace {

Plot3DDataStructure_e structureOf(Layout_e layout) {
    switch (layout) {
    case Layout_e::OneD:
        return Plot3DDataStructure_1D;
    case Layout_e::TwoD:
        return Plot3DDataStructure_2D;
    case Layout_e::ThreeDPlanes:
        return Plot3DDataStructure_3DPlanes;
    case Layout_e::Unstructured:
        return Plot3DDataStructure_Unstructured;
    default:
        return Plot3DDataStructure_3DWhole;
    }
}

Plot3DStyle_e styleOf(FileKind_e kind) {
    switch (kind) {
    case FileKind_e::Function:
        return Plot3DStyle_Function;
    case FileKind_e::OverflowSolution:
        return Plot3DStyle_Overflow;
    case FileKind_e::SwiftSolution:
        return Plot3DStyle_Swift;
    default:
        return Plot3DStyle_Classic;
    }
}

std::int32_t countSelected(const Plot3DLoadOptions_s& options, const Plot3DFileHandler& handler) {
    std::int32_t count = 0;
    for (std::int32_t grid = 1; grid <= handler.getNumGrids(); ++grid)
        count += isGridSelected(options.gridSet, grid) ? 1 : 0;
    return count;
}

} // namespace

DatasetTest::DatasetTest() {
    setLoadOptionDefaults(options);
    zonesAdded = HostSet(QuorUtilSetAlloc(true));
}

void DatasetTest::TearDown() {
    files_.clear();
    releaseLoadOptions(options);
    zonesAdded.reset();
    parentZones.reset();
    currentTask.reset();
    Plot3DVarRepo::instance().clear();
    host().clearFaults();
}

Plot3DFile_s& DatasetTest::write(const std::string& name, const FileDescription_s& description,
                                 const FileForm_s& form) {
    const std::string path = directory.file(name);
    writeFile(path, description, form);
    files_.push_back(createPlot3DFile(path, false));
    Plot3DFile_s& file = *files_.back();
    file.isSolutionOrFunction = description.kind != FileKind_e::Grid;
    file.dataStructure = structureOf(description.layout);
    file.style = styleOf(description.kind);
    file.isMultiGrid = description.isMultiGrid;
    file.hasIBlank = description.hasIBlank;
    file.isDoublePrecision = form.precision == Precision_e::Double;
    if (form.encoding == Encoding_e::Binary)
        file.byteSwap = form.byteOrder == ByteOrder_e::Big;
    file.numGrids = 1;
    EXPECT_TRUE(openPlot3DFile(file));
    const bool fits = parseLayout(file, false, nullptr, nullptr);
    closePlot3DFile(file);
    if (!fits)
        throw std::runtime_error("the file does not fit its description: " + name);

    if (description.kind == FileKind_e::Grid)
        options.gridFiles.push_back(path);
    else if (description.kind == FileKind_e::Function)
        options.functionFiles.push_back(path);
    else
        options.solutionFiles.push_back(path);
    options.hasGridFiles = !options.gridFiles.empty();
    options.hasSolutionFiles = !options.solutionFiles.empty();
    return file;
}

Plot3DFile_s& DatasetTest::writeBytes(const std::string& name, const std::string& bytes) {
    files_.push_back(createPlot3DFile(directory.write(name, bytes), false));
    return *files_.back();
}

Plot3DFile_s& DatasetTest::recordOf(const std::string& name) {
    files_.push_back(createPlot3DFile(name, true));
    files_.back()->fileSize = 1000000;
    return *files_.back();
}

void DatasetTest::selectGrids(const std::vector<std::int64_t>& numbers) {
    options.gridSet = QuorUtilSetAlloc(true);
    for (const std::int64_t number : numbers)
        QuorUtilSetAddMember(options.gridSet, number, true);
}

Plot3DFileHandler DatasetTest::step(Plot3DFile_s* grid, Plot3DFile_s* solution,
                                    std::vector<Plot3DFile_s*> functions) {
    return Plot3DFileHandler(grid, solution, std::move(functions));
}

bool DatasetTest::load(TimeSteps steps) {
    const Plot3DFileHandler& first = steps.front();
    const Plot3DDataStructure_e structure = first.getDataStructure();
    shape.numSpatialVars = structure == Plot3DDataStructure_1D   ? 1
                           : structure == Plot3DDataStructure_2D ? 2
                                                                 : 3;
    shape.numSolutionVars = first.hasSolutionFile() ? first.solutionFile->numVars : 0;
    shape.hasIBlank = first.hasGridFile() && first.gridFile->hasIBlank;
    shape.numFunctionVars = first.hasFunctionFiles() ? first.functionFiles.front()->numVars : 0;
    const HostStringList names(QuorUtilStringListAlloc());
    if (!names)
        return false;
    buildVariableNames(shape, options, first, names.get());
    const HostArgList arguments(QuorUtilArgListAlloc());
    if (!arguments)
        return false;
    return QuorUtilArgListAppendString(arguments.get(), "LoaderName", "PLOT3D Loader") &&
           QuorUtilArgListAppendString(arguments.get(), "DataSetTitle", "Plot3D DataSet") &&
           QuorUtilArgListAppendStringList(arguments.get(), "VarNames", names.get()) &&
           QuorUtilDataSetCreateX(arguments.get()) && setCommonAuxData(names.get()) &&
           addZones(steps);
}

bool DatasetTest::addZones(TimeSteps& steps) {
    if (!QuorUtilDataSetGetInfo(nullptr, nullptr, &shape.existingVarCount))
        return false;
    HostArray<std::int32_t> types =
        HostArray<std::int32_t>::allocate(shape.existingVarCount, "vardatatypes");
    parentZones = HostArray<std::int32_t>::allocate(100, "Parent Zone Array");
    const HostArgList arguments(QuorUtilArgListAlloc());
    if (!types || !parentZones || !arguments)
        return false;
    std::fill(parentZones.begin(), parentZones.end(), 0);
    const std::int32_t zonesPerStep = countSelected(options, steps.front());
    currentTask = createTaskProgressBar(1);
    Plot3DZoneStage_s stage{.options = options,
                            .firstHandler = steps.front(),
                            .shape = shape,
                            .zoneBase = options.hasGridFiles ? existingZoneCount + 1
                                                             : existingZoneCount - zonesPerStep + 1,
                            .assignStrandIDs = options.assignStrandIds,
                            .replaceSolution = !options.append && !options.hasGridFiles,
                            .addVarsToGrid = addVarsToGrid,
                            .varTypes = types,
                            .arguments = arguments.get(),
                            .zonesAdded = zonesAdded.get(),
                            .parentZones = parentZones,
                            .strands = strandMap,
                            .firstNewZone = firstNewZone};
    bool ok = true;
    for (std::size_t n = 0; ok && n < steps.size(); ++n) {
        if (n > 0)
            stage.firstNewZone += countSelected(options, steps[n - 1]);
        ok = addZonesOfFileSet(stage, steps[n], static_cast<std::int32_t>(n));
    }
    currentTask.reset();
    return ok;
}

void DatasetTest::makeZone(const GridDims_s& dims, std::int32_t varCount, std::int32_t type) {
    GuestTest::makeZone(dims.i, dims.j, dims.k,
                        std::vector<std::int32_t>(static_cast<std::size_t>(varCount), type));
}

void DatasetTest::makeElementZone(std::int32_t nodes, std::int32_t triangles,
                                  std::int32_t varCount) {
    const std::vector<std::int32_t> types(static_cast<std::size_t>(varCount),
                                          QuorFieldDataType_Float);
    GuestTest::makeZone(nodes, triangles, 3, types, QuorZoneType_Triangles);
}

} // namespace quorvia::testsupport
