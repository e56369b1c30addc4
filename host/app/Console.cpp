#include "app/Console.h"

#include <algorithm>
#include <iostream>

#include <fmt/core.h>
#include <unistd.h>

#include "console/Terminal.h"
#include "console/Text.h"

namespace quorvia::host {
namespace {

/// Lines behind the first are indented, so that they can't be taken for lines of their own; empty
/// ones are left out.
std::string withIndentedLines(std::string_view text) {
    std::string result;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string line = console::onOneLine(text.substr(start, end - start));
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
    return {std::cout, std::cerr, console::terminalColumns(STDERR_FILENO)};
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
