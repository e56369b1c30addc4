#include "index/contents/PlainText.h"

#include <algorithm>
#include <array>

#include <plot3d/Error.h>

#include "console/JsonText.h"

namespace plot3d::program {

namespace {

struct Entity_s {
    char letter;
    std::string_view text;
};

constexpr std::array<Entity_s, 4> entities = {
    {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}}};

[[noreturn]] void refuseName(std::string_view text, const char* what) {
    throw Error(ErrorKind::Unsupported, "the name \"" + std::string(text) + "\" has " + what +
                                            ", which this format can't hold");
}

} // namespace

void refuseOtherThanUtf8(std::string_view text) {
    if (!console::isUtf8(text))
        refuseName(text, "bytes that are no UTF-8");
}

std::string jsonText(std::string_view text) {
    refuseOtherThanUtf8(text);
    return console::jsonText(text);
}

std::string xmlText(std::string_view text) {
    refuseOtherThanUtf8(text);
    std::string result;
    for (const char letter : text) {
        if (static_cast<unsigned char>(letter) < ' ')
            refuseName(text, "control characters");
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
