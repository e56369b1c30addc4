#include "DatasetFixture.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include "dataset/items/CommonAuxData.h"
#include "dataset/items/CurrentTask.h"
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

FileDescription_s describe(FileKind_e kind, const GridList& grids, Layout_e layout) {
    FileDescription_s description;
    description.kind = kind;
    description.layout = layout;
    description.isMultiGrid = grids.size() > 1;
    description.grids = grids;
    description.value = placeValue;
    description.iblank = placeIBlank;
    description.corner = [](std::int32_t, std::int64_t element, std::int32_t corner) {
        return static_cast<std::int32_t>(element) + corner + 1;
    };
    return description;
}

std::int32_t countSelected(const Plot3DLoadOptions_s& options, const Plot3DFileHandler& handler) {
    std::int32_t count = 0;
    for (std::int32_t grid = 1; grid <= handler.getNumGrids(); ++grid)
        count += isGridSelected(options.gridSet, grid) ? 1 : 0;
    return count;
}

template <typename Number>
Numbers widened(const void* values, std::int64_t count) {
    const auto* numbers = static_cast<const Number*>(values);
    return Numbers(numbers, numbers + count);
}

} // namespace

double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) {
    return i + 10 * j + 100 * k + 1000 * variable + 10000 * grid;
}

std::int32_t placeIBlank(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k) {
    return 1 + i + 2 * j + 3 * k - 16 * grid;
}

FileForm_s binary(ByteOrder_e byteOrder, Precision_e precision) {
    FileForm_s form;
    form.byteOrder = byteOrder;
    form.precision = precision;
    return form;
}

FileForm_s fortran(ByteOrder_e byteOrder, Precision_e precision) {
    FileForm_s form = binary(byteOrder, precision);
    form.encoding = Encoding_e::Fortran;
    return form;
}

FileForm_s text() {
    FileForm_s form;
    form.encoding = Encoding_e::Text;
    return form;
}

FileDescription_s describeGrid(const GridList& grids, Layout_e layout) {
    return describe(FileKind_e::Grid, grids, layout);
}

FileDescription_s describeSolution(const GridList& grids, double time, Layout_e layout,
                                   FileKind_e kind) {
    FileDescription_s description = describe(kind, grids, layout);
    for (std::size_t grid = 0; grid < grids.size(); ++grid)
        description.scalars.push_back({1.25 + static_cast<double>(grid), 2.0, 3e6, time});
    return description;
}

FileDescription_s describeFunction(const GridList& grids, std::int32_t varCount, Layout_e layout) {
    FileDescription_s description = describe(FileKind_e::Function, grids, layout);
    description.numVars = varCount;
    return description;
}

Numbers fieldOf(const FileDescription_s& description, std::int32_t grid, std::int32_t variable) {
    const GridDims_s dims = description.grids[static_cast<std::size_t>(grid)];
    const bool isUnstructured = description.layout == Layout_e::Unstructured;
    Numbers field;
    for (std::int32_t k = 0; k < (isUnstructured ? 1 : dims.k); ++k)
        for (std::int32_t j = 0; j < (isUnstructured ? 1 : dims.j); ++j)
            for (std::int32_t i = 0; i < dims.i; ++i)
                field.push_back(description.value(grid, variable, i, j, k));
    return field;
}

Numbers iblankOf(const FileDescription_s& description, std::int32_t grid) {
    FileDescription_s asValues = description;
    asValues.value = [&](std::int32_t g, std::int32_t, std::int32_t i, std::int32_t j,
                         std::int32_t k) { return description.iblank(g, i, j, k); };
    return fieldOf(asValues, grid, 0);
}

DatasetTest::DatasetTest() {
    host().reset();
    QuorUtilLockOn();
    setLoadOptionDefaults(options);
    zonesAdded = HostSet(QuorUtilSetAlloc(true));
}

DatasetTest::~DatasetTest() = default;

void DatasetTest::TearDown() {
    files_.clear();
    releaseLoadOptions(options);
    zonesAdded.reset();
    parentZones.reset();
    currentTask.reset();
    host().clearFaults();
    QuorUtilLockOff();
    host().checkForLeaks();
    EXPECT_EQ(host().log().violations, Texts());
    host().reset();
}

Plot3DFile_s& DatasetTest::write(const std::string& name, const FileDescription_s& description,
                                 const FileForm_s& form) {
    const std::string path = directory.file(name);
    const auto outcome = plot3dwriter::writePlot3DFile(path, description, form);
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
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

void DatasetTest::makeDataSet(const Texts& variables) {
    const HostStringList names(QuorUtilStringListAlloc());
    for (const std::string& name : variables)
        QuorUtilStringListAppendString(names.get(), name.c_str());
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "LoaderName", "another loader");
    QuorUtilArgListAppendString(arguments.get(), "DataSetTitle", "an old data set");
    QuorUtilArgListAppendStringList(arguments.get(), "VarNames", names.get());
    ASSERT_TRUE(QuorUtilDataSetCreateX(arguments.get()));
}

namespace {

void addHostZone(std::int32_t zoneType, std::int64_t i, std::int64_t j, std::int64_t k,
                 std::int32_t varCount, std::int32_t fieldType) {
    const std::vector<std::int32_t> types(static_cast<std::size_t>(varCount), fieldType);
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorUtilArgListAppendString(arguments.get(), "Name", "old");
    QuorUtilArgListAppendInt(arguments.get(), "ZoneType", zoneType);
    QuorUtilArgListAppendInt(arguments.get(), "IMax", i);
    QuorUtilArgListAppendInt(arguments.get(), "JMax", j);
    QuorUtilArgListAppendInt(arguments.get(), "KMax", k);
    QuorUtilArgListAppendArray(arguments.get(), "VarDataType", types.data());
    ASSERT_TRUE(QuorUtilDataSetAddZoneX(arguments.get()));
}

} // namespace

void DatasetTest::makeZone(const GridDims_s& dims, std::int32_t varCount, std::int32_t type) {
    addHostZone(QuorZoneType_Ordered, dims.i, dims.j, dims.k, varCount, type);
}

void DatasetTest::makeElementZone(std::int32_t nodes, std::int32_t triangles,
                                  std::int32_t varCount) {
    addHostZone(QuorZoneType_Triangles, nodes, triangles, 3, varCount, QuorFieldDataType_Float);
}

const host::Zone_s& DatasetTest::zone(std::int32_t number) {
    const host::Zone_s* found = host().frame().dataSet()->zone(number);
    if (found == nullptr)
        throw std::out_of_range("no zone " + std::to_string(number));
    return *found;
}

std::int32_t DatasetTest::zoneCount() {
    return host().frame().dataSet()->zoneCount();
}

Texts DatasetTest::zoneNames() {
    Texts names;
    for (std::int32_t number = 1; number <= zoneCount(); ++number)
        names.push_back(zone(number).name);
    return names;
}

Texts DatasetTest::variableNames() {
    Texts names;
    for (const host::Variable_s& variable : host().frame().dataSet()->variables())
        names.push_back(variable.name);
    return names;
}

std::vector<std::int32_t> DatasetTest::strands() {
    std::vector<std::int32_t> all;
    for (std::int32_t number = 1; number <= zoneCount(); ++number)
        all.push_back(zone(number).strandId);
    return all;
}

Numbers DatasetTest::values(std::int32_t zoneNumber, std::int32_t var) {
    const host::FetchResult_s field = host().fetch(zoneNumber, var);
    if (!field.ok)
        return {};
    switch (field.type) {
    case QuorFieldDataType_Double:
        return widened<double>(field.values, field.count);
    case QuorFieldDataType_Int32:
        return widened<std::int32_t>(field.values, field.count);
    default:
        return widened<float>(field.values, field.count);
    }
}

host::FieldState_e DatasetTest::state(std::int32_t zoneNumber, std::int32_t var) {
    return host().frame().dataSet()->field(zoneNumber, var)->state();
}

std::int32_t DatasetTest::sharedWith(std::int32_t zoneNumber, std::int32_t var) {
    return host().frame().dataSet()->fieldHolders(var)[static_cast<std::size_t>(zoneNumber - 1)];
}

Texts DatasetTest::messages() {
    Texts texts;
    for (const host::Message_s& message : host().log().messages)
        texts.push_back(message.text);
    return texts;
}

std::vector<std::int64_t> DatasetTest::membersOf(QuorSetHandle set) {
    std::vector<std::int64_t> members;
    for (std::int64_t member = QuorUtilSetGetNextMember(set, 0); member != 0;
         member = QuorUtilSetGetNextMember(set, member))
        members.push_back(member);
    return members;
}

} // namespace quorvia::testsupport
