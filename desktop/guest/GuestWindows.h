// The windows that a guest brings up: its dialogs, message boxes, file choosers, help. Everything
// here belongs to the windows' thread.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QObject>
#include <QPoint>
#include <QWidget>

#include "session/ActionQueue.h"
#include "toolkit/User.h"

namespace quorvia::host {

class DialogWindow;

class GuestWindows : public QObject {
public:
    /// Both are borrowed. What the user does at a dialog goes to `actions`.
    GuestWindows(QWidget& mainWindow, ActionQueue& actions);
    ~GuestWindows() override;

    void showDialog(const Dialog_s& dialog);
    /// Brings the window up to date, unless the user has done something since `pushedCount`.
    void refreshDialog(const Dialog_s& dialog, std::int64_t pushedCount);
    void dropDialog(std::int32_t dialog);
    /// Each returns when the user has answered.
    void tell(const std::string& text, bool isError);
    bool ask(const std::string& question);
    std::vector<std::string> chooseFiles(const FileRequest_s& request);
    /// Beside whatever is open, which can still be used.
    void showHelp(const std::string& target);

private:
    QWidget* front() const;

    QWidget& mainWindow_;
    ActionQueue& actions_;
    std::map<std::int32_t, std::unique_ptr<DialogWindow>> dialogs_;
    std::map<std::int32_t, QPoint> positions_; // where the user has left each dialog
};

} // namespace quorvia::host
