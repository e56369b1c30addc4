// The three columns of files on the first page, grid, solution and function files, which are alike:
// a list with the buttons Remove Selected, Remove All and Add Files.
#pragma once

#include "dialog/PageBuilder.h"

namespace quorvia::quorutildataio {

/// Each makes the list and its buttons, in this order.
void buildGridFileList(PageBuilder& page);
void buildSolutionFileList(PageBuilder& page);
void buildFunctionFileList(PageBuilder& page);

} // namespace quorvia::quorutildataio
