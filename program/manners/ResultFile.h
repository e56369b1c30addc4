// A result of a command in one file: there as a whole or not at all, and never in the place of
// another file unless the user says so.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "console/WholeFile.h"

namespace plot3d::program {

/// Where a result goes that is named `-`.
inline constexpr const char* standardOutput = "/dev/stdout";

/// Whether what is written to `name` can't be gone back to: standard output, pipes, devices.
bool isStream(const std::string& name);

class ResultFile {
public:
    /// Begins the file. Throws plot3d::Error (Refused) if there is one already and it may not be
    /// overwritten, or if none can be made there. /dev/stdout and pipes are written straight away.
    ResultFile(const std::string& name, bool mayOverwrite);

    std::ostream& stream() { return file_.stream(); }
    /// Where the file grows, for libraries that open files by name; the stream then stays unused.
    const std::filesystem::path& growingPath() const { return file_.path(); }
    /// Puts the file in its place. Without it the file goes away. Throws plot3d::Error (Refused) if
    /// not all could be written.
    void finish();

private:
    std::string name_;
    console::WholeFile file_;
};

/// Throws plot3d::Error (Refused) if something of that name is there, no /dev/null or pipe, and may
/// not be overwritten. For results that are begun later than the work for them.
void refuseExisting(const std::string& name, bool mayOverwrite);

} // namespace plot3d::program
