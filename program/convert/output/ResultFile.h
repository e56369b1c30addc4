// A file that grows under another name and appears when it is whole; and a folder of such files.
#pragma once

#include <string>

namespace plot3d::program {

class ResultFile {
public:
    /// Throws Error (Refused) if the file is there and must not be overwritten.
    ResultFile(std::string target, bool overwrites);
    /// Takes away what did not appear.
    ~ResultFile();
    ResultFile(ResultFile&& other) noexcept;
    ResultFile& operator=(ResultFile&&) = delete;

    /// Where the bytes go meanwhile.
    const std::string& growing() const { return growing_; }
    const std::string& target() const { return target_; }
    /// Puts the file in its place. Throws Error (Refused).
    void appear();

private:
    std::string target_;
    std::string growing_; // empty: it has appeared
};

class ResultFolder {
public:
    ResultFolder(std::string target, bool overwrites);
    ~ResultFolder();
    ResultFolder(const ResultFolder&) = delete;
    ResultFolder& operator=(const ResultFolder&) = delete;

    const std::string& growing() const { return growing_; }
    const std::string& target() const { return target_; }
    void appear();

private:
    std::string target_;
    std::string growing_;
};

} // namespace plot3d::program
