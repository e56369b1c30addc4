#include "loader/GridCountRules.h"

#include <cstdint>
#include <optional>
#include <sstream>

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

namespace {

/// The first file of a list stands for its list; nothing for an empty one.
std::optional<std::int32_t> gridCountOfList(const Plot3DFileList& files) {
    if (files.empty())
        return std::nullopt;
    return files.front()->numGrids;
}

void reportGridCounts(const char* listName, std::int32_t count, const char* referenceName,
                      std::int32_t reference) {
    std::ostringstream text;
    text << "The number of grids in the " << listName << " files (" << count
         << ") does not match the number of grids in the " << referenceName << " files ("
         << reference << ")";
    QuorUtilDialogErrMsg(text.str().c_str());
}

const Plot3DFile_s* firstFileOf(const Plot3DFileList& files) {
    return files.empty() ? nullptr : files.front().get();
}

bool checkAgainstFirstTimeStep(const Plot3DFileList& files, std::int32_t reference) {
    for (const Plot3DFilePtr& file : files) {
        if (file->numGrids <= 0 || file->numGrids <= reference)
            continue;
        std::ostringstream text;
        text << file->fileName.view()
             << " contains more zones than specified in the first time step "
             << " (" << file->numGrids << " and " << reference << " ). "
             << "Please reload the Plot3D data unselecting the \"Uniform Grid Structure\" option.";
        QuorUtilDialogErrMsg(text.str().c_str());
        return false;
    }
    return true;
}

} // namespace

bool checkFileListGridCounts(const Plot3DFileList& gridFiles, const Plot3DFileList& solutionFiles,
                             const Plot3DFileList& functionFiles) {
    std::int32_t reference = gridCountOfList(gridFiles).value_or(-1);
    if (const auto solutionCount = gridCountOfList(solutionFiles)) {
        if (reference < 0) {
            reference = *solutionCount;
        } else if (reference != *solutionCount) {
            reportGridCounts("solution", *solutionCount, "grid", reference);
            return false;
        }
    }
    const auto functionCount = gridCountOfList(functionFiles);
    if (functionCount && reference >= 0 && reference != *functionCount) {
        reportGridCounts("function", *functionCount, "grid or solution", reference);
        return false;
    }
    return true;
}

bool checkUniformGridStructure(const Plot3DFileList& gridFiles, const Plot3DFileList& solutionFiles,
                               const Plot3DFileList& functionFiles) {
    const Plot3DFile_s* reference = nullptr;
    for (const Plot3DFileList* list : {&gridFiles, &solutionFiles, &functionFiles})
        if (reference == nullptr)
            reference = firstFileOf(*list);
    if (reference == nullptr)
        return true;
    for (const Plot3DFileList* list : {&gridFiles, &solutionFiles, &functionFiles})
        if (!checkAgainstFirstTimeStep(*list, reference->numGrids))
            return false;
    return true;
}

bool checkGridSet(const Plot3DLoadOptions_s& options,
                  const std::vector<Plot3DFileHandler>& handlers, std::int32_t zonesPerTimeStep) {
    if (options.gridSet == nullptr)
        return true;
    const Plot3DFile_s* counted = handlers.front().structureFile();
    std::int32_t selected = zonesPerTimeStep;
    for (const Plot3DFileHandler& each : handlers) {
        const Plot3DFile_s* file = each.structureFile();
        if (file != counted) // a grid file may stand for many time steps
            selected = countSelectedGrids(options, each);
        counted = file;
        if (selected == 0 && each.getNumGrids() > 0) {
            reportFileError(*file, "The grid set selects no grid of the file.");
            return false;
        }
    }
    return true;
}

} // namespace quorvia::quorutildataio
