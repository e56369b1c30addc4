// Which variable says what points are blanked.
#pragma once

#include <cstddef>
#include <optional>

#include <plot3d/DataSet.h>

namespace plot3d::analysis {

/// The variable that holds I-blank, from 0; nothing if the data set has none.
std::optional<std::size_t> iBlankVariable(const DataSet& data);

} // namespace plot3d::analysis
