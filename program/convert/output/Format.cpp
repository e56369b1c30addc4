#include "convert/output/Format.h"

#include <algorithm>
#include <filesystem>

namespace plot3d::program {

namespace {

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return lower;
}

bool has(const FormatFacts_s& facts, const std::string& extension) {
    return std::find(facts.extensions.begin(), facts.extensions.end(), extension) !=
           facts.extensions.end();
}

} // namespace

const std::vector<FormatFacts_s>& formats() {
    static const std::vector<FormatFacts_s> all = {
        {Format_e::Vtk, "vtk", {".vtm", ".pvd", ".vts", ".vtu"}},
        {Format_e::Cgns, "cgns", {".cgns"}},
        {Format_e::Npz, "npz", {".npz"}},
        {Format_e::Csv, "csv", {".csv"}},
        {Format_e::Plot3D,
         "plot3d",
         {".x", ".xyz", ".g", ".p3d", ".in", ".q", ".qfile", ".f", ".fun"}},
    };
    return all;
}

std::string wordOf(Format_e format) {
    for (const FormatFacts_s& facts : formats())
        if (facts.format == format)
            return facts.word;
    return {};
}

std::optional<Format_e> formatOfWord(std::string_view word) {
    for (const FormatFacts_s& facts : formats())
        if (lowerCase(word) == facts.word)
            return facts.format;
    return std::nullopt;
}

std::optional<Format_e> formatOfName(const std::string& file) {
    for (const FormatFacts_s& facts : formats())
        if (has(facts, extensionOf(file)))
            return facts.format;
    return std::nullopt;
}

std::string describeFormats() {
    std::string text;
    for (const FormatFacts_s& facts : formats()) {
        text += text.empty() ? "" : "; ";
        for (const std::string& extension : facts.extensions)
            text += (&extension == &facts.extensions.front() ? "" : ", ") + extension;
        text += " (" + std::string(facts.word) + ")";
    }
    return text;
}

std::string withoutExtension(const std::string& file) {
    return std::filesystem::path(file).replace_extension().string();
}

std::string extensionOf(const std::string& file) {
    return lowerCase(std::filesystem::path(file).extension().string());
}

} // namespace plot3d::program
