// Where the program writes: results to one stream, talk to the other, and a progress bar on the
// latter if a person is watching.
#pragma once

#include <chrono>
#include <iosfwd>
#include <string>
#include <string_view>

#include "describe/Outcome.h"

namespace quorvia::host {

/// The streams are borrowed.
struct Console_s {
    std::ostream& out;
    std::ostream& err;
    int progressColumns = 0; // width of the terminal behind `err`; 0: it is none, show no progress
};

/// Standard output and standard error.
Console_s standardConsole();

/// One line on standard error that is redrawn in place and leaves nothing behind.
class ProgressLine {
public:
    /// The streams of `console` must live as long. Without a terminal nothing is ever written.
    explicit ProgressLine(const Console_s& console);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// `fraction` from 0 to 1. Redraws a few times a second at most, so that it can be called
    /// freely.
    void show(double fraction, const std::string& text);
    /// Takes the line off the screen; the next show() draws it again.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& err_;
    int columns_;
    bool visible_ = false;
    Clock::time_point lastDrawn_{};
};

/// Errors as `quorhost: error: <text>`, further lines of a text indented below; each text ends its
/// line. Information and questions likewise, with their answers.
void tellError(std::ostream& err, std::string_view text);
void tellMessage(std::ostream& err, const Message_s& message);

} // namespace quorvia::host
