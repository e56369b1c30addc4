// How the library fails: by one exception, which tells what a user needs to go on.
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>

namespace plot3d {

enum class ErrorKind : std::uint8_t {
    NotFound,    // a file that isn't there, or may not be read
    Unreadable,  // a read failed, or a file is shorter than when it was opened
    NotPlot3D,   // no trial accepts the file
    Refused,     // the files don't go together, or a load was refused
    Usage,       // an argument that can't be: an index out of range, a box outside its zone
    Unsupported, // what the operation can't do with this data set, though it is a good one
    Interrupted, // stopped by the caller
    NoMemory
};

/// Everything beside `message` may be empty. The message is one sentence for a person; it does not
/// repeat the file's name.
struct ErrorFacts {
    std::string file = {};
    std::optional<std::int64_t> byte = {}; // position in the file, from 0
    std::string expected = {};
    std::string found = {};
    std::string next = {}; // what to try next
};

/// Thrown by every operation of the library that says so; nothing else is, std::bad_alloc apart.
class Error : public std::exception {
public:
    Error(ErrorKind kind, std::string message, ErrorFacts facts = {});

    ErrorKind kind() const noexcept { return kind_; }
    const std::string& message() const noexcept { return message_; }
    const ErrorFacts& facts() const noexcept { return facts_; }
    /// One line: "<file>: <message> (expected ..., found ...)", as far as these are known.
    const char* what() const noexcept override { return line_.c_str(); }

private:
    ErrorKind kind_;
    std::string message_;
    ErrorFacts facts_;
    std::string line_;
};

} // namespace plot3d
