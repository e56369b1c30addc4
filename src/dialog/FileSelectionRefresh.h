// What the page "File Selection" shows of the options, and which of its controls can be used.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Shows the options. An append that nothing is there for is taken out of them.
void refreshFileSelectionPage(Plot3DLoadOptions_s& options);

/// Shows `files` in the list in place of its items.
void showFiles(std::int32_t list, const std::vector<std::string>& files);

} // namespace quorvia::quorutildataio
