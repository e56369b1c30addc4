// A directory of its own for one test, and files of given bytes in it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <unistd.h>

namespace quorvia::testsupport {

/// Made empty under the system's temporary directory; removed with all its contents at the end.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string pattern = (std::filesystem::temp_directory_path() / "plot3d-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary directory: " + pattern);
        path_ = pattern;
    }
    ~TemporaryDirectory() {
        std::error_code ignored; // a leftover directory must not fail a test that has passed
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }

    /// The absolute name of `name` inside the directory, whether or not it exists.
    std::string file(std::string_view name) const { return (path_ / name).string(); }

    /// Writes `bytes` as they stand to `name`; gives the file's absolute name.
    std::string write(std::string_view name, std::string_view bytes) const {
        const std::string target = file(name);
        std::ofstream out(target, std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!out.flush())
            throw std::runtime_error("cannot write " + target);
        return target;
    }

private:
    std::filesystem::path path_;
};

} // namespace quorvia::testsupport
