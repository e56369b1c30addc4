#include "desktop/DesktopUser.h"

#include <utility>

#include "desktop/GuestWindows.h"

namespace quorvia::host {
namespace {

template <typename Task>
void post(GuestWindows& windows, Task task) {
    QMetaObject::invokeMethod(&windows, std::move(task), Qt::QueuedConnection);
}

} // namespace

// The program may have ended between the question and its turn.
template <typename Ask>
void DesktopUser::askThere(Ask ask) {
    const auto askIfThere = [this, &ask] {
        if (!leaving_)
            ask();
    };
    if (!leaving_)
        QMetaObject::invokeMethod(&windows_, askIfThere, Qt::BlockingQueuedConnection);
}

void DesktopUser::leave() {
    leaving_ = true;
    actions_.endForever();
}

// The dialog is shown as it is whenever the guest has done what it was told: that also takes back
// what the user tried and could not do.
DialogAction DesktopUser::nextAction(const Dialog& dialog) {
    if (std::optional<DialogAction> action = actions_.take(dialog.lastLaunch))
        return *action;
    post(windows_, [&windows = windows_, copy = dialog, count = actions_.pushedCount()] {
        windows.refreshDialog(copy, count);
    });
    return actions_.wait(dialog.lastLaunch);
}

// What was pressed before a box came up was meant for a dialog without that message.
bool DesktopUser::answer(const std::string& question) {
    bool yes = false;
    askThere([this, &yes, &question] { yes = windows_.ask(question); });
    actions_.clear();
    return yes;
}

std::vector<std::string> DesktopUser::chooseFiles(const FileRequest& request) {
    std::vector<std::string> files;
    askThere([this, &files, &request] { files = windows_.chooseFiles(request); });
    actions_.clear();
    return files;
}

void DesktopUser::dialogShown(const Dialog& dialog) {
    actions_.clear();
    post(windows_, [&windows = windows_, copy = dialog] { windows.showDialog(copy); });
}

void DesktopUser::dialogDropped(const Dialog& dialog) {
    post(windows_, [&windows = windows_, id = dialog.id] { windows.dropDialog(id); });
}

void DesktopUser::read(const std::string& text, bool isError) {
    askThere([this, &text, isError] { windows_.tell(text, isError); });
    actions_.clear();
}

void DesktopUser::showHelp(const std::string& target) {
    post(windows_, [&windows = windows_, target] { windows.showHelp(target); });
}

} // namespace quorvia::host
