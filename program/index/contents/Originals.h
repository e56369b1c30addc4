// The files that an index names, by the paths that stand in it.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <plot3d/Field.h>

#include "index/contents/OriginalMarks.h"

namespace plot3d::program {

class Originals {
public:
    /// `indexFile` is where the index will be. Relative paths go from its folder.
    Originals(const std::filesystem::path& indexFile, bool areRelative);

    /// The path of a file as the index names it; marks the file when it is asked for first. Throws
    /// Error (NotFound, Unreadable, Unsupported for a name that no index can hold).
    const std::string& pathOf(const std::string& file);
    /// The same for the file of a field, of which all bytes must be there: a reader of the index
    /// would take what is missing for zeros. Throws Error.
    const std::string& pathOf(const Source& source);

    /// Of all files asked for, in the order of asking.
    const std::vector<OriginalMark_s>& marks() const { return marks_; }

private:
    std::string named(const std::filesystem::path& file) const;

    std::filesystem::path folder_;
    bool areRelative_;
    std::map<std::string, std::size_t> places_; // in marks_, by the name as it was opened
    std::vector<OriginalMark_s> marks_;
};

} // namespace plot3d::program
