// Where the bytes of a file go: to a disk or into memory.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quorvia::plot3dwriter {

/// Thrown by sinks and encoders inside the writer; never leaves writePlot3DFile or
/// writePlot3DBytes, which turn it into their problem text.
class WriteFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Bytes are appended only. Every operation throws WriteFault when the bytes can't be kept.
class ByteSink {
public:
    virtual ~ByteSink() = default;

    virtual void write(std::string_view bytes) = 0;

    /// Appends bytes that read as zeros and need not take space.
    virtual void skip(std::int64_t byteCount) = 0;

    /// Bytes appended so far.
    virtual std::int64_t position() const = 0;

    /// To be called once, behind the last byte: a file is complete only after it has returned.
    virtual void finish() = 0;
};

/// Keeps the bytes in a string that the caller owns and that outlives the sink.
class MemorySink final : public ByteSink {
public:
    explicit MemorySink(std::string& bytes) : bytes_(bytes) { bytes_.clear(); }

    void write(std::string_view bytes) override { bytes_.append(bytes); }
    void skip(std::int64_t byteCount) override {
        bytes_.append(static_cast<std::size_t>(byteCount), '\0');
    }
    std::int64_t position() const override { return static_cast<std::int64_t>(bytes_.size()); }
    void finish() override {}

private:
    std::string& bytes_;
};

} // namespace quorvia::plot3dwriter
