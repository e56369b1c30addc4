// The patterns of each kind of file, filled by buildFilePatternTables and only read afterwards.
#pragma once

#include <string>
#include <vector>

namespace quorvia::quorutildataio {

struct FilePatterns_s {
    std::vector<std::string> grid;
    std::vector<std::string> solution;
    std::vector<std::string> function;
    std::vector<std::string> name;
};

/// The patterns of each kind, whether the tables are filled or not.
FilePatterns_s filePatterns();

extern std::vector<std::string> gGridPatterns;
extern std::vector<std::string> gSolutionPatterns;
extern std::vector<std::string> gFunctionPatterns;
extern std::vector<std::string> gNamePatterns;

} // namespace quorvia::quorutildataio
