#include "state/DialogState.h"

namespace quorvia::quorutildataio {

Plot3DLoadOptions_s gLoadOptions; // gets its defaults from the entry

std::vector<std::string> gRetainedGridFiles;
std::vector<std::string> gRetainedSolutionFiles;
std::vector<std::string> gRetainedFunctionFiles;
std::string gRetainedNameFile;

std::int32_t loadDialog = noControl;
std::int32_t gridAddFiles = noControl;

} // namespace quorvia::quorutildataio
