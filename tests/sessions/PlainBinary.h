// Plain binary files say so little of themselves that another reading can account for every byte of
// a file by chance. Sessions are played with files that can't be mistaken.
#pragma once

#include "sessions/FileModel.h"

namespace quorvia::sessions {

/// Whether the reading in which the file was written is the first that fits header and size.
/// docs/detection.md tells the order.
bool isUnmistakable(const FileModel_s& file);

} // namespace quorvia::sessions
