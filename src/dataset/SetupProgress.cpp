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

FieldSteps::FieldSteps(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file) {
    constexpr std::size_t longestText = 128;
    constexpr std::size_t longestTail = 64;
    text_.reserve(longestText);
    tail_.reserve(longestTail);
    text_ += "Setting up Zone=";
    appendNumber(text_, zone);
    text_ += ", Var=";
    headLength_ = text_.size();
    tail_ += " from Grid ";
    appendNumber(tail_, gridNumber);
    tail_ += " in ...";
    tail_ += fileTail(file.fileName.view());
}

bool FieldSteps::step(std::int32_t var) {
    if (!currentTask)
        return true;
    text_.resize(headLength_);
    appendNumber(text_, var);
    text_ += tail_;
    return currentTask->stepWithMessage(text_);
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
