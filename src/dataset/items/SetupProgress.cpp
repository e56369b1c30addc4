#include "dataset/items/SetupProgress.h"

#include <string>
#include <string_view>

#include "dataset/items/CurrentTask.h"

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

/// A byte of UTF-8 behind the first of its character.
bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The last 17 characters of a path, or all of a shorter one: how progress texts name a file.
std::string_view fileTail(std::string_view path) {
    constexpr std::int32_t tailLength = 17;
    std::size_t start = path.size();
    for (std::int32_t characters = 0; start > 0 && characters < tailLength;)
        characters += continuesCharacter(path[--start]) ? 0 : 1;
    return path.substr(start);
}

void appendSource(std::string& text, std::int32_t gridNumber, const Plot3DFile_s& file) {
    text += " from Grid ";
    text += digitsOf(gridNumber);
    text += " in ...";
    text += fileTail(file.fileName.view());
}

} // namespace

FieldSteps::FieldSteps(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file) {
    constexpr std::size_t longestText = 128;
    text_.reserve(longestText);
    text_ += "Setting up Zone=";
    text_ += digitsOf(zone);
    text_ += ", Var=";
    place_ = text_.size();
    appendSource(text_, gridNumber, file);
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
    text += ',';
    appendSource(text, gridNumber, file);
    text += '.';
    showOnCurrentTask(text.c_str());
}

void showOnCurrentTask(const char* text) {
    if (currentTask)
        currentTask->setMessage(text);
}

} // namespace quorvia::quorutildataio
