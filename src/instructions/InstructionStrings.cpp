#include "instructions/InstructionStrings.h"

#include <algorithm>
#include <iterator>
#include <locale>
#include <new>
#include <sstream>

#include "instructions/OptionKeys.h"
#include "instructions/ValueText.h"

namespace quorvia::quorutildataio {

bool nextInstructionString(HostString& current, QuorStringListHandle instructions,
                           std::int64_t& index, bool reportMissing) {
    current.reset();
    ++index;
    if (index <= QuorUtilStringListGetCount(instructions)) {
        current = HostString(QuorUtilStringListGetString(instructions, index));
        if (!current)
            throw std::bad_alloc(); // half a list must not pass for a whole one
        return true;
    }
    if (reportMissing)
        showMissingOption(HostString(QuorUtilStringListGetString(instructions, index - 1)).str());
    return false;
}

bool readBooleanInstruction(bool& field, HostString& current, QuorStringListHandle instructions,
                            std::int64_t& index) {
    constexpr bool reportMissing = true;
    if (!nextInstructionString(current, instructions, index, reportMissing))
        return false;
    field = isTrueString(current.get());
    return true;
}

void showMissingOption(const std::string& word) {
    const std::string text = "Error in PLOT3D loader instructions.\nExpecting option for: " + word;
    QuorUtilDialogErrMsg(text.c_str());
}

bool isTrueString(const char* text) {
    constexpr const char* trueWords[] = {trueWord, "Y", "True", "T", "YouBetcha"};
    return std::any_of(std::begin(trueWords), std::end(trueWords),
                       [text](const char* word) { return isSameWord(word, text); });
}

bool parseCount(const std::string& text, std::int32_t& count) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    return static_cast<bool>(stream >> count);
}

std::string trimFileName(std::string_view text) {
    constexpr const char* white = " \t\r\n";
    const auto first = text.find_first_not_of(white);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(white) - first + 1));
}

} // namespace quorvia::quorutildataio
