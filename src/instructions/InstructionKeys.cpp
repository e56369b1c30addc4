#include "instructions/InstructionKeys.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "instructions/IndexRangeText.h"
#include "instructions/InstructionStrings.h"
#include "instructions/InstructionWords.h"
#include "instructions/OlderInstructions.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

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
    return fetchInstructionValue(parse) &&
           findValue(styleWords, parse.current.get(), parse.options.style);
}

/// A word that stands for no layout is refused without a message.
bool readDataStructure(InstructionParse_s& parse) {
    parse.dataStructureSeen = true;
    return fetchInstructionValue(parse) &&
           findValue(dataStructureWords, parse.current.get(), parse.options.dataStructure);
}

bool readRange(InstructionParse_s& parse, Plot3DIndexRange_s& range, const char* label) {
    return fetchInstructionValue(parse) &&
           parseIndexRange(parse.current.view().data(), range, label);
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
    if (!fetchInstructionValue(parse))
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
    if (!fetchInstructionValue(parse) || !parseCount(parse.current.str(), count))
        return false;
    for (; count > 0; --count) {
        if (!fetchInstructionName(parse))
            return false;
        files.push_back(trimFileName(parse.current.view()));
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
    if (!fetchInstructionName(parse))
        return false;
    parse.options.nameFile = parse.current.str();
    return true;
}

/// A switch that no longer means anything.
bool skipSwitch(InstructionParse_s& /*parse*/) {
    return true;
}

// The switches below do not stand in for the tags that a standard list needs: `...Seen` stays.

template <bool Plot3DLoadOptions_s::*flag>
bool setFlag(InstructionParse_s& parse) {
    parse.options.*flag = true;
    return true;
}

template <Plot3DDataStructure_e dataStructure>
bool setDataStructure(InstructionParse_s& parse) {
    parse.options.dataStructure = dataStructure;
    return true;
}

bool setFunctionStyle(InstructionParse_s& parse) {
    parse.options.style = Plot3DStyle_Function;
    return true;
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
    {"FILELIST_DATAFILES", readDataFiles},
    {"FILENAME_GRIDFILE", readOneGridFile},
    {"-GF", readOneGridFile},
    {"-SF", readOneSolutionFile},
    {"-NF", readNameFile},
    {"-KSET", readKRange},
    {"-JSET", readJRange},
    {"-ISET", readIRange},
    {"-M", setFlag<&Options::isMultiGrid>},
    {"-I", setFlag<&Options::asciiHasIBlank>},
    {"-1D", setDataStructure<Plot3DDataStructure_1D>},
    {"-2D", setDataStructure<Plot3DDataStructure_2D>},
    {"-3DP", setDataStructure<Plot3DDataStructure_3DPlanes>},
    {"-3DW", setDataStructure<Plot3DDataStructure_3DWhole>},
    {"-UNSTRUCTURED", setDataStructure<Plot3DDataStructure_Unstructured>},
    {"-FUNCTION", setFunctionStyle},
    {"-FOREIGN", skipSwitch},
    {"-IP", skipSwitch},
    {"-JP", skipSwitch},
    {"-KP", skipSwitch},
    {"-B", skipSwitch},
    {"-F", skipSwitch},
};

} // namespace

bool fetchInstructionValue(InstructionParse_s& parse) {
    constexpr bool reportMissing = true;
    return nextInstructionString(parse.current, parse.instructions, parse.index, reportMissing);
}

bool fetchInstructionName(InstructionParse_s& parse) {
    return fetchInstructionValue(parse) && !parse.current.view().empty();
}

const InstructionKey_s* findInstructionKey(const char* word) {
    const auto* found = std::find_if(std::begin(keys), std::end(keys), [word](const auto& key) {
        return isSameWord(key.word, word);
    });
    return found != std::end(keys) ? found : nullptr;
}

} // namespace quorvia::quorutildataio
