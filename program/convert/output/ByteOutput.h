// Bytes into a new file: buffered while they are few, straight through where they are many, with
// 64-bit positions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace plot3d::program {

class ByteOutput {
public:
    /// Begins the file `path` anew; /dev/stdout goes on where it is, whatever it is. Failures name
    /// `shownName`, the file that the user asked for.
    /// This and all else throws Error (Refused) with the system's reason.
    ByteOutput(const std::filesystem::path& path, std::string shownName);
    /// Without finish() the file may be incomplete, and nobody is told.
    ~ByteOutput();
    ByteOutput(const ByteOutput&) = delete;
    ByteOutput& operator=(const ByteOutput&) = delete;

    void write(const void* bytes, std::size_t count);
    void write(std::string_view text) { write(text.data(), text.size()); }
    /// A number as it lies in memory.
    template <class Number>
    void put(Number number) {
        static_assert(std::is_arithmetic_v<Number>);
        write(&number, sizeof number);
    }
    /// Bytes written so far.
    std::int64_t position() const { return position_ + static_cast<std::int64_t>(buffer_.size()); }
    /// Writes over bytes that are there already.
    void patch(std::int64_t position, const void* bytes, std::size_t count);
    /// To be called once, behind the last byte: the file is complete only after it has returned.
    void finish();

private:
    void flush();
    void writeThrough(const char* bytes, std::size_t count);
    [[noreturn]] void fail() const;

    std::string shownName_;
    int file_ = -1;
    std::vector<char> buffer_;
    std::int64_t position_ = 0; // of the buffer's first byte
};

} // namespace plot3d::program
