// What an index keeps of each file whose bytes it tells of, so that a change of the file is found:
// a reader of the index would not notice, and would show other values or zeros.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace plot3d::program {

struct OriginalMark_s {
    std::string path; // as the index names it: absolute, or relative to the folder of the index
    std::int64_t size = 0;
    std::int64_t seconds = 0;     // time of the last change, since 1970
    std::int64_t nanoseconds = 0; // of that second
    std::uint32_t checksum = 0;   // CRC-32 of the first 64 KiB

    bool operator==(const OriginalMark_s&) const = default;
};

/// The mark of `file` as it is now; `path` is what it is called in the index. Throws Error
/// (NotFound, Unreadable).
OriginalMark_s markOf(const std::filesystem::path& file, const std::string& path);

/// "size 940528 changed 1700000000.000000000 crc32 0a1b2c3d path /data/wing.x"
std::string lineOf(const OriginalMark_s& mark);
/// Throws Error (Unreadable) if the line is none of lineOf().
OriginalMark_s markOfLine(const std::string& line);

/// A line that says what the text is, then one for each mark.
std::string textOf(const std::vector<OriginalMark_s>& marks);
/// The marks of the lines of `text`, which may stand behind others and have `prefix` ahead of them.
/// Throws Error (Unreadable) if there are none.
std::vector<OriginalMark_s> marksOfText(const std::string& text, const std::string& prefix = {});

/// What has become different, one line for each thing; nothing if all is as it was. `folder` is
/// the one of the index.
std::vector<std::string> differences(const std::vector<OriginalMark_s>& marks,
                                     const std::filesystem::path& folder);

} // namespace plot3d::program
