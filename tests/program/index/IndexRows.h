// Which rows of the matrix an index of each format can tell of.
#pragma once

#include <string>

#include "acceptance/matrix/MatrixCase.h"

namespace quorvia::testsupport {

/// `ending` without its dot: cgns, json, xmf2, p3d or vp3d.
bool canSay(const std::string& ending, const MatrixCase_s& tested);

} // namespace quorvia::testsupport
