#include "desktop/guest/GuestWindows.h"

#include <utility>

#include <QApplication>

#include "desktop/dialog/DialogWindow.h"
#include "desktop/files/ImportFileDialog.h"
#include "desktop/parts/HelpWindow.h"
#include "desktop/parts/MessageBoxes.h"

namespace quorvia::host {

GuestWindows::GuestWindows(QWidget& mainWindow, ActionQueue& actions)
    : mainWindow_(mainWindow), actions_(actions) {}

GuestWindows::~GuestWindows() = default;

// Boxes and nested dialogs belong before the dialog that is open.
QWidget* GuestWindows::front() const {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : &mainWindow_;
}

void GuestWindows::showDialog(const Dialog_s& dialog) {
    const auto act = [this, launch = dialog.lastLaunch](DialogAction action) {
        actions_.push(std::move(action), launch);
    };
    auto window = std::make_unique<DialogWindow>(dialog, act, &mainWindow_);
    const auto position = positions_.find(dialog.id);
    if (position != positions_.end())
        window->move(position->second);
    window->show();
    window->activateWindow();
    dialogs_[dialog.id] = std::move(window);
}

void GuestWindows::refreshDialog(const Dialog_s& dialog, std::int64_t pushedCount) {
    const auto found = dialogs_.find(dialog.id);
    if (found != dialogs_.end() && actions_.pushedCount() == pushedCount)
        found->second->refresh(dialog);
}

void GuestWindows::dropDialog(std::int32_t dialog) {
    const auto found = dialogs_.find(dialog);
    if (found == dialogs_.end())
        return;
    positions_[dialog] = found->second->pos();
    found->second->hide();
    found->second.release()->deleteLater(); // it may be in the middle of an event of its own
    dialogs_.erase(found);
}

void GuestWindows::tell(const std::string& text, bool isError) {
    showText(front(), text, isError ? TextKind_e::Error : TextKind_e::Information);
}

bool GuestWindows::ask(const std::string& question) {
    return askQuestion(front(), question);
}

std::vector<std::string> GuestWindows::chooseFiles(const FileRequest_s& request) {
    return chooseExistingFiles(front(), request);
}

void GuestWindows::showHelp(const std::string& target) {
    HelpWindow::show(front(), target);
}

} // namespace quorvia::host
