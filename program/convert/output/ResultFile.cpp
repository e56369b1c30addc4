#include "convert/output/ResultFile.h"

#include <filesystem>
#include <utility>

#include <unistd.h>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(const std::string& file, const std::string& message) {
    ErrorFacts facts;
    facts.file = file;
    facts.next = "--overwrite";
    throw Error(ErrorKind::Refused, message, std::move(facts));
}

std::string growingName(const std::string& target) {
    const fs::path path(target);
    return (path.parent_path() /
            (".plot3d-" + std::to_string(getpid()) + "-" + path.filename().string()))
        .string();
}

void refuseIfThere(const std::string& target, bool overwrites) {
    if (!overwrites && fs::exists(target))
        refuse(target, "the file is there already");
}

void rename(const std::string& from, const std::string& to) {
    std::error_code problem;
    fs::rename(from, to, problem);
    if (problem)
        refuse(to, "the file can't be put in its place: " + problem.message());
}

} // namespace

ResultFile::ResultFile(std::string target, bool overwrites)
    : target_(std::move(target)), growing_(growingName(target_)) {
    refuseIfThere(target_, overwrites);
}

ResultFile::ResultFile(ResultFile&& other) noexcept
    : target_(std::move(other.target_)), growing_(std::exchange(other.growing_, {})) {}

ResultFile::~ResultFile() {
    std::error_code ignored; // nobody can be told here
    if (!growing_.empty())
        fs::remove(growing_, ignored);
}

void ResultFile::appear() {
    rename(growing_, target_);
    growing_.clear();
}

ResultFolder::ResultFolder(std::string target, bool overwrites)
    : target_(std::move(target)), growing_(growingName(target_)) {
    refuseIfThere(target_, overwrites);
    fs::create_directory(growing_);
}

ResultFolder::~ResultFolder() {
    std::error_code ignored; // nobody can be told here
    if (!growing_.empty())
        fs::remove_all(growing_, ignored);
}

void ResultFolder::appear() {
    if (fs::exists(target_))
        fs::remove_all(target_);
    rename(growing_, target_);
    growing_.clear();
}

} // namespace plot3d::program
