#include "manners/ResultFile.h"

#include <system_error>

#include <plot3d/Error.h>

namespace plot3d::program {

bool isStream(const std::string& name) {
    namespace fs = std::filesystem;
    std::error_code ignored; // what can't be looked at can't be written either, which is told then
    const fs::file_status status = fs::status(name, ignored);
    return name == standardOutput ||
           (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status));
}

void refuseExisting(const std::string& name, bool mayOverwrite) {
    namespace fs = std::filesystem;
    std::error_code ignored; // what can't be looked at can't be written either, which is told then
    const fs::file_status status = fs::symlink_status(name, ignored);
    const fs::file_status target = fs::status(name, ignored);
    const bool isInTheWay =
        name != standardOutput && fs::exists(status) &&
        (fs::is_regular_file(target) || fs::is_directory(target) || !fs::exists(target));
    if (isInTheWay && !mayOverwrite)
        throw Error(ErrorKind::Refused, "is there already, and is not overwritten",
                    {.file = name, .next = "the same with --overwrite, or with another name"});
}

ResultFile::ResultFile(const std::string& name, bool mayOverwrite)
    : name_((refuseExisting(name, mayOverwrite), name)),
      file_(name, mayOverwrite ? console::Existing_e::Replaced : console::Existing_e::Kept) {
    const std::string problem = file_.problem();
    if (!problem.empty())
        throw Error(ErrorKind::Refused, "can't be written: " + problem, {.file = name});
}

void ResultFile::finish() {
    std::string reason;
    if (!file_.replace(reason))
        throw Error(ErrorKind::Refused, "could not be written whole: " + reason, {.file = name_});
}

} // namespace plot3d::program
