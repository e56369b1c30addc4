// A guest's dialog at the reference host, and a record of every time that the host called back.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "HostFixture.h"
#include "quorvia/QuorGUI.h"

namespace quorvia::host {

/// What the guest was told, in order, such as "toggle 1"; and what it is to do when told so.
class GuestDialog {
public:
    static inline Texts told;
    static inline std::function<void()> whenOk;
    static inline std::function<bool(const char*)> whenTyped;

    static void init() { told.emplace_back("init"); }
    static void ok() {
        told.emplace_back("ok");
        if (whenOk)
            whenOk();
    }
    static void apply() { told.emplace_back("apply"); }
    static void help() { told.emplace_back("help"); }
    static void pressed() { told.emplace_back("pressed"); }
    static void toggled(const std::int32_t* value) { tell("toggle", *value); }
    static void chosen(const std::int32_t* item) { tell("item", *item); }
    static void selected(const std::int32_t* position) { tell("selected", *position); }
    static void activated(const std::int32_t* page) { tell("activated", *page); }
    static void deactivated(const std::int32_t* page) { tell("deactivated", *page); }
    static bool typed(const char* text) {
        told.push_back(std::string("typed ") + text);
        return !whenTyped || whenTyped(text);
    }

private:
    static void tell(const char* what, std::int32_t value) {
        told.push_back(std::string(what) + ' ' + std::to_string(value));
    }
};

/// Each test makes a dialog of its own; dialogs stay at the host until it ends.
class DialogTest : public HostTest {
protected:
    DialogTest() {
        GuestDialog::told.clear();
        GuestDialog::whenOk = nullptr;
        GuestDialog::whenTyped = nullptr;
        dialog_ = QuorGUIDialogCreateModal(QuorGUIId_MainWindow, 5003, 2003, "Guest",
                                           GuestDialog::init, GuestDialog::ok, GuestDialog::apply,
                                           nullptr, GuestDialog::help);
    }

    std::int32_t dialog() const { return dialog_; }
    const Dialog_s& model() const {
        for (const Dialog_s& dialog : host().toolkit().dialogs())
            if (dialog.id == dialog_)
                return dialog;
        throw std::logic_error("the dialog is gone");
    }
    const Control_s& control(std::int32_t id) const { return *findControl(model(), id); }

    /// What the user does at the next launch, until the first thing that can't be done.
    void play(std::vector<DialogAction> actions) {
        std::vector<ScriptEntry> entries;
        for (DialogAction& action : actions)
            entries.emplace_back(DialogStep([action = std::move(action)](const Dialog_s&) {
                return DialogMove_s{action, "", false};
            }));
        host().script().addToScript(std::move(entries));
    }
    void launchAndPlay(std::vector<DialogAction> actions) {
        play(std::move(actions));
        QuorGUIDialogLaunch(dialog_);
    }

private:
    std::int32_t dialog_ = 0;
};

} // namespace quorvia::host
