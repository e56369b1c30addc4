#include "dataset/items/SetupProgress.h"

#include <string>

#include "dataset/items/CurrentTask.h"
#include "dataset/items/ItemContext.h"

namespace quorvia::quorutildataio {

namespace {

// A number, which is positive, with at least three digits.
std::string digitsOf(std::int32_t number) {
    constexpr std::size_t leastDigits = 3;
    std::string digits = std::to_string(number);
    if (digits.size() < leastDigits)
        digits.insert(0, leastDigits - digits.size(), '0');
    return digits;
}

} // namespace

FieldSteps::FieldSteps(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file) {
    constexpr std::size_t longestText = 128;
    text_.reserve(longestText);
    text_ += "Setting up Zone=";
    text_ += digitsOf(zone);
    text_ += ", Var=";
    place_ = text_.size();
    text_ += " from Grid ";
    text_ += digitsOf(gridNumber);
    text_ += " in ...";
    text_ += fileTail(file.fileName.view());
}

bool FieldSteps::step(std::int32_t var) {
    if (!currentTask)
        return true;
    const std::string digits = digitsOf(var);
    text_.replace(place_, digitCount_, digits);
    digitCount_ = digits.size();
    return currentTask->stepWithMessage(text_);
}

void showConnectivity(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file) {
    std::string text = "Loading Connectivity for Zone=";
    text += digitsOf(zone);
    text += ", from Grid ";
    text += digitsOf(gridNumber);
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
