#include "app/Settings.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include <fmt/core.h>
#include <strings.h>

#include "app/macro/NearestName.h"

namespace quorvia::host {
namespace {

using Names = std::span<const std::string_view>;

constexpr std::array<std::string_view, 9> truths = {"Yes",   "No", "Y", "N",        "True",
                                                    "False", "T",  "F", "YouBetcha"};
constexpr std::array<std::string_view, 4> styles = {"PLOT3DCLASSIC", "PLOT3DFUNCTION", "OVERFLOW",
                                                    "SWIFT"};
constexpr std::array<std::string_view, 5> structures = {"3DW", "3DP", "2D", "1D", "UNSTRUCTURED"};

enum class Value_e { Truth, Style, Structure, Free, FileList };

struct Key_s {
    std::string_view name;
    Value_e value;
    std::string_view option = {}; // that gives what a file list would
};

/// Every key of docs/instructions.md that is followed by one value, and the lists of files, which
/// are not. The switches of older layouts have no value and can't be given as KEY=VALUE.
constexpr std::array keys = {
    Key_s{"APPEND", Value_e::Truth},
    Key_s{"FILENAME_NAMEFILE", Value_e::Free},
    Key_s{"AUTODETECT", Value_e::Truth},
    Key_s{"STYLE", Value_e::Style},
    Key_s{"DATASTRUCTURE", Value_e::Structure},
    Key_s{"ISMULTIGRID", Value_e::Truth},
    Key_s{"IINDEXRANGE", Value_e::Free},
    Key_s{"JINDEXRANGE", Value_e::Free},
    Key_s{"KINDEXRANGE", Value_e::Free},
    Key_s{"FILEGRIDSET", Value_e::Free},
    Key_s{"LOADBOUNDARY", Value_e::Truth},
    Key_s{"ASCIIISDOUBLE", Value_e::Truth},
    Key_s{"ASCIIHASIBLANK", Value_e::Truth},
    Key_s{"SOLUTIONSSHARESTRUCTURE", Value_e::Truth},
    Key_s{"UNIFORMGRIDSTRUCTURE", Value_e::Truth},
    Key_s{"ASSIGNSTRANDIDS", Value_e::Truth},
    Key_s{"ADDTOEXISTINGSTRANDS", Value_e::Truth},
    Key_s{"ASSIGNNEWSTRANDIDFOREACHTIMESTEP", Value_e::Truth},
    Key_s{"EXTRACTTIMEFROMSOLFILENAMES", Value_e::Truth},
    Key_s{"FILENAME_GRIDFILE", Value_e::Free},
    Key_s{"-GF", Value_e::Free},
    Key_s{"-SF", Value_e::Free},
    Key_s{"-NF", Value_e::Free},
    Key_s{"-ISET", Value_e::Free},
    Key_s{"-JSET", Value_e::Free},
    Key_s{"-KSET", Value_e::Free},
    Key_s{"FILELIST_GRIDFILES", Value_e::FileList, "--grid"},
    Key_s{"FILELIST_SOLUTIONFILES", Value_e::FileList, "--solution"},
    Key_s{"FILELIST_FUNCTIONFILES", Value_e::FileList, "--function"},
    Key_s{"FILELIST_DATAFILES", Value_e::FileList, "FILE"},
};

bool isSame(std::string_view one, std::string_view other) {
    return one.size() == other.size() && strncasecmp(one.data(), other.data(), one.size()) == 0;
}

bool isAmong(std::string_view word, Names words) {
    return std::any_of(words.begin(), words.end(),
                       [word](std::string_view known) { return isSame(word, known); });
}

std::string unknownKey(std::string_view key) {
    return fmt::format("there is no key \"{}\" with a value; the nearest known one is \"{}\"", key,
                       nearestName(key, settingKeys()));
}

std::string wordProblem(std::string_view key, std::string_view value, Names words) {
    if (isAmong(value, words))
        return {};
    return fmt::format("{} can't be \"{}\"; the nearest known word is \"{}\"", key, value,
                       nearestName(value, words));
}

/// The loader takes every word that it does not know for No, also a Yes with a slip in it.
std::string truthProblem(std::string_view key, std::string_view value) {
    if (isAmong(value, truths))
        return {};
    return fmt::format("{} can't be \"{}\"; the known words are \"Yes\" and \"No\"", key, value);
}

} // namespace

std::vector<std::string_view> settingKeys() {
    std::vector<std::string_view> names;
    for (const Key_s& key : keys)
        names.push_back(key.name);
    return names;
}

std::string settingProblem(std::string_view key, std::string_view value) {
    const auto known = std::find_if(keys.begin(), keys.end(),
                                    [key](const Key_s& each) { return isSame(key, each.name); });
    if (known == keys.end())
        return unknownKey(key);
    switch (known->value) {
    case Value_e::Truth:
        return truthProblem(known->name, value);
    case Value_e::Style:
        return wordProblem(known->name, value, styles);
    case Value_e::Structure:
        return wordProblem(known->name, value, structures);
    case Value_e::FileList:
        return fmt::format("{} is followed by several values; give its files with {}", known->name,
                           known->option);
    case Value_e::Free:
        break;
    }
    return {};
}

} // namespace quorvia::host
