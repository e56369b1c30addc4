// Texts of the host, UTF-8 as files brought them, as a window shows them.
#pragma once

#include <cstddef>
#include <string>

#include <QString>

namespace quorvia::host {

inline QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

/// A caption without the blanks at its ends, which only pad it for toolkits that centre it, and
/// with no letter of it taken for a shortcut.
QString shownCaption(const std::string& caption);

/// With seven digits, in the short form.
QString shownNumber(double value);

/// "1 zone", "3 zones".
QString shownCount(std::size_t count, const char* one, const char* many);

} // namespace quorvia::host
