#include "open/LoadLimits.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <variant>
#include <vector>

#include <plot3d/Error.h>

#include "instructions/InstructionKeys.h"
#include "instructions/InstructionStrings.h"
#include "open/Facts.h"

namespace plot3dlib {

namespace {

namespace io = quorvia::quorutildataio;

bool isKey(const std::string& text, const std::string& key) {
    return std::equal(text.begin(), text.end(), key.begin(), key.end(), [](char left, char right) {
        return std::toupper(static_cast<unsigned char>(left)) == right;
    });
}

bool isRangeKey(const std::string& text) {
    for (const char* key : {"IINDEXRANGE", "JINDEXRANGE", "KINDEXRANGE", "-ISET", "-JSET", "-KSET"})
        if (isKey(text, key))
            return true;
    return false;
}

std::string keyWords() {
    std::string words;
    for (const io::OptionKey_s& key : io::optionKeys)
        words += std::string(words.empty() ? "" : ", ") + key.word;
    return words;
}

bool isTruth(const std::string& value) {
    return io::isTrueString(value.c_str()) || isKey(value, "NO") || isKey(value, "N") ||
           isKey(value, "FALSE") || isKey(value, "F");
}

/// A load takes no notice of what stands behind a key that it does not know, and takes every word
/// that it does not know for No.
void demandInstruction(const std::string& key, const std::string& value) {
    using plot3d::Error;
    using plot3d::ErrorKind;
    if (io::findInstructionKey(key.c_str()) == nullptr)
        throw Error(ErrorKind::Usage, "There is no load instruction \"" + key + "\"",
                    expecting("one of " + keyWords()));
    for (const io::OptionKey_s& known : io::optionKeys) {
        if (!isKey(key, known.word))
            continue;
        if (std::holds_alternative<io::OptionMember<std::vector<std::string>>>(known.member))
            throw Error(ErrorKind::Usage, key + " names files, which are given by themselves");
        if (std::holds_alternative<io::OptionMember<bool>>(known.member) && !isTruth(value))
            throw Error(ErrorKind::Usage, key + " can't be \"" + value + "\"",
                        expecting("Yes or No"));
    }
}

/// Start,End,Skip; an end that is empty or 0 is the last index.
bool hasEnd(const std::string& range) {
    const auto comma = range.find(',');
    if (comma == std::string::npos)
        return false;
    const std::string end = range.substr(comma + 1, range.find(',', comma + 1) - comma - 1);
    return end.find_first_of("123456789") != std::string::npos;
}

bool hasElements(const Content_s& content, std::size_t zone) {
    return !content.nodeMaps.empty() && content.nodeMaps[zone] != nullptr &&
           content.nodeMaps[zone]->nodes() != nullptr;
}

/// Fields of one variable that are read in one step and left in their file in another.
bool isReadInPart(const Content_s& content, std::size_t variable) {
    bool isRead = false;
    bool isLeft = false;
    for (std::size_t zone = 0; zone < content.zones.size(); ++zone) {
        isRead |= content.field(zone, variable).kind == plot3d::FieldKind::InMemory;
        isLeft |= content.field(zone, variable).kind == plot3d::FieldKind::InFile ||
                  content.field(zone, variable).kind == plot3d::FieldKind::AtHost;
    }
    return isRead && isLeft;
}

} // namespace

void demandReadable(const plot3d::OpenOptions& options) {
    for (const auto& [key, value] : options.instructions)
        demandInstruction(key, value);
    bool hasSet = false;
    bool hasRangeEnd = false;
    for (const auto& [key, value] : options.instructions) {
        hasSet |= isKey(key, "FILEGRIDSET") && !value.empty();
        hasRangeEnd |= isRangeKey(key) && hasEnd(value);
    }
    if (hasSet && hasRangeEnd)
        throw plot3d::Error(plot3d::ErrorKind::Unsupported,
                            "A set of grids can't be loaded together with an index range that has "
                            "an end: open all grids, or all indices.");
}

bool isComplete(const Content_s& content) {
    for (std::size_t variable = 0; variable < content.variables.size(); ++variable)
        if (isReadInPart(content, variable))
            return false;
    for (std::size_t zone = 0; zone < content.zones.size(); ++zone)
        if (content.zones[zone].elementCount > 0 && !hasElements(content, zone))
            return false;
    return true;
}

} // namespace plot3dlib
