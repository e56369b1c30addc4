#include "filenames/FilePatternTables.h"

#include "filenames/FileNameClassification.h"

namespace quorvia::quorutildataio {

std::vector<std::string> gGridPatterns;
std::vector<std::string> gSolutionPatterns;
std::vector<std::string> gFunctionPatterns;
std::vector<std::string> gNamePatterns;

void buildFilePatternTables() {
    gGridPatterns = {"g.*",   "*.g",  "x.*",    "*.x",  "xyz.*",
                     "*.xyz", "*.in", "*.in.*", "in.*", "*.p3d"};
    gSolutionPatterns = {"q.*", "*.q", "*.qfile"};
    gFunctionPatterns = {"f.*", "*.f", "fun.*", "*.fun"};
    gNamePatterns = {"*.nam"};
}

std::string filePatternListText(bool withCommas) {
    const std::string separator = withCommas ? ", " : " ";
    std::string text;
    for (const auto* table :
         {&gGridPatterns, &gSolutionPatterns, &gFunctionPatterns, &gNamePatterns})
        for (const std::string& pattern : *table)
            text += (text.empty() ? "" : separator) + pattern;
    if (const auto lastComma = text.rfind(','); withCommas && lastComma != std::string::npos)
        text.replace(lastComma, 1, " or");
    return text;
}

} // namespace quorvia::quorutildataio
