#include "dataset/SetupProgress.h"

#include <string>

#include "dataset/CurrentTask.h"
#include "dataset/ItemContext.h"

namespace quorvia::quorutildataio {

namespace {

// Appends a number, which is positive, with at least three digits.
void appendNumber(std::string& text, std::int32_t number) {
    if (number < 100)
        text += '0';
    if (number < 10)
        text += '0';
    text += std::to_string(number);
}

} // namespace

// Put together by hand: a long list of files shows one text for each of its fields, and a format
// string would take as long as the registration of the field.
bool stepForField(std::int32_t zone, std::int32_t var, std::int32_t gridNumber,
                  const Plot3DFile_s& file) {
    if (!currentTask)
        return true;
    constexpr std::size_t longestText = 128;
    std::string text;
    text.reserve(longestText);
    text += "Setting up Zone=";
    appendNumber(text, zone);
    text += ", Var=";
    appendNumber(text, var);
    text += " from Grid ";
    appendNumber(text, gridNumber);
    text += " in ...";
    text += fileTail(file.fileName.view());
    return currentTask->stepWithMessage(text);
}

void showConnectivity(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file) {
    std::string text = "Loading Connectivity for Zone=";
    appendNumber(text, zone);
    text += ", from Grid ";
    appendNumber(text, gridNumber);
    text += " in ...";
    text += fileTail(file.fileName.view());
    text += '.';
    showOnCurrentTask(text.c_str());
}

void showOnCurrentTask(const char* text) {
    if (currentTask)
        currentTask->setMessage(text);
}

} // namespace quorvia::quorutildataio
