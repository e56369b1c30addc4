#include "app/LeftOut.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <unordered_set>

#include <fnmatch.h>

namespace quorvia::host {
namespace {

std::vector<std::string> wordsOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

bool fitsAny(const std::string& file, const std::vector<std::string>& patterns) {
    const std::string name = file.substr(file.find_last_of('/') + 1);
    return std::any_of(patterns.begin(), patterns.end(), [&name](const std::string& pattern) {
        return fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD) == 0;
    });
}

constexpr const char* boundaryFiles = "*.fvbnd";

bool loadsBoundary(const std::vector<std::string>& instructions) {
    const auto key = std::find(instructions.begin(), instructions.end(), "LOADBOUNDARY");
    return instructions.end() - key > 1 && key[1] == "Yes";
}

/// Empty if there is none.
std::string firstGridFile(const std::vector<std::string>& instructions) {
    const auto key = std::find(instructions.begin(), instructions.end(), "FILELIST_GRIDFILES");
    return instructions.end() - key > 2 ? key[2] : "";
}

} // namespace

std::vector<std::string> filesOfNoKind(const std::vector<std::string>& files,
                                       const std::string& extensions) {
    std::vector<std::string> patterns = wordsOf(extensions);
    patterns.emplace_back(boundaryFiles);
    std::vector<std::string> unfit;
    std::copy_if(files.begin(), files.end(), std::back_inserter(unfit),
                 [&patterns](const std::string& file) { return !fitsAny(file, patterns); });
    return unfit;
}

std::vector<std::string> filesNotNamed(const std::vector<std::string>& files,
                                       const std::vector<std::string>& instructions) {
    std::unordered_set<std::string> named(instructions.begin(), instructions.end());
    if (loadsBoundary(instructions)) {
        const std::string grid = firstGridFile(instructions);
        named.insert({grid + ".fvbnd", grid + ".FVBND"});
    }
    std::vector<std::string> missing;
    std::copy_if(files.begin(), files.end(), std::back_inserter(missing),
                 [&named](const std::string& file) { return named.count(file) == 0; });
    return missing;
}

bool toldAnError(const Outcome_s& outcome) {
    const auto isError = [](const Message_s& message) {
        return message.kind == MessageKind_e::Error;
    };
    return std::any_of(outcome.messages.begin(), outcome.messages.end(), isError);
}

} // namespace quorvia::host
