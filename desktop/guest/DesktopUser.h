// The user as the guest meets him: each question goes over to the windows' thread, and the guest
// waits for the answer. Windows get copies only, so that they never look into the host's own
// dialogs while the guest works on them.
#pragma once

#include <atomic>

#include "session/ActionQueue.h"
#include "toolkit/User.h"

namespace quorvia::host {

class GuestWindows;

class DesktopUser : public User {
public:
    /// Both are borrowed; `actions` is what the windows fill.
    DesktopUser(GuestWindows& windows, ActionQueue& actions)
        : windows_(windows), actions_(actions) {}

    /// The program ends: from now on everything is cancelled, and nothing is shown.
    void leave();
    bool isLeaving() const { return leaving_; }

    DialogAction nextAction(const Dialog_s& dialog) override;
    bool answer(const std::string& question) override;
    std::vector<std::string> chooseFiles(const FileRequest_s& request) override;
    void choiceLost() override;
    void dialogShown(const Dialog_s& dialog) override;
    void dialogDropped(const Dialog_s& dialog) override;
    void read(const std::string& text, bool isError) override;
    void showHelp(const std::string& target) override;

private:
    /// Does `ask` on the windows' thread and waits for it, as long as somebody is there to answer.
    /// What was done before and not taken yet is forgotten.
    template <typename Ask>
    void askThere(Ask ask);

    GuestWindows& windows_;
    ActionQueue& actions_;
    std::atomic<bool> leaving_ = false;
};

} // namespace quorvia::host
