// The pages of help that are built into the program.
#pragma once

#include <string>

#include <QWidget>

namespace quorvia::host {

class HelpWindow {
public:
    /// Opens the page at `target`, such as "data-loading.html#data-loading/plot3d", in a window of
    /// its own before `parent`. One window is open at a time. A page that is not there is told.
    static void show(QWidget* parent, const std::string& target);
};

} // namespace quorvia::host
