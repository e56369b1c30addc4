#include "loader/HeaderExamination.h"

#include <string>
#include <string_view>
#include <utility>

#include "plot3dfile/detection/StructureDetection.h"

namespace quorvia::quorutildataio {

namespace {

/// The last `count` characters of a UTF-8 text, whole ones.
std::string_view lastCharacters(std::string_view text, int count) {
    std::size_t start = text.size();
    while (start > 0 && count > 0) {
        --start;
        const bool isContinuation = (static_cast<unsigned char>(text[start]) & 0xC0u) == 0x80u;
        if (!isContinuation)
            --count;
    }
    return text.substr(start);
}

/// Examines one list under a task of its own.
bool examineFileList(Plot3DLoadOptions_s& options, const std::vector<std::string>& names,
                     Plot3DFileList& files, bool isSolutionOrFunction, TaskProgress& parent) {
    constexpr int shownCharacters = 40;
    std::unique_ptr<TaskProgress> task;
    parent.createSubTask(task, 0);
    task->setStepCount(static_cast<std::int64_t>(names.size()));
    Plot3DFileBuilder builder(options);
    std::string text;
    for (const std::string& name : names) {
        text = "Examining file header ...";
        text += lastCharacters(name, shownCharacters);
        task->setMessage(text);
        Plot3DFilePtr file = buildPlot3DFile(builder, name, isSolutionOrFunction);
        const bool isBuilt = file != nullptr;
        if (isBuilt)
            files.push_back(std::move(file));
        const bool goesOn = task->step();
        if (!isBuilt || !goesOn)
            return false;
    }
    return true;
}

bool examineAllLists(Plot3DLoadContext_s& context) {
    constexpr bool isSolutionOrFunction = true;
    Plot3DLoadOptions_s& options = context.options;
    std::unique_ptr<TaskProgress> task;
    context.mainTask->createSubTask(task, 0);
    task->setStepCount(3);
    return task->setMessage("Examining file headers... ") &&
           examineFileList(options, options.gridFiles, context.gridFiles, !isSolutionOrFunction,
                           *task) &&
           examineFileList(options, options.solutionFiles, context.solutionFiles,
                           isSolutionOrFunction, *task) &&
           examineFileList(options, options.functionFiles, context.functionFiles,
                           isSolutionOrFunction, *task);
}

/// Function files that were named as solution files become function files.
void settleFunctionFiles(Plot3DLoadContext_s& context) {
    if (!context.functionFiles.empty() || context.solutionFiles.empty() ||
        context.solutionFiles.front()->style != Plot3DStyle_Function)
        return;
    std::swap(context.options.solutionFiles, context.options.functionFiles);
    std::swap(context.solutionFiles, context.functionFiles);
    context.options.hasSolutionFiles = false;
}

/// Function files hold no time, and a grid file has none to give: their names are the only source.
void settleTimeSource(Plot3DLoadContext_s& context) {
    Plot3DLoadOptions_s& options = context.options;
    const bool onlySolutions = !options.solutionFiles.empty() && options.functionFiles.empty();
    if (context.fromSelection && !onlySolutions)
        options.extractTimeFromSolFileNames = true;
}

} // namespace

bool examineFiles(Plot3DLoadContext_s& context) {
    const bool examined = examineAllLists(context);
    settleFunctionFiles(context);
    settleTimeSource(context);
    return examined;
}

} // namespace quorvia::quorutildataio
