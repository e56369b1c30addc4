// What every load wants of its options, whether they come from instructions or from the dialog.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Whether there are files to load and, for an append, a data set to append to. False (told): one
/// is missing; the data set is looked for first.
[[nodiscard]] bool validateLoadOptions(const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
