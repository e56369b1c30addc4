#include "index/contents/Originals.h"

#include <system_error>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace fs = std::filesystem;

namespace {

/// Without links and "..", so that it is the same file for whoever reads the index.
fs::path truePath(const fs::path& file) {
    std::error_code error;
    const fs::path path = fs::canonical(file, error);
    if (error)
        throw Error(ErrorKind::NotFound, error.message(), {.file = file.string()});
    return path;
}

} // namespace

Originals::Originals(const fs::path& indexFile, bool areRelative)
    : folder_(truePath(fs::absolute(indexFile).parent_path())), areRelative_(areRelative) {}

std::string Originals::named(const fs::path& file) const {
    const fs::path path = truePath(file);
    const std::string name = areRelative_ ? path.lexically_relative(folder_) : path;
    if (name.find_first_of("\n\r") != std::string::npos)
        throw Error(ErrorKind::Unsupported, "no index can hold a name of several lines",
                    {.file = file.string(), .next = "the same with another name of the file"});
    return name;
}

const std::string& Originals::pathOf(const std::string& file) {
    const auto [found, isNew] = places_.try_emplace(file, marks_.size());
    if (isNew)
        marks_.push_back(markOf(file, named(file)));
    return marks_[found->second].path;
}

const std::string& Originals::pathOf(const Source& source) {
    const std::string& path = pathOf(source.file);
    const OriginalMark_s& mark = marks_[places_.at(source.file)];
    for (const Piece& piece : source.pieces)
        if (piece.byteCount > mark.size || piece.offset > mark.size - piece.byteCount)
            throw Error(ErrorKind::Unreadable, "is shorter than when it was opened",
                        {.file = source.file, .byte = mark.size});
    return path;
}

} // namespace plot3d::program
