#include "console/Terminal.h"

#include <cstdlib>

#include <sys/ioctl.h>
#include <unistd.h>

namespace console {
namespace {

constexpr int usualColumns = 80;

const char* codeOf(Colour_e colour) {
    switch (colour) {
    case Colour_e::Bold:
        return "\x1b[1m";
    case Colour_e::Red:
        return "\x1b[31m";
    case Colour_e::Yellow:
        return "\x1b[33m";
    case Colour_e::Green:
        return "\x1b[32m";
    case Colour_e::Dim:
        return "\x1b[2m";
    }
    return "";
}

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

} // namespace

int terminalColumns(int descriptor) {
    if (isatty(descriptor) == 0)
        return 0;
    winsize size = {};
    const bool known = ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : usualColumns;
}

bool wantsColour(int descriptor) {
    const char* terminal = std::getenv("TERM");
    const bool knowsColours = terminal != nullptr && std::string_view(terminal) != "dumb";
    return isatty(descriptor) != 0 && knowsColours && !isSet("NO_COLOR");
}

std::string Paint_s::operator()(Colour_e colour, std::string_view text) const {
    if (!on || text.empty())
        return std::string(text);
    return std::string(codeOf(colour)).append(text).append("\x1b[0m");
}

} // namespace console
