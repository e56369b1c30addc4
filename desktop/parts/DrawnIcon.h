// Icons in the colour of the theme's texts: those of the style are pictures for light themes.
#pragma once

#include <QIcon>

namespace quorvia::host {

enum class Icon_e : unsigned char { Open, Reload, Play, Pause };

/// Follows the application's palette.
QIcon drawnIcon(Icon_e icon);

} // namespace quorvia::host
