// Options in words for people: how they stand in a usage line and in a help text.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "console/options/OptionParser.h"

namespace console {

/// "FILE..."; the type's name instead if that is of several words.
std::string argumentsOf(const OptionRow_s& positional);

/// "-o, --output FILE".
std::string headOf(const OptionRow_s& option);

/// How wide a help text is on a terminal of so many columns; 0: there is none.
std::size_t helpWidth(int columns);

/// A head and, beside it or below if the head is long, what it stands for. Ends with a line end.
std::string helpEntry(const std::string& head, const std::string& text, std::size_t width);

/// The entries of all options, each group behind a blank line and its heading.
std::string helpOfOptions(const std::vector<OptionRow_s>& options, std::size_t width);

/// What is wrong with the first of the words that nothing was declared for, in one line, with the
/// option that comes nearest; empty if there is none. `command` is what the user called, "plot3d
/// info".
std::string unknownWordOf(const OptionParser& parser, const std::string& command);

/// The known word that comes nearest to `word`.
std::string nearestOf(const std::string& word, const std::vector<std::string>& known);

} // namespace console
