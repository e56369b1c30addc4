// What the host said of a load, as an error or as notes of the library.
#pragma once

#include <string>
#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/Error.h>

#include "session/ReferenceHost.h"

namespace plot3dlib {

/// Why a load came to nothing.
plot3d::Error failureOf(const quorvia::host::LoadResult_s& result,
                        const std::vector<quorvia::host::Message_s>& messages);

/// Why the values of a field did not come.
plot3d::Error fetchFailureOf(const std::vector<quorvia::host::Message_s>& messages);

/// The same error with what a look into its file has found wrong there, or a command to type.
plot3d::Error explained(const plot3d::Error& error, const plot3d::FileLists& files,
                        const plot3d::Watch& watch);

/// What was said in a load that came to its end, one line for each message.
std::vector<std::string> notesOf(const std::vector<quorvia::host::Message_s>& messages);

} // namespace plot3dlib
