#include "index/contents/OriginalMarks.h"

#include <array>
#include <charconv>
#include <fstream>
#include <sstream>
#include <string_view>

#include <fmt/core.h>
#include <sys/stat.h>
#include <zlib.h>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t checkedBytes = 64 * 1024;
constexpr std::string_view lineBegin = "size ";

std::uint32_t checksumOf(const fs::path& file) {
    std::array<char, checkedBytes> bytes;
    std::ifstream in(file, std::ios::binary);
    in.read(bytes.data(), bytes.size());
    if (!in && !in.eof())
        throw Error(ErrorKind::Unreadable, "can't be read", {.file = file.string()});
    return static_cast<std::uint32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(in.gcount())));
}

template <typename Number>
bool parse(std::string_view text, Number& number, int base = 10) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size();
}

/// The words ahead of the path, which may hold blanks.
bool parseNumbers(const std::string& line, OriginalMark_s& mark) {
    std::istringstream words(line);
    std::string size, time, checksum, skipped;
    words >> skipped >> size >> skipped >> time >> skipped >> checksum;
    const std::size_t point = time.find('.');
    return words && point != std::string::npos && parse(size, mark.size) &&
           parse(std::string_view(time).substr(0, point), mark.seconds) &&
           parse(std::string_view(time).substr(point + 1), mark.nanoseconds) &&
           parse(checksum, mark.checksum, 16);
}

std::string timeOf(const OriginalMark_s& mark) {
    return fmt::format("{}.{:09}", mark.seconds, mark.nanoseconds);
}

} // namespace

OriginalMark_s markOf(const fs::path& file, const std::string& path) {
    struct stat facts = {};
    if (stat(file.c_str(), &facts) != 0)
        throw Error(ErrorKind::NotFound, "is not there", {.file = file.string()});
    OriginalMark_s mark;
    mark.path = path;
    mark.size = facts.st_size;
    mark.seconds = facts.st_mtim.tv_sec;
    mark.nanoseconds = facts.st_mtim.tv_nsec;
    mark.checksum = checksumOf(file);
    return mark;
}

std::string lineOf(const OriginalMark_s& mark) {
    return fmt::format("{}{} changed {} crc32 {:08x} path {}", lineBegin, mark.size, timeOf(mark),
                       mark.checksum, mark.path);
}

OriginalMark_s markOfLine(const std::string& line) {
    constexpr std::string_view pathBegin = " path ";
    OriginalMark_s mark;
    const std::size_t path = line.find(pathBegin);
    if (!line.starts_with(lineBegin) || path == std::string::npos || !parseNumbers(line, mark))
        throw Error(ErrorKind::Unreadable, "a note on an original can't be understood: " + line);
    mark.path = line.substr(path + pathBegin.size());
    return mark;
}

std::string textOf(const std::vector<OriginalMark_s>& marks) {
    std::string text = "Index made by plot3d; plot3d index --check compares the originals:\n";
    for (const OriginalMark_s& mark : marks)
        text += lineOf(mark) + "\n";
    return text;
}

std::vector<OriginalMark_s> marksOfText(const std::string& text, const std::string& prefix) {
    std::vector<OriginalMark_s> marks;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(prefix + std::string(lineBegin)))
            marks.push_back(markOfLine(line.substr(prefix.size())));
    if (marks.empty())
        throw Error(ErrorKind::Unreadable, "is no index of plot3d: it has no notes on originals");
    return marks;
}

namespace {

/// The first thing that differs; empty if nothing does.
std::string difference(const OriginalMark_s& noted, const fs::path& folder) {
    OriginalMark_s found;
    try {
        found = markOf(folder / noted.path, noted.path);
    } catch (const Error& error) {
        return error.message();
    }
    if (found.size != noted.size)
        return fmt::format("has {} bytes, and had {}", found.size, noted.size);
    if (found.checksum != noted.checksum)
        return fmt::format("its first 64 KiB have the CRC-32 {:08x}, and had {:08x}",
                           found.checksum, noted.checksum);
    if (found != noted)
        return fmt::format("was changed at {}, and before at {} (seconds since 1970)",
                           timeOf(found), timeOf(noted));
    return {};
}

} // namespace

std::vector<std::string> differences(const std::vector<OriginalMark_s>& marks,
                                     const fs::path& folder) {
    std::vector<std::string> lines;
    for (const OriginalMark_s& mark : marks)
        if (const std::string what = difference(mark, folder); !what.empty())
            lines.push_back(mark.path + ": " + what);
    return lines;
}

} // namespace plot3d::program
