// The order of things in a PLOT3D file: header, then for each grid scalars, variables, I-blank and
// connectivity. What a record or a line is, the number sinks know.
#pragma once

#include <vector>

#include "plot3dwriter/ByteSink.h"
#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::plot3dwriter {

/// Writes everything into `sink` and finishes it. The description must be without fault in this
/// form. Throws WriteFault.
std::vector<BlockPosition_s> writeContents(const FileDescription_s& description,
                                           const FileForm_s& form, ByteSink& sink);

} // namespace quorvia::plot3dwriter
