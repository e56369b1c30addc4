// Files of a series by their names: the same name with another number.
#pragma once

#include <string>
#include <vector>

namespace quorvia::host {

/// Files in the folders of `files` whose names differ from one of them by a number, and that are
/// not among them: whole paths, in the order in which people count. Which number may differ is
/// seen from the files: where "a1_t0.5.q" and "a1_t1.0.q" are, "a1_t1.5.q" belongs to them and
/// "a2_t1.5.q" does not. Of a single file the last number ahead of its ending may, or an ending
/// that is a number. A folder that can't be read holds none.
std::vector<std::string> othersOfSeries(const std::vector<std::string>& files);

} // namespace quorvia::host
