// The words that stand for a style or a layout in load instructions, for reader and writer alike.
#pragma once

#include "instructions/Plot3DStructure.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

template <typename Value>
struct InstructionWord_s {
    const char* word;
    Value value;
};

inline constexpr InstructionWord_s<Plot3DStyle_e> styleWords[] = {
    {"PLOT3DCLASSIC", Plot3DStyle_Classic},
    {"PLOT3DFUNCTION", Plot3DStyle_Function},
    {"OVERFLOW", Plot3DStyle_Overflow},
    {"SWIFT", Plot3DStyle_Swift},
};

inline constexpr InstructionWord_s<Plot3DDataStructure_e> dataStructureWords[] = {
    {"1D", Plot3DDataStructure_1D},
    {"2D", Plot3DDataStructure_2D},
    {"3DP", Plot3DDataStructure_3DPlanes},
    {"3DW", Plot3DDataStructure_3DWhole},
    {"UNSTRUCTURED", Plot3DDataStructure_Unstructured},
};

/// The word of `value`; null if it has none.
template <typename Words, typename Value>
const char* findWord(const Words& words, Value value) {
    for (const auto& entry : words)
        if (entry.value == value)
            return entry.word;
    return nullptr;
}

/// Stores what `word` stands for, whatever its case. False: it is none of the words.
template <typename Words, typename Value>
bool findValue(const Words& words, const char* word, Value& value) {
    for (const auto& entry : words)
        if (isSameWord(entry.word, word)) {
            value = entry.value;
            return true;
        }
    return false;
}

} // namespace quorvia::quorutildataio
