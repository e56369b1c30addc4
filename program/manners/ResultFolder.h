// A result of many files: an index file, and a folder beside it with what the index names. The
// folder grows under a temporary name, and the index file comes last.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "manners/ResultFile.h"

namespace plot3d::program {

class ResultFolder {
public:
    /// `indexName`: "out/flow.vtm"; the folder is then "out/flow". Throws plot3d::Error (Refused)
    /// if one of both is there already and may not be overwritten, or can't be made. A folder
    /// without its index file is nobody's result of ours, and is never overwritten.
    ResultFolder(const std::string& indexName, bool mayOverwrite);
    /// Takes away what did not become the result.
    ~ResultFolder();
    ResultFolder(const ResultFolder&) = delete;
    ResultFolder& operator=(const ResultFolder&) = delete;

    /// Where the files grow that the index names.
    const std::filesystem::path& growingPath() const { return growing_; }
    /// The folder as the index names it, relative to itself: "flow".
    std::string name() const { return target_.filename().string(); }
    std::ostream& index() { return index_.stream(); }
    /// Puts the folder in its place, then the index file. Throws plot3d::Error (Refused).
    void finish();

private:
    void moveAside();

    std::filesystem::path target_;
    ResultFile index_;
    std::filesystem::path growing_; // empty: it is in its place
    std::filesystem::path aside_;   // the folder that it replaces; empty: none
};

} // namespace plot3d::program
