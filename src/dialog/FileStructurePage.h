// The page "File Structure": whether the structure of the files is found by trial, or what it is.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Makes the page with its controls, once. False (not told): the host could not make all of it.
[[nodiscard]] bool buildFileStructurePage();

/// Shows the options. The described structure is shown, greyed, also while it is not in use.
void refreshFileStructurePage(const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
