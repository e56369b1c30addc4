// All that a load left in the frame, values included, as one text that two loads can be compared
// by.
#pragma once

#include <string>

namespace quorvia::testsupport {

/// The data set as the JSON that programs get (zones, variables, auxiliary data, every field with
/// the CRC-32 of its values); "null" without one. Fetches every field.
std::string snapshotOfFrame();

} // namespace quorvia::testsupport
