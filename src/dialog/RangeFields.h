// The nine fields of the index ranges: start, end and skip along I, J and K.
#pragma once

#include "dialog/PageBuilder.h"
#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

void buildRangeFields(PageBuilder& page);

/// Shows the ranges. An end of 0 stands for the last index.
void refreshRangeFields(const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
