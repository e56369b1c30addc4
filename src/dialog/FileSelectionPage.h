// The page "File Selection": which files are loaded, and how their zones join what is there.
#pragma once

namespace quorvia::quorutildataio {

/// Makes the page with its controls, once. False (not told): the host could not make all of it.
[[nodiscard]] bool buildFileSelectionPage();

} // namespace quorvia::quorutildataio
