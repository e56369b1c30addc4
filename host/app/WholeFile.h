// A file that takes the place of an older one only when it is whole, so that nobody ever meets half
// of it and a failure leaves the old one alone.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace quorvia::host {

/// The new file grows under a name of its own in the same folder. What is no plain file, such as
/// /dev/stdout or a pipe, is written straight away.
class WholeFile {
public:
    /// Begins the new file; a failure is told by replace().
    explicit WholeFile(const std::string& name);
    /// Takes the new file away if it did not replace the old one.
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    std::ostream& stream() { return stream_; }

    /// Ends the new file and puts it in the place of the old one, with its permissions; a link
    /// stays, and what it points to is replaced. False: the file could not be made whole, and
    /// `reason` says why.
    bool replace(std::string& reason);

private:
    bool beginBeside(const std::filesystem::path& folder);

    std::filesystem::path target_;
    std::filesystem::path growing_; // empty: there is none, or it became the target
    bool isPlain_ = true;
    bool exists_ = false;
    int error_ = 0; // errno of the first failure; 0 for none that is known
    std::ofstream stream_;
};

} // namespace quorvia::host
