#include "instructions/InstructionKeys.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "instructions/IndexRangeText.h"
#include "instructions/InstructionStrings.h"
#include "instructions/InstructionWords.h"
#include "instructions/OlderInstructions.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

namespace {

void setFlag(Plot3DLoadOptions_s& options, OptionMember<bool> flagOrNull, bool value) {
    if (flagOrNull != nullptr)
        options.*flagOrNull = value;
}

/// Reads the value of one key, each form of value in its way. False as for `read` of
/// InstructionKey_s.
class ValueReader {
public:
    ValueReader(InstructionParse_s& parse, const OptionKey_s& key) : parse_(parse), key_(key) {}

    bool operator()(OptionMember<bool> flag) {
        const bool wasRead = readBooleanInstruction(parse_.options.*flag, parse_.current,
                                                    parse_.instructions, parse_.index);
        setFlag(parse_.options, key_.readAlso, parse_.options.*flag);
        return wasRead;
    }

    /// A count of zero or below reads no names. A count that is no number is refused without a
    /// message.
    bool operator()(OptionMember<std::vector<std::string>> list) {
        std::vector<std::string>& files = parse_.options.*list;
        setFlag(parse_.options, key_.readAlso, true);
        files.clear();
        std::int32_t count = 0;
        if (!fetchInstructionValue(parse_) || !parseCount(parse_.current.str(), count))
            return false;
        for (; count > 0; --count) {
            if (!fetchInstructionName(parse_))
                return false;
            files.push_back(trimFileName(parse_.current.view()));
        }
        return true;
    }

    bool operator()(OptionMember<std::string> name) {
        setFlag(parse_.options, key_.readAlso, true);
        if (!fetchInstructionName(parse_))
            return false;
        parse_.options.*name = parse_.current.str();
        return true;
    }

    /// A word that stands for no style is refused without a message.
    bool operator()(OptionMember<Plot3DStyle_e> style) {
        return fetchInstructionValue(parse_) &&
               findValue(styleWords, parse_.current.get(), parse_.options.*style);
    }

    /// A word that stands for no layout is refused without a message.
    bool operator()(OptionMember<Plot3DDataStructure_e> dataStructure) {
        return fetchInstructionValue(parse_) &&
               findValue(dataStructureWords, parse_.current.get(), parse_.options.*dataStructure);
    }

    bool operator()(OptionMember<Plot3DIndexRange_s> range) {
        return fetchInstructionValue(parse_) &&
               parseIndexRange(parse_.current.view().data(), parse_.options.*range,
                               key_.rangeLabel);
    }

    bool operator()(OptionMember<QuorSetHandle> handle) {
        constexpr bool withBrackets = true;
        if (!fetchInstructionValue(parse_))
            return false;
        HostSet set;
        const bool isGood = parseSetText(parse_.current.view().data(), set, !withBrackets);
        if (!isGood)
            QuorUtilDialogErrMsg(("Invalid Set assigned to " + std::string(key_.word)).c_str());
        QuorSetHandle& stored = parse_.options.*handle;
        if (stored != nullptr) // of an earlier key
            QuorUtilSetDealloc(&stored);
        stored = set.release();
        return isGood;
    }

private:
    InstructionParse_s& parse_;
    const OptionKey_s& key_;
};

template <std::size_t index>
bool readOption(InstructionParse_s& parse) {
    constexpr const OptionKey_s& key = optionKeys[index];
    parse.keysSeen[index] = true;
    return std::visit(ValueReader(parse, key), key.member);
}

template <std::size_t... indices>
constexpr std::array<InstructionKey_s, sizeof...(indices)>
makeKeys(std::index_sequence<indices...> /*all*/) {
    return {{{optionKeys[indices].word, readOption<indices>}...}};
}

constexpr auto keys = makeKeys(std::make_index_sequence<std::size(optionKeys)>());

// Older names of keys, and switches.

template <auto member>
constexpr auto readAs = readOption<optionKeyIndex(member)>;

/// A switch that no longer means anything.
bool skipSwitch(InstructionParse_s& /*parse*/) {
    return true;
}

// The switches below do not stand in for the tags that a standard list needs: `keysSeen` stays.

template <OptionMember<bool> flag>
bool switchOn(InstructionParse_s& parse) {
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

constexpr InstructionKey_s olderKeys[] = {
    {"FILELIST_DATAFILES", readDataFiles},
    {"FILENAME_GRIDFILE", readOneGridFile},
    {"-GF", readOneGridFile},
    {"-SF", readOneSolutionFile},
    {"-NF", readAs<&Options::nameFile>},
    {"-KSET", readAs<&Options::kRange>},
    {"-JSET", readAs<&Options::jRange>},
    {"-ISET", readAs<&Options::iRange>},
    {"-M", switchOn<&Options::isMultiGrid>},
    {"-I", switchOn<&Options::asciiHasIBlank>},
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

template <typename Keys>
const InstructionKey_s* findAmong(const Keys& among, const char* word) {
    for (const InstructionKey_s& key : among)
        if (isSameWord(key.word, word))
            return &key;
    return nullptr;
}

} // namespace

bool fetchInstructionValue(InstructionParse_s& parse) {
    constexpr bool reportMissing = true;
    return nextInstructionString(parse.current, parse.instructions, parse.index, reportMissing);
}

bool fetchInstructionName(InstructionParse_s& parse) {
    return fetchInstructionValue(parse) && !parse.current.view().empty();
}

const InstructionKey_s* findInstructionKey(const char* word) {
    const InstructionKey_s* key = findAmong(keys, word);
    return key != nullptr ? key : findAmong(olderKeys, word);
}

} // namespace quorvia::quorutildataio
