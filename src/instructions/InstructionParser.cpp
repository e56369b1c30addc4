#include "instructions/InstructionParser.h"

#include <new>
#include <string>

#include "instructions/InstructionKeys.h"
#include "instructions/InstructionStrings.h"
#include "instructions/OptionsValidation.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

constexpr bool reportMissing = true;

/// What a list has to state explicitly, whatever the defaults of the record are.
void clearStatedOptions(Plot3DLoadOptions_s& options) {
    options.autoDetect = false;
    options.solutionsShareStructure = false;
    options.assignStrandIds = false;
    options.assignStrandIdsRequested = false;
    options.addToExistingStrands = false;
    options.extractTimeFromSolFileNames = false;
    options.loadBoundary = false;
}

bool nextString(InstructionParse_s& parse) {
    return nextInstructionString(parse.current, parse.instructions, parse.index, !reportMissing);
}

/// The version behind the word is not looked at: no version is refused.
bool beginStandardSyntax(InstructionParse_s& parse) {
    parse.standardSyntax = true;
    parse.options.autoDetect = true;
    if (nextString(parse))
        return true;
    showMissingOption(standardSyntaxWord);
    return false;
}

bool readKeys(InstructionParse_s& parse) {
    for (bool isFirstString = true; nextString(parse); isFirstString = false) {
        if (isFirstString && isSameWord(parse.current.get(), standardSyntaxWord)) {
            if (!beginStandardSyntax(parse))
                return false;
            continue;
        }
        const InstructionKey_s* key = findInstructionKey(parse.current.get());
        if (key == nullptr)
            return true; // the rest of the list is ignored, and what stands before it may load
        if (!key->read(parse))
            return false;
    }
    return true;
}

bool readKeysWithinMemory(InstructionParse_s& parse) {
    try {
        return readKeys(parse);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

template <auto member>
bool wasSeen(const InstructionParse_s& parse) {
    return parse.keysSeen[optionKeyIndex(member)];
}

template <auto member>
std::string findMissingTag(const InstructionParse_s& parse) {
    if (wasSeen<member>(parse))
        return {};
    return std::string(optionKeyWord(member)) + " tag is required if " +
           optionKeyWord(&Plot3DLoadOptions_s::autoDetect) + " is FALSE.";
}

/// What is wrong with a list that was read, all in all; empty if nothing is.
std::string findFault(const InstructionParse_s& parse) {
    using Options = Plot3DLoadOptions_s;
    if (wasSeen<&Options::kRange>(parse) &&
        parse.options.dataStructure != Plot3DDataStructure_3DWhole)
        return "Error: Not allowed to use -KSet when data is not 3d whole";
    if (!parse.standardSyntax || parse.options.autoDetect)
        return {};
    for (const auto& findTagFault :
         {findMissingTag<&Options::style>, findMissingTag<&Options::dataStructure>,
          findMissingTag<&Options::isMultiGrid>})
        if (const std::string fault = findTagFault(parse); !fault.empty())
            return fault;
    return {};
}

} // namespace

bool parseLoadInstructions(QuorStringListHandle instructions, Plot3DLoadOptions_s& options) {
    setLoadOptionDefaults(options);
    clearStatedOptions(options);
    InstructionParse_s parse = {instructions, options};
    if (!readKeysWithinMemory(parse))
        return false;
    if (const std::string fault = findFault(parse); !fault.empty()) {
        QuorUtilDialogErrMsg(fault.c_str());
        return false;
    }
    return validateLoadOptions(options);
}

} // namespace quorvia::quorutildataio
