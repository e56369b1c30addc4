// What the load dialog works on and remembers. Process-wide, guarded by the host's lock, lives as
// long as the library; nothing of it is saved anywhere.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "quorvia/QuorGUI.h"

namespace quorvia::quorutildataio {

/// The host's value for "no control".
constexpr std::int32_t noControl = QuorGUIId_None;

/// The options that the dialog edits. A load from instructions never touches them.
extern Plot3DLoadOptions_s gLoadOptions;

/// The files that the dialog shows when it opens.
extern std::vector<std::string> gRetainedGridFiles;
extern std::vector<std::string> gRetainedSolutionFiles;
extern std::vector<std::string> gRetainedFunctionFiles;
extern std::string gRetainedNameFile;

/// The dialog, noControl until it is built, and its control that gets the input focus.
extern std::int32_t loadDialog;
extern std::int32_t gridAddFiles;

} // namespace quorvia::quorutildataio
