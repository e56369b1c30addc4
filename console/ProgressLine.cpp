#include "console/ProgressLine.h"

#include <algorithm>
#include <ostream>

#include <fmt/core.h>

#include "console/Text.h"
#include "console/Words.h"

namespace console {
namespace {

std::string bar(double fraction) {
    constexpr std::size_t width = 24;
    const double part = std::clamp(fraction, 0.0, 1.0);
    const auto filled = static_cast<std::size_t>(part * static_cast<double>(width));
    return fmt::format("[{}{}] {:3.0f}%", std::string(filled, '#'),
                       std::string(width - filled, '.'), part * 100);
}

} // namespace

void Pace::note(Seconds elapsed, double fraction, std::int64_t bytes) {
    // What begins anew, the next of several files for one, has a pace of its own.
    if (!hasBegun_ || fraction < fraction_ || bytes < bytes_) {
        hasBegun_ = true;
        began_ = elapsed;
        firstFraction_ = fraction;
        firstBytes_ = bytes;
    }
    now_ = elapsed;
    fraction_ = fraction;
    bytes_ = bytes;
}

std::string Pace::text() const {
    constexpr double leastSeconds = 0.5;
    const double seconds = (now_ - began_).count();
    if (!hasBegun_ || seconds < leastSeconds)
        return {};
    std::string result;
    if (bytes_ >= 0 && firstBytes_ >= 0)
        result = fmt::format("{}, {}/s", roughBytes(static_cast<double>(bytes_)),
                             roughBytes(static_cast<double>(bytes_ - firstBytes_) / seconds));
    const double done = fraction_ - firstFraction_;
    if (done > 0)
        result += fmt::format("{}{} left", result.empty() ? "" : ", ",
                              roughSeconds(seconds * (1 - fraction_) / done));
    return result;
}

ProgressLine::ProgressLine(std::ostream& err, int columns) : err_(err), columns_(columns) {}

ProgressLine::~ProgressLine() {
    clear();
}

void ProgressLine::show(double fraction, const std::string& text, std::int64_t bytes) {
    constexpr auto betweenDrawings = std::chrono::milliseconds(50);
    if (columns_ == 0)
        return;
    const Clock::time_point now = Clock::now();
    if (visible_ && now - lastDrawn_ < betweenDrawings)
        return;
    lastDrawn_ = now;
    visible_ = true;
    std::string line = bar(fraction) + ' ' + onOneLine(text);
    if (bytes >= 0) {
        pace_.note(now.time_since_epoch(), fraction, bytes);
        const std::string pace = pace_.text();
        line += pace.empty() ? "" : "  " + pace;
    }
    // The last column stays free: some terminals begin a new line as soon as it is written.
    err_ << "\r\x1b[K" << cutToWidth(line, static_cast<std::size_t>(columns_ - 1)) << std::flush;
}

void ProgressLine::clear() {
    if (!visible_)
        return;
    visible_ = false;
    err_ << "\r\x1b[K" << std::flush;
}

} // namespace console
