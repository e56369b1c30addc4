// The making of problems: what is wrong, and what to type next.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <plot3d/FileInfo.h>

#include "inspect/words/Words.h"

namespace plot3dlib {

using Arguments = std::vector<std::string>;
using FoundProblem = std::optional<plot3d::FileProblem>;

inline FoundProblem problemOf(std::string what, Arguments next) {
    return plot3d::FileProblem{misfitOf(std::move(what)), std::move(next)};
}

inline FoundProblem problemOf(std::string what, std::string expected, std::string found,
                              Arguments next) {
    FoundProblem problem = problemOf(std::move(what), std::move(next));
    problem->misfit.expected = std::move(expected);
    problem->misfit.found = std::move(found);
    return problem;
}

/// Changes lines of a text file, and keeps the file as it was under the name with ".bak".
inline Arguments editCommand(std::string script, const std::string& file) {
    return {"sed", "-E", "-i.bak", std::move(script), file};
}

/// Copies the file's first bytes, or those from a position on, to a file of their own.
inline Arguments copyBeginningCommand(const std::string& file, std::int64_t byteCount) {
    return {"dd", "if=" + file, "of=" + file + ".cut", "iflag=count_bytes",
            "count=" + std::to_string(byteCount)};
}
inline Arguments copyRestCommand(const std::string& file, std::int64_t position) {
    return {"dd", "if=" + file, "of=" + file + ".2", "iflag=skip_bytes",
            "skip=" + std::to_string(position)};
}

} // namespace plot3dlib
