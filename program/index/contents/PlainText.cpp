#include "index/contents/PlainText.h"

#include <algorithm>
#include <array>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace {

/// Bytes of the letter that begins with `first`; 0 if none does.
std::size_t letterBytes(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

bool isUtf8(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t count = letterBytes(static_cast<unsigned char>(text[place]));
        if (count == 0 || count > text.size() - place)
            return false;
        for (std::size_t follower = 1; follower < count; ++follower)
            if ((static_cast<unsigned char>(text[place + follower]) & 0xC0U) != 0x80)
                return false;
        place += count;
    }
    return true;
}

struct Entity_s {
    char letter;
    std::string_view text;
};

constexpr std::array<Entity_s, 4> entities = {
    {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}}};

[[noreturn]] void refuse(std::string_view text, const char* what) {
    throw Error(ErrorKind::Unsupported, "the name \"" + std::string(text) + "\" has " + what +
                                            ", which this format can't hold");
}

} // namespace

void refuseOtherThanUtf8(std::string_view text) {
    if (!isUtf8(text))
        refuse(text, "bytes that are no UTF-8");
}

std::string xmlText(std::string_view text) {
    refuseOtherThanUtf8(text);
    std::string result;
    for (const char letter : text) {
        if (static_cast<unsigned char>(letter) < ' ')
            refuse(text, "control characters");
        const auto* const entity =
            std::find_if(entities.begin(), entities.end(),
                         [letter](const Entity_s& each) { return each.letter == letter; });
        if (entity == entities.end())
            result += letter;
        else
            result += entity->text;
    }
    return result;
}

std::string plainText(std::string_view xml) {
    std::string result;
    while (!xml.empty()) {
        const auto* const entity =
            std::find_if(entities.begin(), entities.end(),
                         [xml](const Entity_s& each) { return xml.starts_with(each.text); });
        result += entity == entities.end() ? xml.front() : entity->letter;
        xml.remove_prefix(entity == entities.end() ? 1 : entity->text.size());
    }
    return result;
}

} // namespace plot3d::program
