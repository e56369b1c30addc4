#include "desktop/FocusReturn.h"

#include <QApplication>
#include <QEvent>

namespace quorvia::host {
namespace {

/// Not a menu or a tool tip, which never have the keyboard to themselves.
bool isWindowWithKeyboard(const QWidget& widget) {
    return widget.windowType() == Qt::Window || widget.windowType() == Qt::Dialog;
}

bool standsOver(const QWidget* window, const QWidget& beneath) {
    while (window != nullptr && window != &beneath)
        window = window->parentWidget();
    return window == &beneath;
}

/// Null if it was the last one.
QWidget* windowBeneath(const QWidget& closed) {
    if (QWidget* const modal = QApplication::activeModalWidget())
        return modal;
    return closed.parentWidget() != nullptr ? closed.parentWidget()->window() : nullptr;
}

} // namespace

FocusReturn::FocusReturn() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        const auto* closed = qobject_cast<const QWidget*>(watched);
        if (closed != nullptr && closed->isWindow() && isWindowWithKeyboard(*closed))
            give(*closed);
    }
    return QObject::eventFilter(watched, event);
}

// Also if the closed window was never seen to have the keyboard: a window that is closed at once
// may be given it just before its end. The later of the two requests counts.
void FocusReturn::give(const QWidget& closed) {
    QWidget* const beneath = windowBeneath(closed);
    if (QGuiApplication::focusWindow() == nullptr || beneath == nullptr || !beneath->isVisible())
        return;
    QWidget* const active = QApplication::activeWindow();
    const bool isOther = active != nullptr && active != &closed && active->isVisible();
    (isOther && standsOver(active, *beneath) ? active : beneath)->activateWindow();
}

} // namespace quorvia::host
