#include "render/VirtualDisplay.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <plot3d/Error.h>

#include "console/WholeFile.h"
#include "manners/ProgressWatch.h"

namespace plot3d::program {

namespace {

constexpr const char* programName = "Xvfb";
constexpr std::chrono::seconds patience{20}; // on a machine that has much else to do

[[noreturn]] void refuseDisplay(const std::string& why) {
    throw Error(ErrorKind::Refused, "the virtual display can't be used: " + why);
}

void append(std::string& bytes, std::string_view counted) {
    bytes += static_cast<char>(counted.size() / 256);
    bytes += static_cast<char>(counted.size() % 256);
    bytes += counted;
}

/// A record of an Xauthority file for any host and display: two-byte counts, high byte first.
std::string authorityRecord(std::string_view key) {
    std::string bytes = "\xff\xff";
    append(bytes, "");
    append(bytes, "");
    append(bytes, "MIT-MAGIC-COOKIE-1");
    append(bytes, key);
    return bytes;
}

std::string randomKey() {
    std::random_device random;
    std::string key;
    for (int count = 0; count < 16; ++count)
        key += static_cast<char>(random());
    return key;
}

} // namespace

bool VirtualDisplay::canBeStarted() {
    return !programInPath(programName).empty();
}

VirtualDisplay::VirtualDisplay() {
    const std::string program = programInPath(programName);
    if (program.empty())
        refuseDisplay("Xvfb is not installed");
    writeKey();
    if (pipe2(pipe_.data(), O_CLOEXEC) != 0)
        refuseDisplay(std::strerror(errno));
    xvfb_.emplace(program,
                  std::vector<std::string>{"-displayfd", std::to_string(pipe_[1]), "-screen", "0",
                                           "1280x1024x24", "-nolisten", "tcp", "-noreset", "-auth",
                                           keyFile_.string()},
                  pipe_[1]);
    close(pipe_[1]); // so that its end is seen
    pipe_[1] = -1;
}

VirtualDisplay::~VirtualDisplay() {
    xvfb_.reset();
    for (const int end : pipe_)
        if (end >= 0)
            close(end);
    console::Growing::remove(keyFile_);
    std::error_code gone; // nobody needs it any more
    std::filesystem::remove(keyFile_, gone);
}

void VirtualDisplay::writeKey() {
    std::string name = (std::filesystem::temp_directory_path() / "plot3d-display-XXXXXX").string();
    const int file = mkstemp(name.data()); // readable for its owner alone
    if (file < 0)
        refuseDisplay(name + ": " + std::strerror(errno));
    keyFile_ = name;
    console::Growing::add(keyFile_);
    const std::string record = authorityRecord(randomKey());
    const bool isWritten =
        write(file, record.data(), record.size()) == static_cast<ssize_t>(record.size());
    close(file);
    if (!isWritten)
        refuseDisplay(name + " can't be written");
}

std::string VirtualDisplay::numberRead(const std::stop_token& stop) {
    const auto end = std::chrono::steady_clock::now() + patience;
    std::string number;
    while (!number.ends_with('\n')) {
        throwIfStopped(stop);
        if (std::chrono::steady_clock::now() > end)
            refuseDisplay("it does not come up");
        constexpr int milliseconds = 20;
        pollfd waiting = {pipe_[0], POLLIN, 0};
        if (poll(&waiting, 1, milliseconds) <= 0)
            continue;
        char digit = 0;
        if (read(pipe_[0], &digit, 1) != 1)
            refuseDisplay("Xvfb has ended");
        number += digit;
    }
    number.pop_back();
    return number;
}

void VirtualDisplay::use(const std::stop_token& stop) {
    const std::string display = ":" + numberRead(stop);
    setenv("DISPLAY", display.c_str(), 1);
    setenv("XAUTHORITY", keyFile_.c_str(), 1);
}

} // namespace plot3d::program
