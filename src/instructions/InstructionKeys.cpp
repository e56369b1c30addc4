#include "instructions/InstructionKeys.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "instructions/IndexRangeText.h"
#include "instructions/InstructionStrings.h"
#include "instructions/InstructionWords.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

bool fetchValue(InstructionParse_s& parse) {
    constexpr bool reportMissing = true;
    return nextInstructionString(parse.current, parse.instructions, parse.index, reportMissing);
}

/// An empty name is refused without a message.
bool fetchName(InstructionParse_s& parse) {
    return fetchValue(parse) && !parse.current.view().empty();
}

template <bool Plot3DLoadOptions_s::*flag>
bool readFlag(InstructionParse_s& parse) {
    return readBooleanInstruction(parse.options.*flag, parse.current, parse.instructions,
                                  parse.index);
}

bool readIsMultiGrid(InstructionParse_s& parse) {
    parse.multiGridSeen = true;
    return readFlag<&Plot3DLoadOptions_s::isMultiGrid>(parse);
}

bool readAssignStrandIds(InstructionParse_s& parse) {
    const bool wasRead = readFlag<&Plot3DLoadOptions_s::assignStrandIds>(parse);
    parse.options.assignStrandIdsRequested = parse.options.assignStrandIds;
    return wasRead;
}

/// A word that stands for no style is refused without a message.
bool readStyle(InstructionParse_s& parse) {
    parse.styleSeen = true;
    return fetchValue(parse) && findValue(styleWords, parse.current.get(), parse.options.style);
}

/// A word that stands for no layout is refused without a message.
bool readDataStructure(InstructionParse_s& parse) {
    parse.dataStructureSeen = true;
    return fetchValue(parse) &&
           findValue(dataStructureWords, parse.current.get(), parse.options.dataStructure);
}

bool readRange(InstructionParse_s& parse, Plot3DIndexRange_s& range, const char* label) {
    return fetchValue(parse) && parseIndexRange(parse.current.view().data(), range, label);
}

bool readIRange(InstructionParse_s& parse) {
    return readRange(parse, parse.options.iRange, "I-Index");
}

bool readJRange(InstructionParse_s& parse) {
    return readRange(parse, parse.options.jRange, "J-Index");
}

bool readKRange(InstructionParse_s& parse) {
    parse.kRangeSeen = true;
    return readRange(parse, parse.options.kRange, "K-Index");
}

bool readGridSet(InstructionParse_s& parse) {
    constexpr bool withBrackets = true;
    if (!fetchValue(parse))
        return false;
    HostSet set;
    const bool isGood = parseSetText(parse.current.view().data(), set, !withBrackets);
    if (!isGood)
        QuorUtilDialogErrMsg("Invalid Set assigned to FILEGRIDSET");
    if (parse.options.gridSet != nullptr) // of an earlier key
        QuorUtilSetDealloc(&parse.options.gridSet);
    parse.options.gridSet = set.release();
    return isGood;
}

/// A count of zero or below reads no names. A count that is no number is refused without a message.
bool readFileList(InstructionParse_s& parse, std::vector<std::string>& files) {
    files.clear();
    std::int32_t count = 0;
    if (!fetchValue(parse) || !parseCount(parse.current.str(), count))
        return false;
    for (; count > 0; --count) {
        if (!fetchName(parse))
            return false;
        files.push_back(trimFileName(parse.current.str()));
    }
    return true;
}

bool readGridFiles(InstructionParse_s& parse) {
    parse.options.hasGridFiles = true;
    return readFileList(parse, parse.options.gridFiles);
}

bool readSolutionFiles(InstructionParse_s& parse) {
    parse.options.hasSolutionFiles = true;
    return readFileList(parse, parse.options.solutionFiles);
}

bool readFunctionFiles(InstructionParse_s& parse) {
    return readFileList(parse, parse.options.functionFiles);
}

bool readNameFile(InstructionParse_s& parse) {
    parse.options.hasNameFile = true;
    if (!fetchName(parse))
        return false;
    parse.options.nameFile = parse.current.str();
    return true;
}

/// Stands where the switches of older layouts and macros will be read: until then a list that uses
/// one must not load as something else.
bool refuseOlderInstruction(InstructionParse_s& parse) {
    const std::string text =
        "Error in PLOT3D loader instructions.\nThis version cannot read the older instruction: " +
        parse.current.str();
    QuorUtilDialogErrMsg(text.c_str());
    return false;
}

using Options = Plot3DLoadOptions_s;

constexpr InstructionKey_s keys[] = {
    {"APPEND", readFlag<&Options::append>},
    {"FILELIST_GRIDFILES", readGridFiles},
    {"FILELIST_SOLUTIONFILES", readSolutionFiles},
    {"FILELIST_FUNCTIONFILES", readFunctionFiles},
    {"FILENAME_NAMEFILE", readNameFile},
    {"ISMULTIGRID", readIsMultiGrid},
    {"STYLE", readStyle},
    {"DATASTRUCTURE", readDataStructure},
    {"IINDEXRANGE", readIRange},
    {"JINDEXRANGE", readJRange},
    {"KINDEXRANGE", readKRange},
    {"FILEGRIDSET", readGridSet},
    {"AUTODETECT", readFlag<&Options::autoDetect>},
    {"LOADBOUNDARY", readFlag<&Options::loadBoundary>},
    {"ASCIIISDOUBLE", readFlag<&Options::asciiIsDouble>},
    {"ASCIIHASIBLANK", readFlag<&Options::asciiHasIBlank>},
    {"SOLUTIONSSHARESTRUCTURE", readFlag<&Options::solutionsShareStructure>},
    {"ASSIGNSTRANDIDS", readAssignStrandIds},
    {"ADDTOEXISTINGSTRANDS", readFlag<&Options::addToExistingStrands>},
    {"UNIFORMGRIDSTRUCTURE", readFlag<&Options::uniformGridStructure>},
    {"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", readFlag<&Options::assignNewStrandIdForEachTimeStep>},
    {"EXTRACTTIMEFROMSOLFILENAMES", readFlag<&Options::extractTimeFromSolFileNames>},

    // Of older layouts and macros.
    {"FILELIST_DATAFILES", refuseOlderInstruction},
    {"FILENAME_GRIDFILE", refuseOlderInstruction},
    {"-GF", refuseOlderInstruction},
    {"-SF", refuseOlderInstruction},
    {"-NF", refuseOlderInstruction},
    {"-KSET", refuseOlderInstruction},
    {"-JSET", refuseOlderInstruction},
    {"-ISET", refuseOlderInstruction},
    {"-M", refuseOlderInstruction},
    {"-I", refuseOlderInstruction},
    {"-1D", refuseOlderInstruction},
    {"-2D", refuseOlderInstruction},
    {"-3DP", refuseOlderInstruction},
    {"-3DW", refuseOlderInstruction},
    {"-UNSTRUCTURED", refuseOlderInstruction},
    {"-FUNCTION", refuseOlderInstruction},
    {"-FOREIGN", refuseOlderInstruction},
    {"-IP", refuseOlderInstruction},
    {"-JP", refuseOlderInstruction},
    {"-KP", refuseOlderInstruction},
    {"-B", refuseOlderInstruction},
    {"-F", refuseOlderInstruction},
};

} // namespace

const InstructionKey_s* findInstructionKey(const char* word) {
    const auto* found = std::find_if(std::begin(keys), std::end(keys), [word](const auto& key) {
        return isSameWord(key.word, word);
    });
    return found != std::end(keys) ? found : nullptr;
}

} // namespace quorvia::quorutildataio
