// Progress on standard error and a way to stop, as one plot3d::Watch for what a command does.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include <plot3d/Watch.h>

#include "console/ProgressLine.h"
#include "manners/Command.h"

namespace plot3d::program {

/// Whether and how wide progress is shown: 0 for not at all.
int progressColumns(const Surroundings_s& surroundings);

/// Work that ends within a moment shows nothing unless progress is always wanted. Takes its line
/// away when it ends; what is told on `err` meanwhile needs a clear() ahead of it.
class ProgressWatch {
public:
    explicit ProgressWatch(const Surroundings_s& surroundings);

    /// `surroundings` and this object must outlive it.
    Watch watch();
    /// For work of several parts: progress that comes from watch() counts as the part from `first`
    /// to `last` of the whole, each from 0 to 1.
    void setPart(double first, double last);
    /// Progress of a command's own work. `bytes`: -1 where they are not counted.
    void show(double fraction, const std::string& text, std::int64_t bytes = -1);
    void clear() { line_.clear(); }

private:
    using Clock = std::chrono::steady_clock;

    console::ProgressLine line_;
    Clock::time_point firstShown_; // not before
    std::stop_token stop_;
    double first_ = 0;
    double last_ = 1;
};

/// Throws plot3d::Error (Interrupted) if a stop was asked for.
void throwIfStopped(const std::stop_token& stop);

} // namespace plot3d::program
