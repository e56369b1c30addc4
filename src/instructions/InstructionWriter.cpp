#include "instructions/InstructionWriter.h"

#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "instructions/InstructionWords.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

bool append(QuorStringListHandle list, const char* text) {
    return QuorUtilStringListAppendString(list, text);
}

void appendValue(QuorStringListHandle list, const char* key, const char* value) {
    append(list, key);
    append(list, value);
}

void appendFlag(QuorStringListHandle list, const char* key, bool flag) {
    appendValue(list, key, flag ? "Yes" : "No");
}

/// The key and its word; the key alone if the value has none.
void appendWord(QuorStringListHandle list, const char* key, const char* wordOrNull) {
    append(list, key);
    if (wordOrNull != nullptr)
        append(list, wordOrNull);
}

bool appendFiles(QuorStringListHandle list, const char* key,
                 const std::vector<std::string>& files) {
    if (files.empty())
        return true;
    if (!append(list, key) ||
        !append(list, integerToText(static_cast<std::int64_t>(files.size())).c_str()))
        return false;
    for (const std::string& file : files)
        if (!append(list, file.c_str()))
            return false;
    return true;
}

bool appendAllFiles(QuorStringListHandle list, const Plot3DLoadOptions_s& options) {
    return appendFiles(list, "FILELIST_GRIDFILES", options.gridFiles) &&
           appendFiles(list, "FILELIST_SOLUTIONFILES", options.solutionFiles) &&
           appendFiles(list, "FILELIST_FUNCTIONFILES", options.functionFiles);
}

void appendStructure(QuorStringListHandle list, const Plot3DLoadOptions_s& options) {
    appendFlag(list, "ISMULTIGRID", options.isMultiGrid);
    appendWord(list, "STYLE", findWord(styleWords, options.style));
    appendWord(list, "DATASTRUCTURE", findWord(dataStructureWords, options.dataStructure));
}

void appendRanges(QuorStringListHandle list, const Plot3DLoadOptions_s& options) {
    appendValue(list, "IINDEXRANGE", formatIndexRange(options.iRange));
    appendValue(list, "JINDEXRANGE", formatIndexRange(options.jRange));
    if (options.dataStructure == Plot3DDataStructure_3DWhole)
        appendValue(list, "KINDEXRANGE", formatIndexRange(options.kRange));
}

void appendFlags(QuorStringListHandle list, const Plot3DLoadOptions_s& options) {
    appendFlag(list, "AUTODETECT", options.autoDetect);
    appendFlag(list, "LOADBOUNDARY", options.loadBoundary);
    appendFlag(list, "ASCIIISDOUBLE", options.asciiIsDouble);
    appendFlag(list, "ASCIIHASIBLANK", options.asciiHasIBlank);
    appendFlag(list, "SOLUTIONSSHARESTRUCTURE", options.solutionsShareStructure);
    appendFlag(list, "ASSIGNSTRANDIDS", options.assignStrandIdsRequested);
    appendFlag(list, "ADDTOEXISTINGSTRANDS", options.addToExistingStrands);
    appendFlag(list, "UNIFORMGRIDSTRUCTURE", options.uniformGridStructure);
    appendFlag(list, "ASSIGNNEWSTRANDIDFOREACHTIMESTEP", options.assignNewStrandIdForEachTimeStep);
    appendFlag(list, "EXTRACTTIMEFROMSOLFILENAMES", options.extractTimeFromSolFileNames);
}

/// A start or end of 0 is an empty field, which a reader takes for the default.
std::string formatIndexOrNothing(std::int32_t value) {
    return value != 0 ? integerToText(value) : std::string();
}

/// The members as runs, such as 1-3,7,12-13. Null: no memory.
HostString formatSet(QuorSetHandle set) {
    std::string text;
    std::int64_t previous = 0;
    bool runIsOpen = false;
    for (std::int64_t member = QuorUtilSetGetNextMember(set, 0); member != 0;
         member = QuorUtilSetGetNextMember(set, member)) {
        if (previous == 0) {
            text = integerToText(member);
        } else if (member == previous + 1) {
            runIsOpen = true;
        } else {
            if (runIsOpen)
                appendSetEdge(text, true, previous);
            appendSetEdge(text, false, member);
            runIsOpen = false;
        }
        previous = member;
    }
    if (runIsOpen)
        appendSetEdge(text, true, previous);
    return HostString::copyOf(text);
}

} // namespace

HostStringList writeLoadInstructions(const Plot3DLoadOptions_s& options) {
    HostStringList list(QuorUtilStringListAlloc());
    if (!list) {
        QuorUtilDialogErrMsg("Out of Memory!!!");
        return list;
    }
    appendValue(list.get(), "STANDARDSYNTAX", "1.0");
    appendFlag(list.get(), "APPEND", options.append);
    const bool filesAreWhole = appendAllFiles(list.get(), options);
    if (options.hasNameFile)
        appendValue(list.get(), "FILENAME_NAMEFILE", options.nameFile.c_str());
    if (!options.autoDetect)
        appendStructure(list.get(), options);
    if (!options.autoDetect || options.dataStructure != Plot3DDataStructure_Unstructured)
        appendRanges(list.get(), options);
    appendGridSetInstruction(list.get(), options.gridSet);
    appendFlags(list.get(), options);
    // The other appends are not watched; without all its files a list would repeat another load.
    if (!filesAreWhole)
        list.reset();
    return list;
}

const char* formatIndexRange(const Plot3DIndexRange_s& range) {
    static std::array<char, 64> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%s,%s,%s",
                  formatIndexOrNothing(range.start).c_str(),
                  formatIndexOrNothing(range.end).c_str(), integerToText(range.skip).c_str());
    return buffer.data();
}

void appendGridSetInstruction(QuorStringListHandle list, QuorSetHandle set) {
    if (set == nullptr)
        return;
    if (const HostString text = formatSet(set))
        appendValue(list, "FILEGRIDSET", text.get());
}

} // namespace quorvia::quorutildataio
