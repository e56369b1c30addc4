// The keys of load instructions and the options that they stand for, in the order in which they are
// written. Reader, writer and whoever composes a list ask here. docs/instructions.md tells the same
// table to users.
#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <variant>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

// Ahead of all keys.
inline constexpr const char* standardSyntaxWord = "STANDARDSYNTAX";
inline constexpr const char* standardSyntaxVersion = "1.0";

// How a flag is written. A reader knows more words: isTrueString.
inline constexpr const char* trueWord = "Yes";
inline constexpr const char* falseWord = "No";

/// A member of the options. Its type is the form of the key's value: a flag, a count and that many
/// names, a name, a word for a style, a word for a layout, a range, a set.
template <typename Value>
using OptionMember = Value Plot3DLoadOptions_s::*;
using AnyOptionMember = std::variant<OptionMember<bool>, OptionMember<std::vector<std::string>>,
                                     OptionMember<std::string>, OptionMember<Plot3DStyle_e>,
                                     OptionMember<Plot3DDataStructure_e>,
                                     OptionMember<Plot3DIndexRange_s>, OptionMember<QuorSetHandle>>;

enum class WrittenWhen_e {
    Always, // a list of no files and a null set apart, which never are
    NameFileIsUsed,
    StructureIsGiven,
    RangesApply,
    KRangeApplies,
};

struct OptionKey_s {
    const char* word;
    AnyOptionMember member;
    WrittenWhen_e writtenWhen = WrittenWhen_e::Always;
    /// A second flag that reading sets: for files and names that the key was met, also if it is
    /// then refused; for a flag the same value. It may be null.
    OptionMember<bool> readAlso = nullptr;
    const char* rangeLabel = nullptr; // of a range, in messages
};

inline constexpr OptionKey_s optionKeys[] = {
    {"APPEND", &Plot3DLoadOptions_s::append},
    {"FILELIST_GRIDFILES", &Plot3DLoadOptions_s::gridFiles, WrittenWhen_e::Always,
     &Plot3DLoadOptions_s::hasGridFiles},
    {"FILELIST_SOLUTIONFILES", &Plot3DLoadOptions_s::solutionFiles, WrittenWhen_e::Always,
     &Plot3DLoadOptions_s::hasSolutionFiles},
    {"FILELIST_FUNCTIONFILES", &Plot3DLoadOptions_s::functionFiles},
    {"FILENAME_NAMEFILE", &Plot3DLoadOptions_s::nameFile, WrittenWhen_e::NameFileIsUsed,
     &Plot3DLoadOptions_s::hasNameFile},
    {"ISMULTIGRID", &Plot3DLoadOptions_s::isMultiGrid, WrittenWhen_e::StructureIsGiven},
    {"STYLE", &Plot3DLoadOptions_s::style, WrittenWhen_e::StructureIsGiven},
    {"DATASTRUCTURE", &Plot3DLoadOptions_s::dataStructure, WrittenWhen_e::StructureIsGiven},
    {"IINDEXRANGE", &Plot3DLoadOptions_s::iRange, WrittenWhen_e::RangesApply, nullptr, "I-Index"},
    {"JINDEXRANGE", &Plot3DLoadOptions_s::jRange, WrittenWhen_e::RangesApply, nullptr, "J-Index"},
    {"KINDEXRANGE", &Plot3DLoadOptions_s::kRange, WrittenWhen_e::KRangeApplies, nullptr, "K-Index"},
    {"FILEGRIDSET", &Plot3DLoadOptions_s::gridSet},
    {"AUTODETECT", &Plot3DLoadOptions_s::autoDetect},
    {"LOADBOUNDARY", &Plot3DLoadOptions_s::loadBoundary},
    {"ASCIIISDOUBLE", &Plot3DLoadOptions_s::asciiIsDouble},
    {"ASCIIHASIBLANK", &Plot3DLoadOptions_s::asciiHasIBlank},
    {"SOLUTIONSSHARESTRUCTURE", &Plot3DLoadOptions_s::solutionsShareStructure},
    {"ASSIGNSTRANDIDS", &Plot3DLoadOptions_s::assignStrandIdsRequested, WrittenWhen_e::Always,
     &Plot3DLoadOptions_s::assignStrandIds},
    {"ADDTOEXISTINGSTRANDS", &Plot3DLoadOptions_s::addToExistingStrands},
    {"UNIFORMGRIDSTRUCTURE", &Plot3DLoadOptions_s::uniformGridStructure},
    {"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", &Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep},
    {"EXTRACTTIMEFROMSOLFILENAMES", &Plot3DLoadOptions_s::extractTimeFromSolFileNames},
};

/// The place of a member's key among `optionKeys`, from 0. One that has no key does not compile.
template <typename Value>
consteval std::size_t optionKeyIndex(OptionMember<Value> member) {
    std::size_t index = 0;
    while (optionKeys[index].member != AnyOptionMember(member))
        ++index;
    return index;
}

/// The word of a member's key.
template <typename Value>
consteval const char* optionKeyWord(OptionMember<Value> member) {
    return optionKeys[optionKeyIndex(member)].word;
}

} // namespace quorvia::quorutildataio
