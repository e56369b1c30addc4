// A bar on the terminal while something long runs: how far it is, how fast, and how long it will
// still take.
#pragma once

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <string>

namespace console {

/// How fast an operation is and when it will end, told from what it has done since the first note.
class Pace {
public:
    using Seconds = std::chrono::duration<double>;

    /// `elapsed` since some fixed moment; `fraction` from 0 to 1; `bytes` read so far, -1 where
    /// they are not counted.
    void note(Seconds elapsed, double fraction, std::int64_t bytes);
    /// "1.2 GB, 850 MB/s, 3 s left", as far as it is known; empty in the first half second.
    std::string text() const;

private:
    bool hasBegun_ = false;
    Seconds began_{};
    double firstFraction_ = 0;
    std::int64_t firstBytes_ = -1;
    Seconds now_{};
    double fraction_ = 0;
    std::int64_t bytes_ = -1;
};

/// One line that is redrawn in place and leaves nothing behind.
class ProgressLine {
public:
    /// `err` is borrowed. `columns`: width of the terminal behind it; 0: nothing is ever written.
    ProgressLine(std::ostream& err, int columns);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// `fraction` from 0 to 1. Redraws a few times a second at most, so that it can be called
    /// freely. `bytes` read so far; -1 where they are not counted, which shows no pace.
    void show(double fraction, const std::string& text, std::int64_t bytes = -1);
    /// Takes the line off the screen; the next show() draws it again.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& err_;
    int columns_;
    bool visible_ = false;
    Clock::time_point lastDrawn_{};
    Pace pace_;
};

} // namespace console
