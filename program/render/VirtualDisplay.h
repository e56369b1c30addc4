// A display of our own, without a screen, by Xvfb.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

#include "render/ChildProcess.h"

namespace plot3d::program {

class VirtualDisplay {
public:
    /// Whether Xvfb is installed.
    static bool canBeStarted();

    /// Starts Xvfb, which looks for a free number by itself, with a key that only this user can
    /// read. On the main thread. Throws plot3d::Error (Refused).
    VirtualDisplay();
    /// Ends it.
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

    /// Waits until it can be used, and makes it the DISPLAY of this process. Throws plot3d::Error:
    /// Refused if it ends or is not there in time, Interrupted.
    void use(const std::stop_token& stop);

private:
    void writeKey();
    std::string numberRead(const std::stop_token& stop);

    std::filesystem::path keyFile_;
    std::array<int, 2> pipe_ = {-1, -1}; // its number comes through it
    std::optional<ChildProcess> xvfb_;
};

} // namespace plot3d::program
