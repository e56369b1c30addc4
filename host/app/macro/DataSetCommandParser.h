// The `dataSet` command of a macro.
#pragma once

#include "app/macro/HandMadeDataSet.h"
#include "app/macro/MacroJson.h"

namespace quorvia::host {

/// Throws MacroError for what is no such data set, or could never be one.
HandMadeDataSet_s parseHandMadeDataSet(const MacroJson& value, const std::string& what);

} // namespace quorvia::host
