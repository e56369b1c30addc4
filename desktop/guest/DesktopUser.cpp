#include "desktop/guest/DesktopUser.h"

#include <utility>

#include "desktop/guest/GuestWindows.h"

namespace quorvia::host {
namespace {

template <typename Task>
void post(GuestWindows& windows, Task task) {
    QMetaObject::invokeMethod(&windows, std::move(task), Qt::QueuedConnection);
}

} // namespace

// The program may have ended between the question and its turn. What was pressed before the window
// comes up was meant for a dialog without that question; it is forgotten here and not when the
// guest goes on, since by then the user may have done the next thing.
template <typename Ask>
void DesktopUser::askThere(Ask ask) {
    const auto askIfThere = [this, &ask] {
        if (leaving_)
            return;
        actions_.clear();
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
// what the user tried and could not do. Counted before the look into the queue: of what is done
// between the two this picture knows nothing.
DialogAction DesktopUser::nextAction(const Dialog_s& dialog) {
    const std::int64_t pushedCount = actions_.pushedCount();
    if (std::optional<DialogAction> action = actions_.take(dialog.lastLaunch))
        return *action;
    post(windows_, [&windows = windows_, copy = dialog, pushedCount] {
        windows.refreshDialog(copy, pushedCount);
    });
    return actions_.wait(dialog.lastLaunch);
}

bool DesktopUser::answer(const std::string& question) {
    bool yes = false;
    askThere([this, &yes, &question] { yes = windows_.ask(question); });
    return yes;
}

std::vector<std::string> DesktopUser::chooseFiles(const FileRequest_s& request) {
    std::vector<std::string> files;
    askThere([this, &files, &request] { files = windows_.chooseFiles(request); });
    return files;
}

void DesktopUser::choiceLost() {
    constexpr bool isError = true;
    read("There is no memory for the names of the files.", isError);
}

void DesktopUser::dialogShown(const Dialog_s& dialog) {
    actions_.clear();
    post(windows_, [&windows = windows_, copy = dialog] { windows.showDialog(copy); });
}

void DesktopUser::dialogDropped(const Dialog_s& dialog) {
    post(windows_, [&windows = windows_, id = dialog.id] { windows.dropDialog(id); });
}

void DesktopUser::read(const std::string& text, bool isError) {
    askThere([this, &text, isError] { windows_.tell(text, isError); });
}

void DesktopUser::showHelp(const std::string& target) {
    post(windows_, [&windows = windows_, target] { windows.showHelp(target); });
}

} // namespace quorvia::host
