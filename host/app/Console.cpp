#include "app/Console.h"

#include <algorithm>
#include <iostream>

#include <fmt/core.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "describe/TextGrid.h"

namespace quorvia::host {
namespace {

constexpr int usualColumns = 80;

int columnsOfTerminal(int descriptor) {
    if (isatty(descriptor) == 0)
        return 0;
    winsize size = {};
    const bool known = ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : usualColumns;
}

/// The first lines of code points that fit.
std::string cutToColumns(const std::string& text, std::size_t columns) {
    std::size_t shown = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool startsCodePoint = (static_cast<unsigned char>(text[place]) & 0xC0U) != 0x80U;
        if (startsCodePoint && shown++ == columns)
            return text.substr(0, place);
    }
    return text;
}

std::string bar(double fraction) {
    constexpr std::size_t barWidth = 24;
    const double part = std::clamp(fraction, 0.0, 1.0);
    const auto filled = static_cast<std::size_t>(part * static_cast<double>(barWidth));
    return fmt::format("[{}{}] {:3.0f}%", std::string(filled, '#'),
                       std::string(barWidth - filled, '.'), part * 100);
}

/// Lines behind the first are indented, so that they can't be taken for lines of their own; empty
/// ones are left out.
std::string withIndentedLines(std::string_view text) {
    std::string result;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string line = onOneLine(text.substr(start, end - start));
        if (start == 0)
            result = line;
        else if (line.find_first_not_of(' ') != std::string::npos)
            result += "\n    " + line;
        start = end + 1;
    }
    return result;
}

} // namespace

Console_s standardConsole() {
    return {std::cout, std::cerr, columnsOfTerminal(STDERR_FILENO)};
}

ProgressLine::ProgressLine(const Console_s& console)
    : err_(console.err), columns_(console.progressColumns) {}

ProgressLine::~ProgressLine() {
    clear();
}

void ProgressLine::show(double fraction, const std::string& text) {
    constexpr auto betweenDrawings = std::chrono::milliseconds(50);
    if (columns_ == 0)
        return;
    const Clock::time_point now = Clock::now();
    if (visible_ && now - lastDrawn_ < betweenDrawings)
        return;
    lastDrawn_ = now;
    visible_ = true;
    // The last column stays free: some terminals begin a new line as soon as it is written.
    const std::string line = bar(fraction) + ' ' + onOneLine(text);
    err_ << "\r\x1b[K" << cutToColumns(line, static_cast<std::size_t>(columns_ - 1)) << std::flush;
}

void ProgressLine::clear() {
    if (!visible_)
        return;
    visible_ = false;
    err_ << "\r\x1b[K" << std::flush;
}

void tellError(std::ostream& err, std::string_view text) {
    err << fmt::format("quorhost: error: {}\n", withIndentedLines(text));
}

void tellMessage(std::ostream& err, const Message_s& message) {
    switch (message.kind) {
    case MessageKind_e::Error:
        tellError(err, message.text);
        return;
    case MessageKind_e::Information:
        err << fmt::format("quorhost: {}\n", withIndentedLines(message.text));
        return;
    case MessageKind_e::Question:
        err << fmt::format("quorhost: question: {}\n    {}\n", withIndentedLines(message.text),
                           message.answer.value_or(false)
                               ? "answered OK or Yes"
                               : "answered Cancel or No; --yes answers OK or Yes");
        return;
    }
}

} // namespace quorvia::host
