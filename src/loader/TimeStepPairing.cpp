#include "loader/TimeStepPairing.h"

#include <cstddef>
#include <new>
#include <string>

#include "plot3dfile/detection/StructureValidators.h"

namespace quorvia::quorutildataio {

namespace {

struct FileCounts_s {
    std::size_t g; // grid files
    std::size_t s; // solution files
    std::size_t f; // function files
    bool hasTimes; // solution times were found in the names
};

using Counts = const FileCounts_s&;

enum class Steps_e { None, One, PerGrid, PerSolution, PerFunction };

/// What one time step takes of a list of files.
enum class Take_e { Nothing, First, ItsOwn, All };

struct PairingRule_s {
    bool (*fits)(Counts n);
    Steps_e steps;
    Take_e grid;
    Take_e solution;
    Take_e functions;
};

// The first rule that fits decides. Those without time steps are for counts that were refused when
// the names were counted.
constexpr PairingRule_s pairingRules[] = {
    // no solution files
    {[](Counts n) { return n.s == 0 && n.f == 0; }, Steps_e::PerGrid, Take_e::ItsOwn,
     Take_e::Nothing, Take_e::Nothing},
    {[](Counts n) { return n.g > 1 && n.s == 0 && n.f > n.g; }, Steps_e::None, Take_e::Nothing,
     Take_e::Nothing, Take_e::Nothing},
    {[](Counts n) { return n.g > 1 && n.s == 0; }, Steps_e::PerFunction, Take_e::ItsOwn,
     Take_e::Nothing, Take_e::ItsOwn},
    {[](Counts n) { return n.g == 1 && n.s == 0 && n.hasTimes; }, Steps_e::PerFunction,
     Take_e::First, Take_e::Nothing, Take_e::ItsOwn},
    {[](Counts n) { return n.g == 1 && n.s == 0; }, Steps_e::One, Take_e::First, Take_e::Nothing,
     Take_e::All},
    {[](Counts n) { return n.g == 0 && n.s == 0; }, Steps_e::PerFunction, Take_e::Nothing,
     Take_e::Nothing, Take_e::ItsOwn},
    // solution files without grid files
    {[](Counts n) { return n.g == 0 && n.s == n.f; }, Steps_e::PerSolution, Take_e::Nothing,
     Take_e::ItsOwn, Take_e::ItsOwn},
    {[](Counts n) { return n.g == 0 && n.s == 1; }, Steps_e::One, Take_e::Nothing, Take_e::First,
     Take_e::All},
    {[](Counts n) { return n.g == 0 && n.f == 0; }, Steps_e::PerSolution, Take_e::Nothing,
     Take_e::ItsOwn, Take_e::Nothing},
    {[](Counts n) { return n.g == 0; }, Steps_e::None, Take_e::Nothing, Take_e::Nothing,
     Take_e::Nothing},
    // several grid files
    {[](Counts n) { return n.g > 1 && n.s == n.g && n.f == n.s; }, Steps_e::PerSolution,
     Take_e::ItsOwn, Take_e::ItsOwn, Take_e::ItsOwn},
    {[](Counts n) { return n.g > 1 && n.s == n.g; }, Steps_e::PerSolution, Take_e::ItsOwn,
     Take_e::ItsOwn, Take_e::Nothing},
    {[](Counts n) { return n.g > 1; }, Steps_e::None, Take_e::Nothing, Take_e::Nothing,
     Take_e::Nothing},
    // one grid file for all
    {[](Counts n) { return n.f == n.s; }, Steps_e::PerSolution, Take_e::First, Take_e::ItsOwn,
     Take_e::ItsOwn},
    {[](Counts n) { return n.s > 1; }, Steps_e::PerSolution, Take_e::First, Take_e::ItsOwn,
     Take_e::Nothing},
    {[](Counts) { return true; }, Steps_e::One, Take_e::First, Take_e::First, Take_e::All},
};

std::size_t stepCount(Steps_e steps, Counts counts) {
    switch (steps) {
    case Steps_e::One:
        return 1;
    case Steps_e::PerGrid:
        return counts.g;
    case Steps_e::PerSolution:
        return counts.s;
    case Steps_e::PerFunction:
        return counts.f;
    case Steps_e::None:
        break;
    }
    return 0;
}

Plot3DFile_s* takeFile(Take_e take, const Plot3DFileList& files, std::size_t step) {
    switch (take) {
    case Take_e::First:
        return files.front().get();
    case Take_e::ItsOwn:
        return files[step].get();
    case Take_e::Nothing:
    case Take_e::All:
        break;
    }
    return nullptr;
}

std::vector<Plot3DFile_s*> takeFunctions(Take_e take, const Plot3DFileList& files,
                                         std::size_t step) {
    std::vector<Plot3DFile_s*> taken;
    if (take == Take_e::All) {
        for (const Plot3DFilePtr& file : files)
            taken.push_back(file.get());
    } else if (Plot3DFile_s* file = takeFile(take, files, step)) {
        taken.push_back(file);
    }
    return taken;
}

/// Whether the style of every file in the list fits the list. Tells the first that does not.
bool checkStyles(const Plot3DFileList& files, bool areFunctions) {
    for (const Plot3DFilePtr& file : files) {
        if ((file->style == Plot3DStyle_Function) == areFunctions)
            continue;
        const std::string text =
            "File " + file->fileName.str() +
            (areFunctions ? " is not a function file." : " is not a solution file.");
        QuorUtilDialogErrMsg(text.c_str());
        return false;
    }
    return true;
}

bool compareFunctionFiles(const Plot3DFile_s& reference,
                          const std::vector<Plot3DFile_s*>& functionFiles) {
    for (const Plot3DFile_s* file : functionFiles)
        if (!compareFileDimensions(reference, *file))
            return false;
    return true;
}

/// `first` is asked what a time step without a grid file holds; all steps of a load are alike.
bool checkDimensions(const Plot3DFileHandler& handler, const Plot3DFileHandler& first) {
    if (handler.hasGridFile()) {
        // With a solution file the function files are not compared.
        return handler.hasSolutionFile()
                   ? compareFileDimensions(*handler.gridFile, *handler.solutionFile)
                   : compareFunctionFiles(*handler.gridFile, handler.functionFiles);
    }
    if (first.hasSolutionFile() && first.hasFunctionFiles() && handler.hasSolutionFile())
        return compareFunctionFiles(*handler.solutionFile, handler.functionFiles);
    return true;
}

} // namespace

bool pairFilesIntoHandlers(const Plot3DLoadOptions_s& options, const Plot3DFileList& gridFiles,
                           const Plot3DFileList& solutionFiles, const Plot3DFileList& functionFiles,
                           std::vector<Plot3DFileHandler>& handlers) {
    handlers.clear();
    constexpr bool areFunctions = true;
    if (!checkStyles(solutionFiles, !areFunctions) || !checkStyles(functionFiles, areFunctions))
        return false;

    const FileCounts_s counts{.g = gridFiles.size(),
                              .s = solutionFiles.size(),
                              .f = functionFiles.size(),
                              .hasTimes = !options.solutionTimes.empty()};
    const PairingRule_s* rule = pairingRules;
    while (!rule->fits(counts))
        ++rule;

    try {
        const std::size_t steps = stepCount(rule->steps, counts);
        handlers.reserve(steps);
        for (std::size_t step = 0; step < steps; ++step)
            handlers.emplace_back(takeFile(rule->grid, gridFiles, step),
                                  takeFile(rule->solution, solutionFiles, step),
                                  takeFunctions(rule->functions, functionFiles, step));
    } catch (const std::bad_alloc&) {
        handlers.clear();
        return false;
    }
    return true;
}

bool checkHandlerDimensions(const std::vector<Plot3DFileHandler>& handlers,
                            bool uniformGridStructure) {
    for (const Plot3DFileHandler& handler : handlers) {
        if (!checkDimensions(handler, handlers.front()))
            return false;
        if (uniformGridStructure)
            break; // the first time step stands for all
    }
    return true;
}

} // namespace quorvia::quorutildataio
