// Files that no trial can tell from files of another layout, since PLOT3D files don't say what they
// are.
#pragma once

#include <optional>
#include <string_view>

#include "plot3dsample/Sample.h"

namespace quorvia::plot3dsample {

struct Doubt_s {
    std::string_view takenFor; ///< "a 3-D file" and the like
    std::string_view wayOut;   ///< an option that leaves no doubt
};

/// Empty if the file's bytes fit no other layout that readers try first.
std::optional<Doubt_s> doubtAbout(const SampleFile_s& file, const FileForm_s& form);

} // namespace quorvia::plot3dsample
