#include "FuzzInput.h"

#include <algorithm>

namespace quorvia::testsupport {

namespace {

constexpr std::size_t headBytes = 4;
constexpr std::size_t longestGrid = 0xffff;

} // namespace

std::string toBytes(const FuzzInput_s& input) {
    const std::size_t gridLength = std::min(input.grid.size(), longestGrid);
    std::string bytes;
    bytes += static_cast<char>(input.fileChoice);
    bytes += static_cast<char>(input.readingChoice);
    bytes += static_cast<char>(gridLength & 0xff);
    bytes += static_cast<char>(gridLength >> 8);
    return bytes + input.grid.substr(0, gridLength) + input.other;
}

FuzzInput_s fromBytes(const std::uint8_t* data, std::size_t size) {
    FuzzInput_s input;
    if (size < headBytes)
        return input;
    input.fileChoice = data[0];
    input.readingChoice = data[1];
    const std::string files(reinterpret_cast<const char*>(data) + headBytes, size - headBytes);
    const std::size_t gridLength = data[2] + std::size_t{data[3]} * 256;
    input.grid = files.substr(0, gridLength);
    input.other = files.substr(input.grid.size());
    return input;
}

} // namespace quorvia::testsupport
