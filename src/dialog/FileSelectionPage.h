// The page "File Selection": which files are loaded, and how their zones join what is there.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Makes the page with its controls, once. False: the host could not make all of it.
bool buildFileSelectionPage();

/// Shows the options. An append that nothing is there for is taken out of them.
void refreshFileSelectionPage(Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
