#include "filenames/FileNameClassification.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <set>

#include "filenames/FilePatternTables.h"
#include "filenames/SimplePatternMatcher.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

namespace {

enum class FileKind_e { Grid, Solution, Function, Name, Unrecognised };

/// One matcher for each kind. The order of the questions settles names that look like two kinds.
class FileNameSorter {
public:
    FileKind_e kindOf(const std::string& fileName) const {
        if (grid_.matches(fileName))
            return FileKind_e::Grid;
        if (solution_.matches(fileName))
            return FileKind_e::Solution;
        if (function_.matches(fileName))
            return FileKind_e::Function;
        if (name_.matches(fileName))
            return FileKind_e::Name;
        return FileKind_e::Unrecognised;
    }

private:
    SimplePatternMatcher grid_{gGridPatterns};
    SimplePatternMatcher solution_{gSolutionPatterns};
    SimplePatternMatcher function_{gFunctionPatterns};
    SimplePatternMatcher name_{gNamePatterns};
};

/// Nothing if the host does not say where the directory ends: that must not decide the kind.
std::optional<std::string> fileNameOf(const std::string& path) {
    const HostString directory(QuorUtilGetBasePath(path.c_str()));
    if (!directory)
        return std::nullopt;
    return path.substr(std::min(directory.view().size(), path.size()));
}

/// From the last dot to the end, or the word "empty".
std::string extensionOf(const std::string& fileName) {
    const auto lastDot = fileName.rfind('.');
    const bool onlyBlanks = fileName.find_first_not_of(' ') == std::string::npos;
    return onlyBlanks || lastDot == std::string::npos ? "empty" : fileName.substr(lastDot);
}

void showUnrecognised(const std::set<std::string>& extensions) {
    std::string text = "The following extensions are unrecognized: \n\n\n";
    for (const std::string& extension : extensions)
        text += " *" + extension;
    text += "\n\n"
            "\nYou must use the \"advanced options\" to load files with unrecognized file "
            "extensions. The Plot3D loader "
            "automatically processes the following file extensions: "
            "\n\n\t" +
            filePatternListText(true);
    QuorUtilDialogErrMsg(text.c_str());
}

} // namespace

bool classifyFileNames(QuorStringListHandle names, std::vector<std::string>& gridFiles,
                       std::vector<std::string>& solutionFiles,
                       std::vector<std::string>& functionFiles, std::string& nameFile) {
    const FileNameSorter sorter;
    std::set<std::string> unrecognisedExtensions;
    bool result = true;
    const std::int64_t count = names != nullptr ? QuorUtilStringListGetCount(names) : 0;
    for (std::int64_t index = 1; result && index <= count; ++index) {
        const HostString name(QuorUtilStringListGetString(names, index));
        const std::string path = name.str();
        const std::optional<std::string> fileName = name ? fileNameOf(path) : std::nullopt;
        if (!fileName) { // a selection is loaded whole or not at all
            QuorUtilDialogErrMsg("Out of Memory!!!");
            return false;
        }
        switch (sorter.kindOf(*fileName)) {
        case FileKind_e::Grid:
            gridFiles.push_back(path);
            break;
        case FileKind_e::Solution:
            solutionFiles.push_back(path);
            break;
        case FileKind_e::Function:
            functionFiles.push_back(path);
            break;
        case FileKind_e::Name:
            if (nameFile.empty()) {
                nameFile = path;
            } else {
                QuorUtilDialogErrMsg("Only one Name file can be loaded.");
                result = false;
            }
            break;
        case FileKind_e::Unrecognised:
            unrecognisedExtensions.insert(extensionOf(*fileName));
            break;
        }
    }
    // Unrecognised names are no failure: the caller goes on with those that were recognised.
    if (!unrecognisedExtensions.empty())
        showUnrecognised(unrecognisedExtensions);
    return result;
}

} // namespace quorvia::quorutildataio
