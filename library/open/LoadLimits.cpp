#include "open/LoadLimits.h"

#include <algorithm>
#include <cctype>
#include <string>

#include <plot3d/Error.h>

namespace plot3dlib {

namespace {

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
        isLeft |= content.field(zone, variable).kind == plot3d::FieldKind::InFile;
    }
    return isRead && isLeft;
}

} // namespace

void demandReadable(const plot3d::OpenOptions& options) {
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
