// The patterns of each kind of file, filled by buildFilePatternTables and only read afterwards.
#pragma once

#include <string>
#include <vector>

namespace quorvia::quorutildataio {

extern std::vector<std::string> gGridPatterns;
extern std::vector<std::string> gSolutionPatterns;
extern std::vector<std::string> gFunctionPatterns;
extern std::vector<std::string> gNamePatterns;

} // namespace quorvia::quorutildataio
