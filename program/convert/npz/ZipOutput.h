// A zip archive whose entries are stored as they are, each with 64-bit sizes. The format is told in
// PKWARE's APPNOTE.TXT 6.3, sections 4.3 and 4.5.3.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "convert/output/ByteOutput.h"

namespace plot3d::program {

class ZipOutput {
public:
    /// Borrows `out`, which must be at its beginning.
    explicit ZipOutput(ByteOutput& out) : out_(out) {}

    /// Begins an entry of exactly `byteCount` bytes, which write() then gives.
    void begin(const std::string& name, std::int64_t byteCount);
    void write(const void* bytes, std::size_t count);
    void end();
    /// Writes the directory behind the last entry.
    void finish();

private:
    struct Entry_s {
        std::string name;
        std::int64_t byteCount = 0;
        std::int64_t position = 0; // of its header
        std::uint32_t checksum = 0;
    };
    void putDirectoryEntry(const Entry_s& entry);
    void putDirectoryEnd(std::int64_t directory);

    ByteOutput& out_;
    std::vector<Entry_s> entries_;
};

} // namespace plot3d::program
