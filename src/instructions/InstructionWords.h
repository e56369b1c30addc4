// The words that stand for a style or a layout in load instructions, for reader and writer alike,
// and what the dialog calls them. In the order of their values, which is that of the dialog's
// menus.
#pragma once

#include "instructions/Plot3DStructure.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

template <typename Value>
struct InstructionWord_s {
    const char* word;
    const char* caption; // in the dialog
    Value value;
};

inline constexpr InstructionWord_s<Plot3DStyle_e> styleWords[] = {
    {"PLOT3DCLASSIC", "Plot3D Classic", Plot3DStyle_Classic},
    {"PLOT3DFUNCTION", "Plot3D Function", Plot3DStyle_Function},
    {"OVERFLOW", "Overflow", Plot3DStyle_Overflow},
    {"SWIFT", "Swift", Plot3DStyle_Swift},
};

inline constexpr InstructionWord_s<Plot3DDataStructure_e> dataStructureWords[] = {
    {"1D", "1-D", Plot3DDataStructure_1D},
    {"2D", "2-D", Plot3DDataStructure_2D},
    {"3DP", "3-D Planes", Plot3DDataStructure_3DPlanes},
    {"3DW", "3-D Whole", Plot3DDataStructure_3DWhole},
    {"UNSTRUCTURED", "Unstructured", Plot3DDataStructure_Unstructured},
};

/// The word of `value`. Null (not told): it has none.
template <typename Words, typename Value>
[[nodiscard]] const char* findWord(const Words& words, Value value) {
    for (const auto& entry : words)
        if (entry.value == value)
            return entry.word;
    return nullptr;
}

/// Stores what `word` stands for, whatever its case. False (not told): it is none of the words.
template <typename Words, typename Value>
[[nodiscard]] bool findValue(const Words& words, const char* word, Value& value) {
    for (const auto& entry : words)
        if (isSameWord(entry.word, word)) {
            value = entry.value;
            return true;
        }
    return false;
}

} // namespace quorvia::quorutildataio
