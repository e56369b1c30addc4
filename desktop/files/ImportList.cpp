#include "desktop/files/ImportList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>
#include <utility>

#include <plot3d/FileNames.h>

#include "desktop/files/SeriesFiles.h"

namespace quorvia::host {
namespace {

using plot3d::FileKind;
using Texts = std::vector<std::string>;

constexpr std::array<std::pair<const char*, FileKind>, 3> listKeys = {
    {{"FILELIST_GRIDFILES", FileKind::Grid},
     {"FILELIST_SOLUTIONFILES", FileKind::Solution},
     {"FILELIST_FUNCTIONFILES", FileKind::Function}}};

/// Where the names of a list stand among the instructions: behind their count.
struct Names_s {
    std::size_t first = 0;
    std::size_t count = 0;
};

std::optional<Names_s> namesBehind(const std::string& key, const Texts& instructions) {
    const auto found = std::find(instructions.begin(), instructions.end(), key);
    if (found == instructions.end() || found + 1 == instructions.end())
        return std::nullopt;
    const std::string& text = *(found + 1);
    std::size_t count = 0;
    std::from_chars(text.data(), text.data() + text.size(), count); // 0 for no number
    const auto first = static_cast<std::size_t>(found - instructions.begin()) + 2;
    return Names_s{first, std::min(count, instructions.size() - first)};
}

Texts listOf(const Texts& instructions, const Names_s& names) {
    const auto first = instructions.begin() + static_cast<std::ptrdiff_t>(names.first);
    return {first, first + static_cast<std::ptrdiff_t>(names.count)};
}

/// A single grid serves all solutions: one beside it is another case.
bool mayBeSeries(FileKind kind, const Texts& files) {
    return kind != FileKind::Grid || files.size() > 1;
}

/// In place of the list that stands there.
void setList(Texts& instructions, const Names_s& names, const Texts& files) {
    const auto first = instructions.begin() + static_cast<std::ptrdiff_t>(names.first);
    const auto behind = instructions.erase(first, first + static_cast<std::ptrdiff_t>(names.count));
    const auto inserted = instructions.insert(behind, files.begin(), files.end());
    *(inserted - 1) = std::to_string(files.size());
}

void addUnique(std::vector<ImportedFile_s>& files, ImportedFile_s file) {
    if (std::find(files.begin(), files.end(), file) == files.end())
        files.push_back(std::move(file));
}

} // namespace

std::vector<ImportedFile_s> filesOf(const ImportList& imports) {
    std::vector<ImportedFile_s> files;
    for (const Import_s& import : imports) {
        for (const auto& [key, kind] : listKeys)
            if (const auto names = namesBehind(key, import.instructions))
                for (const std::string& name : listOf(import.instructions, *names))
                    addUnique(files, {kind, name});
        const auto names =
            std::find(import.instructions.begin(), import.instructions.end(), "FILENAME_NAMEFILE");
        if (names != import.instructions.end() && names + 1 != import.instructions.end())
            addUnique(files, {FileKind::Name, *(names + 1)});
    }
    return files;
}

bool appends(const Texts& instructions) {
    const auto found = std::find(instructions.begin(), instructions.end(), "APPEND");
    return found != instructions.end() && found + 1 != instructions.end() && *(found + 1) == "Yes";
}

Import_s importBy(Texts instructions) {
    Import_s import{std::move(instructions), {}};
    for (const auto& [key, kind] : listKeys)
        if (const auto names = namesBehind(key, import.instructions)) {
            const Texts files = listOf(import.instructions, *names);
            if (mayBeSeries(kind, files))
                std::ranges::move(othersOfSeries(files), std::back_inserter(import.leftOut));
        }
    return import;
}

std::size_t addNewFiles(Import_s& import) {
    std::size_t newCount = 0;
    for (const auto& [key, kind] : listKeys) {
        const auto names = namesBehind(key, import.instructions);
        if (!names)
            continue;
        Texts files = listOf(import.instructions, *names);
        if (!mayBeSeries(kind, files))
            continue;
        const bool isInOrder = std::is_sorted(files.begin(), files.end(), plot3d::naturalLess);
        const std::size_t countBefore = files.size();
        for (std::string& other : othersOfSeries(files))
            if (std::ranges::find(import.leftOut, other) == import.leftOut.end())
                files.push_back(std::move(other));
        newCount += files.size() - countBefore;
        if (isInOrder)
            std::sort(files.begin(), files.end(), plot3d::naturalLess);
        setList(import.instructions, *names, files);
    }
    return newCount;
}

} // namespace quorvia::host
