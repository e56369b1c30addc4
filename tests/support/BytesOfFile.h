// A file as one string.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace quorvia::testsupport {

/// All its bytes; none where there is no file.
inline std::string bytesOfFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace quorvia::testsupport
