// The modal dialog "Plot3D Loader", which edits gLoadOptions on three pages.
#pragma once

#include <cstdint>

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Makes the dialog, hidden, if there is none. If the host can't make all of it, the user is told
/// and loadDialog is noControl afterwards.
void createLoadDialog();

/// Shows the options in the controls of one page. Nothing happens for an unknown page.
void refreshDialogPage(std::int32_t page, Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
