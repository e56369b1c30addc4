// What is behind a stream of the program: a person at a terminal, or something else.
#pragma once

#include <string>
#include <string_view>

namespace console {

/// Columns of the terminal behind the descriptor: 80 if it does not tell, 0 if there is none.
int terminalColumns(int descriptor);

/// Whether colours belong there: a terminal that knows them, and no NO_COLOR in the environment.
bool wantsColour(int descriptor);

enum class Colour_e : unsigned char { Bold, Red, Yellow, Green, Dim };

/// Texts with or without colours.
struct Paint_s {
    bool on = false;

    std::string operator()(Colour_e colour, std::string_view text) const;
};

} // namespace console
