#include "LoaderFixture.h"

#include <algorithm>
#include <filesystem>

#include "dataset/items/CurrentTask.h"
#include "loader/LoadDriver.h"
#include "quorvia/HostHandles.h"
#include "state/AddOnIdentity.h"

namespace quorvia::testsupport {

using namespace quorutildataio;

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

} // namespace

LoaderTest::LoaderTest() {
    registerLoader();
    host().clearFaults();
    host().clearLog();
    setLoadOptionDefaults(options);
}

LoaderTest::~LoaderTest() {
    releaseLoadOptions(options);
    EXPECT_EQ(currentTask, nullptr);
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
    constexpr bool hasIBlank = false;
    return filesOn(grids, layout).grid(name, hasIBlank, valueShift);
}

std::string LoaderTest::iblankGridFile(const std::string& name, const GridList& grids) {
    constexpr bool hasIBlank = true;
    return filesOn(grids).grid(name, hasIBlank, valueShift);
}

std::string LoaderTest::solutionFile(const std::string& name, const GridList& grids, double time,
                                     Layout_e layout) {
    return filesOn(grids, layout).solution(name, time, valueShift);
}

std::string LoaderTest::functionFile(const std::string& name, const GridList& grids,
                                     std::int32_t varCount) {
    return filesOn(grids).function(name, varCount, valueShift);
}

SmallFiles LoaderTest::filesOn(const GridList& grids, Layout_e layout) const {
    SmallFiles files(directory.path().string());
    files.form = form;
    files.layout = layout;
    files.grids = grids;
    return files;
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

void LoaderTest::makeOldDataSet(const Texts& variables, std::int32_t zones) {
    const HostLock lock(addOnID);
    makeDataSet(variables, "Another Loader", "Old");
    for (std::int32_t zone = 0; zone < zones; ++zone)
        makeZone(2, 3, 5);
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
