// A file that takes the place of an older one only when it is whole, so that nobody ever meets half
// of it and a failure leaves the old one alone.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace console {

enum class Existing_e : unsigned char { Replaced, Kept };

/// The new file grows under a name of its own in the same folder. What is no plain file, such as
/// /dev/stdout or a pipe, is written straight away.
class WholeFile {
public:
    /// Begins the new file; a failure is told by replace(). If existing files are kept, one that is
    /// there by the time of replace() is such a failure.
    explicit WholeFile(const std::string& name, Existing_e existing = Existing_e::Replaced);
    /// Takes the new file away if it did not replace the old one.
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    std::ostream& stream() { return stream_; }
    /// Where the new file grows, for libraries that open files by name; the stream then stays
    /// unused. The target itself if that is no plain file.
    const std::filesystem::path& path() const { return growing_.empty() ? target_ : growing_; }

    /// Why the new file could not be begun, if it couldn't; empty otherwise.
    std::string problem() const;

    /// Ends the new file and puts it in the place of the old one, with its permissions; a link
    /// stays, and what it points to is replaced. False: the file could not be made whole, and
    /// `reason` says why.
    [[nodiscard]] bool replace(std::string& reason);

private:
    bool beginBeside(const std::filesystem::path& folder);
    bool moveToTarget();

    std::filesystem::path target_;
    std::filesystem::path growing_; // empty: there is none, or it became the target
    Existing_e existing_;
    bool isPlain_ = true;
    bool exists_ = false;
    int error_ = 0; // errno of the first failure; 0 for none that is known
    std::ofstream stream_;
};

/// A path beside others in `folder` that is nobody's: "." and this program's number, so that two
/// programs may write to one target. `attempt` counts from 0.
std::filesystem::path growingName(const std::filesystem::path& folder, int attempt);

/// Files and folders that grow at the moment. For a program that must end at once.
class Growing {
public:
    static void add(const std::filesystem::path& path);
    static void remove(const std::filesystem::path& path);
    /// Deletes them all, folders with what is in them.
    static void deleteAll();
};

} // namespace console
