#include "manners/ResultFolder.h"

#include <cerrno>
#include <cstring>
#include <system_error>

#include <plot3d/Error.h>
#include <sys/stat.h>

namespace plot3d::program {

namespace fs = std::filesystem;

namespace {

fs::path folderOf(const std::string& indexName) {
    const fs::path index(indexName);
    if (index.stem().empty() || index.extension().empty())
        throw Error(ErrorKind::Refused, "is no name for an index file: it needs an ending",
                    {.file = indexName});
    return index.parent_path() / index.stem();
}

/// Makes a folder under a name that is nobody's.
fs::path begunBeside(const fs::path& target) {
    constexpr int mostTries = 100; // leftovers of programs that were killed
    constexpr mode_t asTheUserHasIt = 0777;
    for (int attempt = 0; attempt < mostTries; ++attempt) {
        const fs::path path = console::growingName(target.parent_path(), attempt);
        if (mkdir(path.c_str(), asTheUserHasIt) == 0) {
            console::Growing::add(path);
            return path;
        }
        if (errno != EEXIST)
            break;
    }
    throw Error(ErrorKind::Refused,
                std::string("no folder can be made beside it: ") + std::strerror(errno),
                {.file = target.string()});
}

void refuseStrangeFolder(const fs::path& folder, const std::string& indexName, bool mayOverwrite) {
    refuseExisting(folder.string(), mayOverwrite);
    std::error_code ignored; // what can't be looked at is refused when it is moved
    if (fs::exists(folder, ignored) && !fs::exists(indexName, ignored))
        throw Error(ErrorKind::Refused,
                    "is a folder without " + indexName + " beside it, and is not overwritten",
                    {.file = folder.string(), .next = "another name for the result"});
}

} // namespace

ResultFolder::ResultFolder(const std::string& indexName, bool mayOverwrite)
    : target_(folderOf(indexName)),
      index_((refuseStrangeFolder(target_, indexName, mayOverwrite), indexName), mayOverwrite),
      growing_(begunBeside(target_)) {}

ResultFolder::~ResultFolder() {
    std::error_code ignored; // nobody can be told here, and nothing depends on it
    for (const fs::path& path : {growing_, aside_}) {
        if (path.empty())
            continue;
        fs::remove_all(path, ignored);
        console::Growing::remove(path);
    }
}

/// A folder can't take the place of another one that holds files.
void ResultFolder::moveAside() {
    if (!fs::exists(target_))
        return;
    const fs::path aside = begunBeside(target_);
    console::Growing::remove(aside); // a forced end keeps what was there
    fs::rename(target_, aside);      // which is empty
    aside_ = aside;
}

void ResultFolder::finish() {
    try {
        moveAside();
        fs::rename(growing_, target_);
    } catch (const fs::filesystem_error& error) {
        std::error_code ignored; // the error that is told is the first one
        if (!aside_.empty() && !fs::exists(target_, ignored))
            fs::rename(aside_, target_, ignored);
        throw Error(ErrorKind::Refused, "can't be put in its place: " + error.code().message(),
                    {.file = target_.string()});
    }
    console::Growing::remove(growing_);
    growing_.clear();
    index_.finish();
}

} // namespace plot3d::program
