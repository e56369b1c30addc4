// A ByteSink on a file: buffered, with 64-bit positions, sparse where bytes are skipped.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "plot3dwriter/ByteSink.h"

namespace quorvia::plot3dwriter {

class FileSink final : public ByteSink {
public:
    /// Creates the file or empties the one that is there. Throws WriteFault if it can't.
    explicit FileSink(const std::string& path);

    void write(std::string_view bytes) override;
    void skip(std::int64_t byteCount) override;
    std::int64_t position() const override { return position_; }
    void finish() override;

private:
    class Closer {
    public:
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };

    void flushBuffer();
    [[noreturn]] static void fail(); ///< with the system's own words for errno

    std::unique_ptr<std::FILE, Closer> stream_;
    std::vector<char> buffer_;
    std::size_t bufferedCount_ = 0;
    std::int64_t position_ = 0;
    bool endsInHole_ = false; ///< a file does not grow by seeking alone
};

} // namespace quorvia::plot3dwriter
