#include "index/contents/TextFile.h"

#include <sstream>

#include <plot3d/Error.h>

namespace plot3d::program {

std::ofstream openedForText(const std::filesystem::path& file) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    if (!out)
        throw Error(ErrorKind::Refused, "can't be written", {.file = file.string()});
    return out;
}

void finishText(std::ofstream& out) {
    out.close();
    if (!out)
        throw Error(ErrorKind::Refused, "the index could not be written whole");
}

std::string textOfFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw Error(ErrorKind::NotFound, "can't be opened", {.file = file.string()});
    std::ostringstream text;
    text << in.rdbuf();
    if (!text && std::filesystem::file_size(file) > 0) // nothing at all is a failure to it
        throw Error(ErrorKind::Unreadable, "can't be read", {.file = file.string()});
    return text.str();
}

} // namespace plot3d::program
