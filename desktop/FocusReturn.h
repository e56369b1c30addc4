// Where the keyboard goes when a window of the program closes. A window manager gives it to the
// window beneath; where there is none, or one that does not, nobody would.
#pragma once

#include <QObject>
#include <QWidget>

namespace quorvia::host {

/// While it lives, a window that closes leaves the keyboard to the one beneath it: the modal window
/// in front, else its parent. A program that does not have the keyboard takes none.
class FocusReturn : public QObject {
public:
    /// Watches all windows of the program.
    FocusReturn();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void give(const QWidget& closed);
};

} // namespace quorvia::host
