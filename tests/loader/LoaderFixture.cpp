#include "LoaderFixture.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "dataset/items/CurrentTask.h"
#include "loader/LoadDriver.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::testsupport {

using namespace quorutildataio;
using namespace plot3dwriter;

namespace {

bool loadNothing(QuorStringListHandle) {
    return false;
}
void selectNothing(QuorStringListHandle, bool, bool) {}

void registerLoader() {
    QuorUtilLockOn();
    addOnID = QuorUtilAddOnRegister(100, "PLOT3D Loader", "test", "test");
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorArgListHandle list = arguments.get();
    QuorUtilArgListAppendString(list, "LoaderName", "PLOT3D Loader");
    QuorUtilArgListAppendString(list, "FileNameExtensions", "*.x");
    QuorUtilArgListAppendInt(list, "LoaderCallbackVersion", 1);
    QuorUtilArgListAppendFunction(list, "LoaderCallback",
                                  reinterpret_cast<QuorFunction>(loadNothing));
    QuorUtilArgListAppendFunction(list, "LoaderSelectedCallback",
                                  reinterpret_cast<QuorFunction>(selectNothing));
    for (const char* key : {"AllowMultiFileSelection", "AllowAdvancedOptions", "AllowAppending"})
        QuorUtilArgListAppendInt(list, key, 1);
    QuorUtilImportAddLoaderX(list);
    QuorUtilLockOff();
}

FileDescription_s describe(FileKind_e kind, Layout_e layout, const GridList& grids) {
    FileDescription_s description;
    description.kind = kind;
    description.layout = layout;
    description.isMultiGrid = layout != Layout_e::OneD;
    description.grids = grids;
    description.iblank = [](std::int32_t, std::int32_t i, std::int32_t, std::int32_t) {
        return i % 2;
    };
    description.corner = [](std::int32_t, std::int64_t, std::int32_t corner) { return corner + 1; };
    return description;
}

} // namespace

double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) {
    return i + 100 * j + 10000 * k + 100000 * variable + 1000000 * grid;
}

LoaderTest::LoaderTest() {
    host().reset();
    registerLoader();
    host().clearFaults();
    host().clearLog();
    setLoadOptionDefaults(options);
}

LoaderTest::~LoaderTest() {
    releaseLoadOptions(options);
    host().checkForLeaks();
    EXPECT_EQ(host().log().violations, Texts());
    EXPECT_EQ(host().lockDepth(), 0);
    EXPECT_EQ(currentTask, nullptr);
    host().reset();
}

bool LoaderTest::load(bool selection) {
    return loadPlot3DData(selection, options);
}

void LoaderTest::useFiles(const Texts& grids, const Texts& solutions, const Texts& functions) {
    options.gridFiles = grids;
    options.solutionFiles = solutions;
    options.functionFiles = functions;
    options.hasGridFiles = !grids.empty();
    options.hasSolutionFiles = !solutions.empty();
}

std::string LoaderTest::gridFile(const std::string& name, const GridList& grids, Layout_e layout) {
    return write(name, describe(FileKind_e::Grid, layout, grids));
}

std::string LoaderTest::iblankGridFile(const std::string& name, const GridList& grids) {
    FileDescription_s description = describe(FileKind_e::Grid, Layout_e::ThreeDWhole, grids);
    description.hasIBlank = true;
    return write(name, description);
}

std::string LoaderTest::solutionFile(const std::string& name, const GridList& grids, double time,
                                     Layout_e layout) {
    FileDescription_s description = describe(FileKind_e::ClassicSolution, layout, grids);
    description.scalars.assign(grids.size(), {0.5, 2.0, 1000.0, time});
    return write(name, description);
}

std::string LoaderTest::functionFile(const std::string& name, const GridList& grids,
                                     std::int32_t varCount) {
    FileDescription_s description = describe(FileKind_e::Function, Layout_e::ThreeDWhole, grids);
    description.numVars = varCount;
    return write(name, description);
}

std::string LoaderTest::write(const std::string& name, const FileDescription_s& description) {
    const std::string file = directory.file(name);
    FileDescription_s shifted = description;
    shifted.value = [this](std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                           std::int32_t k) {
        return placeValue(grid, variable, i, j, k) + valueShift;
    };
    const WriteOutcome_s outcome = writePlot3DFile(file, shifted, form);
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
    return file;
}

void LoaderTest::shorten(const std::string& file, std::int64_t byteCount) {
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(file));
    std::filesystem::resize_file(file, static_cast<std::uintmax_t>(size - byteCount));
}

void LoaderTest::selectGrids(const std::vector<std::int64_t>& numbers) {
    if (options.gridSet == nullptr)
        options.gridSet = QuorUtilSetAlloc(true);
    for (const std::int64_t number : numbers)
        QuorUtilSetAddMember(options.gridSet, number, true);
}

Texts LoaderTest::messages() {
    Texts texts;
    for (const host::Message_s& message : host().log().messages)
        texts.push_back(message.text);
    return texts;
}

bool LoaderTest::showedProgress(const std::string& text) {
    const Texts shown = progress();
    return std::find(shown.begin(), shown.end(), text) != shown.end();
}

std::int32_t LoaderTest::zoneCount() {
    const host::DataSet* data = host().frame().dataSet();
    return data != nullptr ? data->zoneCount() : 0;
}

Texts LoaderTest::variableNames() {
    Texts names;
    if (const host::DataSet* data = host().frame().dataSet())
        for (const host::Variable_s& variable : data->variables())
            names.push_back(variable.name);
    return names;
}

std::vector<double> LoaderTest::solutionTimes() {
    std::vector<double> times;
    if (const host::DataSet* data = host().frame().dataSet())
        for (const auto& zone : data->zones())
            times.push_back(zone->solutionTime);
    return times;
}

std::vector<std::int32_t> LoaderTest::strands() {
    std::vector<std::int32_t> found;
    if (const host::DataSet* data = host().frame().dataSet())
        for (const auto& zone : data->zones())
            found.push_back(zone->strandId);
    return found;
}

void LoaderTest::makeOldDataSet(const Texts& variables, std::int32_t zones) {
    const HostLock lock(addOnID);
    const HostStringList names(QuorUtilStringListAlloc());
    for (const std::string& variable : variables)
        QuorUtilStringListAppendString(names.get(), variable.c_str());
    const HostArgList arguments(QuorUtilArgListAlloc());
    QuorArgListHandle list = arguments.get();
    QuorUtilArgListAppendString(list, "LoaderName", "Another Loader");
    QuorUtilArgListAppendString(list, "DataSetTitle", "Old");
    QuorUtilArgListAppendStringList(list, "VarNames", names.get());
    ASSERT_TRUE(QuorUtilDataSetCreateX(list));
    for (std::int32_t zone = 0; zone < zones; ++zone) {
        QuorUtilArgListClear(list);
        QuorUtilArgListAppendString(list, "Name", "old");
        QuorUtilArgListAppendInt(list, "ZoneType", QuorZoneType_Ordered);
        QuorUtilArgListAppendInt(list, "IMax", 2);
        QuorUtilArgListAppendInt(list, "JMax", 3);
        QuorUtilArgListAppendInt(list, "KMax", 5);
        ASSERT_TRUE(QuorUtilDataSetAddZoneX(list));
    }
}

Plot3DFilePtr recordOf(const std::string& name, std::int32_t gridCount, Plot3DStyle_e style) {
    auto record = std::make_unique<Plot3DFile_s>();
    record->fileName = HostString::copyOf(name);
    record->numGrids = gridCount;
    record->style = style;
    record->dataStructure = Plot3DDataStructure_3DWhole;
    record->gridDims.assign(static_cast<std::size_t>(std::max(gridCount, 0)), {2, 3, 5});
    return record;
}

} // namespace quorvia::testsupport
