#include "filenames/FilePatternTables.h"

#include <utility>

#include "filenames/FileNameClassification.h"

namespace quorvia::quorutildataio {

std::vector<std::string> gGridPatterns;
std::vector<std::string> gSolutionPatterns;
std::vector<std::string> gFunctionPatterns;
std::vector<std::string> gNamePatterns;

FilePatterns_s filePatterns() {
    return {
        .grid = {"g.*", "*.g", "x.*", "*.x", "xyz.*", "*.xyz", "*.in", "*.in.*", "in.*", "*.p3d"},
        .solution = {"q.*", "*.q", "*.qfile"},
        .function = {"f.*", "*.f", "fun.*", "*.fun"},
        .name = {"*.nam"},
    };
}

void buildFilePatternTables() {
    FilePatterns_s patterns = filePatterns();
    gGridPatterns = std::move(patterns.grid);
    gSolutionPatterns = std::move(patterns.solution);
    gFunctionPatterns = std::move(patterns.function);
    gNamePatterns = std::move(patterns.name);
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
