#include "toolkit/DialogLoop.h"

#include <new>
#include <string>
#include <utility>

namespace quorvia::host {

namespace {

template <typename Callback, typename... Arguments>
void callControl(const Control_s& control, Arguments... arguments) {
    const auto* callback = std::get_if<Callback>(&control.callback);
    if (callback != nullptr && *callback != nullptr)
        (*callback)(arguments...);
}

void callValue(const Control_s& control, std::int32_t value) {
    callControl<QuorGUIValueCallback, const std::int32_t*>(control, &value);
}

/// Does one action, and takes its contents. A callback may add controls, which moves those that are
/// there: each operation calls the guest last.
class ActionAtDialog {
public:
    /// `shownText` is a copy of what the user types.
    ActionAtDialog(Dialog_s& dialog, User& user, std::string& shownText)
        : dialog_(dialog), user_(user), shownText_(shownText) {}

    void operator()(const ShowPage_s& action) const {
        TabControl_s& tabs = *dialog_.tabs;
        if (tabs.frontPage == action.page)
            return;
        const std::int32_t left = std::exchange(tabs.frontPage, action.page);
        user_.pageShown(dialog_);
        const QuorGUIValueCallback activate = tabs.activate;
        if (tabs.deactivate != nullptr)
            tabs.deactivate(&left);
        if (activate != nullptr)
            activate(&action.page);
    }
    void operator()(const SetToggle_s& action) const { setValue(action.toggle, action.on ? 1 : 0); }
    void operator()(const ChooseItem_s& action) const { setValue(action.control, action.item); }
    void operator()(const PressButton_s& action) const {
        callControl<QuorGUICallback>(*findControl(dialog_, action.button));
    }
    void operator()(SelectItems_s& action) const {
        Control_s& list = *findControl(dialog_, action.list);
        list.selected = std::move(action.positions);
        user_.controlChanged(dialog_, list);
        callValue(list, list.selected.empty() ? 0 : list.selected.back());
    }
    // The guest may write into the field while it reads what was typed.
    void operator()(const TypeText_s& action) const {
        Control_s& field = *findControl(dialog_, action.field);
        field.text = std::move(shownText_);
        user_.controlChanged(dialog_, field);
        callControl<QuorGUITextCallback, const char*>(field, action.text.c_str());
    }
    void operator()(const PressDialogButton_s& action) const {
        if (const QuorGUICallback callback = callbackOf(action.button); callback != nullptr)
            callback();
        else if (action.button == DialogButton_e::Cancel)
            drop(dialog_, user_);
    }

private:
    void setValue(std::int32_t id, std::int32_t value) const {
        Control_s& control = *findControl(dialog_, id);
        control.value = value;
        user_.controlChanged(dialog_, control);
        callValue(control, value);
    }
    QuorGUICallback callbackOf(DialogButton_e button) const {
        switch (button) {
        case DialogButton_e::Ok:
            return dialog_.ok;
        case DialogButton_e::Apply:
            return dialog_.apply;
        case DialogButton_e::Cancel:
            return dialog_.cancel;
        case DialogButton_e::Help:
            return dialog_.help;
        }
        return nullptr;
    }

    Dialog_s& dialog_;
    User& user_;
    std::string& shownText_;
};

class PossibleAtDialog {
public:
    explicit PossibleAtDialog(const Dialog_s& dialog) : dialog_(dialog) {}

    std::string operator()(const ShowPage_s& action) const {
        return findPage(dialog_, action.page) != nullptr ? "" : "the dialog has no such page";
    }
    std::string operator()(const SetToggle_s& action) const {
        return use(action.toggle, {ControlKind_e::Toggle});
    }
    std::string operator()(const ChooseItem_s& action) const {
        std::string why = use(action.control, {ControlKind_e::RadioBox, ControlKind_e::OptionMenu});
        return why.empty() ? positions(action.control, {action.item}) : why;
    }
    std::string operator()(const PressButton_s& action) const {
        return use(action.button, {ControlKind_e::Button});
    }
    std::string operator()(const SelectItems_s& action) const {
        std::string why = use(action.list, {ControlKind_e::List});
        if (!why.empty())
            return why;
        if (action.positions.size() > 1 && !findControl(dialog_, action.list)->allowsSeveral)
            return "the list allows one item at a time";
        return positions(action.list, action.positions);
    }
    std::string operator()(const TypeText_s& action) const {
        return use(action.field, {ControlKind_e::TextField});
    }
    // Cancel is always there: it closes the window.
    std::string operator()(const PressDialogButton_s& action) const {
        const bool isThere = action.button == DialogButton_e::Cancel ||
                             (action.button == DialogButton_e::Ok && dialog_.ok != nullptr) ||
                             (action.button == DialogButton_e::Apply && dialog_.apply != nullptr) ||
                             (action.button == DialogButton_e::Help && dialog_.help != nullptr);
        return isThere ? "" : "the dialog has no such button";
    }

private:
    std::string use(std::int32_t id, std::initializer_list<ControlKind_e> kinds) const {
        const Control_s* control = findControl(dialog_, id);
        if (control == nullptr)
            return "the dialog has no such control";
        bool isOfKind = false;
        for (const ControlKind_e kind : kinds)
            isOfKind |= control->kind == kind;
        if (!isOfKind)
            return "the control is of another kind";
        if (!isInFront(dialog_, *control))
            return "the control is on a page that is not in front";
        return control->sensitive ? "" : "the control is not sensitive";
    }
    std::string positions(std::int32_t id, const std::vector<std::int32_t>& positions) const {
        const auto count = static_cast<std::int64_t>(findControl(dialog_, id)->items.size());
        std::int32_t last = 0;
        for (const std::int32_t position : positions) {
            if (position < 1 || position > count)
                return "there is no item " + std::to_string(position);
            if (position <= last)
                return "the positions are not in ascending order";
            last = position;
        }
        return "";
    }

    const Dialog_s& dialog_;
};

/// A page that was left in front may show what is no longer so. The first is readied by init.
void activateFrontPage(const Dialog_s& dialog) {
    if (!dialog.tabs.has_value() || dialog.tabs->activate == nullptr || dialog.tabs->pages.empty())
        return;
    const std::int32_t page = dialog.tabs->frontPage;
    if (page != dialog.tabs->pages.front().id)
        dialog.tabs->activate(&page);
}

/// All that an action needs, so that nothing of the host's can fail while it is done.
struct ReadyAction_s {
    DialogAction action = PressDialogButton_s{DialogButton_e::Cancel};
    bool isPossible = true;
    std::string shownText; // of a field
    bool hadMemory = true;
};

ReadyAction_s readyActionOf(const Dialog_s& dialog, DialogAction action) {
    ReadyAction_s ready;
    // A window may have been used in the moment in which its control was greyed.
    ready.isPossible = whyImpossible(dialog, action).empty();
    if (const TypeText_s* typed = std::get_if<TypeText_s>(&action))
        ready.shownText = typed->text;
    ready.action = std::move(action);
    return ready;
}

/// Without memory the user leaves: so the guest ends what it holds for the dialog, its lock above
/// all.
ReadyAction_s nextAction(const Dialog_s& dialog, User& user) {
    try {
        return readyActionOf(dialog, user.nextAction(dialog));
    } catch (const std::bad_alloc&) {
        ReadyAction_s leave;
        leave.hadMemory = false;
        return leave;
    }
}

/// A dialog that an exception leaves can't be worked with any more.
class ClosedAtTheEnd {
public:
    explicit ClosedAtTheEnd(Dialog_s& dialog) : dialog_(dialog) {}
    ~ClosedAtTheEnd() { dialog_.open = false; }
    ClosedAtTheEnd(const ClosedAtTheEnd&) = delete;
    ClosedAtTheEnd& operator=(const ClosedAtTheEnd&) = delete;

private:
    Dialog_s& dialog_;
};

} // namespace

std::string whyImpossible(const Dialog_s& dialog, const DialogAction& action) {
    return std::visit(PossibleAtDialog(dialog), action);
}

void drop(Dialog_s& dialog, User& user) {
    dialog.open = false;
    user.dialogDropped(dialog);
}

bool launch(Toolkit& toolkit, Dialog_s& dialog, User& user) {
    bool hadMemory = true;
    const ClosedAtTheEnd closed(dialog);
    toolkit.opened(dialog);
    if (dialog.init != nullptr)
        dialog.init();
    if (dialog.open)
        activateFrontPage(dialog);
    if (dialog.open)
        user.dialogShown(dialog);
    while (dialog.open) {
        ReadyAction_s next = nextAction(dialog, user);
        hadMemory &= next.hadMemory;
        if (next.isPossible)
            std::visit(ActionAtDialog(dialog, user, next.shownText), next.action);
    }
    return hadMemory;
}

} // namespace quorvia::host
