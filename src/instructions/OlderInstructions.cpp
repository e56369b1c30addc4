#include "instructions/OlderInstructions.h"

#include <new>
#include <string>
#include <utility>
#include <vector>

#include "filenames/FileNameClassification.h"
#include "instructions/InstructionStrings.h"

namespace quorvia::quorutildataio {

namespace {

/// No count, an empty one and one that is no number mean no names; only the first is told.
std::int32_t readNameCount(InstructionParse_s& parse) {
    std::int32_t count = 0;
    return fetchInstructionValue(parse) && parseCount(parse.current.str(), count) ? count : 0;
}

HostStringList makeNameList() {
    HostStringList names(QuorUtilStringListAlloc());
    if (!names)
        throw std::bad_alloc();
    return names;
}

void appendName(const HostStringList& names, const std::string& name) {
    if (!QuorUtilStringListAppendString(names.get(), name.c_str()))
        throw std::bad_alloc(); // some of the files must not pass for all
}

} // namespace

bool readOneGridFile(InstructionParse_s& parse) {
    Plot3DLoadOptions_s& options = parse.options;
    options.hasGridFiles = true;
    options.gridFiles.clear();
    if (!fetchInstructionName(parse))
        return false;
    options.gridFiles.push_back(trimFileName(parse.current.view()));
    return true;
}

bool readOneSolutionFile(InstructionParse_s& parse) {
    parse.options.hasSolutionFiles = true;
    if (!fetchInstructionName(parse))
        return false;
    parse.options.solutionFiles.push_back(trimFileName(parse.current.view()));
    return true;
}

bool readDataFiles(InstructionParse_s& parse) {
    const HostStringList names = makeNameList();
    for (std::int32_t count = readNameCount(parse); count > 0;) {
        if (!fetchInstructionValue(parse))
            return false; // told; the names that are left will never come
        if (parse.current.view().empty())
            continue;
        appendName(names, trimFileName(parse.current.view()));
        --count;
    }
    std::vector<std::string> gridFiles;
    std::vector<std::string> solutionFiles;
    std::vector<std::string> functionFiles;
    std::string nameFile;
    if (!classifyFileNames(names.get(), gridFiles, solutionFiles, functionFiles, nameFile))
        return false;
    Plot3DLoadOptions_s& options = parse.options;
    // An earlier key's flag stays, although its files have gone.
    options.hasGridFiles = options.hasGridFiles || !gridFiles.empty();
    options.hasSolutionFiles = options.hasSolutionFiles || !solutionFiles.empty();
    options.hasNameFile = options.hasNameFile || !nameFile.empty();
    options.gridFiles = std::move(gridFiles);
    options.solutionFiles = std::move(solutionFiles);
    options.functionFiles = std::move(functionFiles);
    options.nameFile = std::move(nameFile);
    return true;
}

} // namespace quorvia::quorutildataio
