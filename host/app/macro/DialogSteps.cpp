#include "app/macro/DialogSteps.h"

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/core.h>

#include "toolkit/DialogLoop.h"
#include "toolkit/FieldNames.h"

namespace quorvia::host {
namespace {

/// Blanks at the end of a caption are for the eye.
std::string withoutEndBlanks(const std::string& caption) {
    return caption.substr(0, caption.find_last_not_of(' ') + 1);
}

bool hasCaption(const Control& control, const std::string& caption) {
    return withoutEndBlanks(control.caption) == withoutEndBlanks(caption);
}

template <typename IsWanted>
std::vector<const Control*> controlsWhere(const Dialog& dialog, IsWanted isWanted) {
    std::vector<const Control*> found;
    for (const Control& control : dialog.controls)
        if (isWanted(control))
            found.push_back(&control);
    return found;
}

DialogMove problem(std::string why) {
    return {std::nullopt, std::move(why), false};
}

std::optional<DialogButton> dialogButton(const std::string& caption) {
    static constexpr std::array<std::pair<std::string_view, DialogButton>, 4> kButtons = {
        {{"OK", DialogButton::Ok},
         {"Apply", DialogButton::Apply},
         {"Cancel", DialogButton::Cancel},
         {"Help", DialogButton::Help}}};
    for (const auto& [name, button] : kButtons)
        if (caption == name)
            return button;
    return std::nullopt;
}

/// The columns stand in the dialog in the order of their numbers.
const Control* inColumn(const std::vector<const Control*>& controls, FileColumn_e column) {
    const auto place = static_cast<std::size_t>(column) - 1;
    return place < controls.size() ? controls[place] : nullptr;
}

/// Finds what one action means.
class MoveAtDialog {
public:
    explicit MoveAtDialog(const Dialog& dialog) : dialog_(dialog) {}

    DialogMove operator()(const ShowPageAction_s& action) const {
        if (dialog_.tabs.has_value())
            for (const Page& page : dialog_.tabs->pages)
                if (page.caption == action.caption)
                    return {ShowPage{page.id}, "", false};
        return problem(fmt::format("there is no page \"{}\"", action.caption));
    }
    DialogMove operator()(const ToggleAction_s& action) const {
        const auto toggles = controlsWhere(dialog_, [&](const Control& control) {
            return control.kind == ControlKind::Toggle && hasCaption(control, action.caption);
        });
        if (toggles.empty())
            return problem(fmt::format("there is no toggle \"{}\"", action.caption));
        return {SetToggle{toggles.front()->id, action.value}, "", false};
    }
    DialogMove operator()(const RadioAction_s& action) const {
        return chooseItem(ControlKind::RadioBox, "radio box", action.item);
    }
    DialogMove operator()(const MenuAction_s& action) const {
        return chooseItem(ControlKind::OptionMenu, "menu", action.item);
    }
    DialogMove operator()(const PressAction_s& action) const {
        const auto buttons = controlsWhere(dialog_, [&](const Control& control) {
            return control.kind == ControlKind::Button && hasCaption(control, action.caption);
        });
        if (buttons.empty()) {
            const std::optional<DialogButton> button = dialogButton(action.caption);
            return button.has_value()
                       ? DialogMove{PressDialogButton{*button}, "", false}
                       : problem(fmt::format("there is no button \"{}\"", action.caption));
        }
        if (!action.column.has_value() && buttons.size() > 1)
            return problem(fmt::format("there are {} buttons \"{}\"; \"list\" says which",
                                       buttons.size(), action.caption));
        const Control* button =
            action.column.has_value() ? inColumn(buttons, *action.column) : buttons.front();
        if (button == nullptr)
            return problem(fmt::format("there is no such button \"{}\"", action.caption));
        return {PressButton{button->id}, "", false};
    }
    DialogMove operator()(const SelectItemsAction_s& action) const {
        const Control* list = inColumn(
            controlsWhere(dialog_,
                          [](const Control& control) { return control.kind == ControlKind::List; }),
            action.column);
        if (list == nullptr)
            return problem("there is no such list");
        std::vector<std::int32_t> positions = action.positions; // a person clicks in any order
        std::sort(positions.begin(), positions.end());
        positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
        return {SelectItems{list->id, std::move(positions)}, "", false};
    }
    DialogMove operator()(const TypeAction_s& action) const {
        const auto fields = controlsWhere(dialog_, [&](const Control& control) {
            return control.kind == ControlKind::TextField &&
                   isCalled(dialog_, control, action.field);
        });
        if (fields.size() != 1)
            return problem(fmt::format("there {} \"{}\"",
                                       fields.empty() ? "is no field" : "is more than one field",
                                       action.field));
        return {TypeText{fields.front()->id, action.text}, "", false};
    }

private:
    DialogMove chooseItem(ControlKind kind, const char* word, const std::string& item) const {
        for (const Control& control : dialog_.controls) {
            if (control.kind != kind)
                continue;
            const auto place = std::find(control.items.begin(), control.items.end(), item);
            if (place != control.items.end())
                return {ChooseItem{control.id,
                                   static_cast<std::int32_t>(place - control.items.begin() + 1)},
                        "", false};
        }
        return problem(fmt::format("there is no {} with an item \"{}\"", word, item));
    }

    const Dialog& dialog_;
};

/// The page to turn to before a person could do this; nothing if it is in front, or there is none.
std::optional<ShowPage> pageBefore(const Dialog& dialog, const DialogAction& action) {
    const std::optional<std::int32_t> id = controlOf(action);
    const Control* control = id.has_value() ? findControl(dialog, *id) : nullptr;
    if (control == nullptr || isInFront(dialog, *control))
        return std::nullopt;
    return ShowPage{control->parent};
}

template <typename Action>
DialogMove doableMove(const Dialog& dialog, const Action& action, std::size_t number) {
    DialogMove move = MoveAtDialog(dialog)(action);
    if (move.action.has_value()) {
        if (const std::optional<ShowPage> page = pageBefore(dialog, *move.action))
            return {*page, "", true};
        move.problem = whyImpossible(dialog, *move.action);
    }
    if (!move.problem.empty())
        move.problem = fmt::format("dialog, action {}: {}", number, move.problem);
    return move;
}

} // namespace

std::vector<ScriptEntry> dialogSteps(const DialogCommand_s& command,
                                     const std::function<void(const std::string&)>& describe) {
    std::vector<ScriptEntry> entries;
    for (const MacroDialogAction& any : command.actions) {
        const std::size_t number = entries.size() + 1;
        if (const auto* choose = std::get_if<ChooseAction_s>(&any)) {
            entries.emplace_back(FileChoice(choose->files));
        } else if (const auto* told = std::get_if<DescribeAction_s>(&any)) {
            entries.emplace_back(ScriptLook([name = told->name, describe] { describe(name); }));
        } else {
            entries.emplace_back(DialogStep([any, number](const Dialog& dialog) {
                return std::visit(
                    [&](const auto& action) -> DialogMove {
                        if constexpr (std::is_invocable_v<MoveAtDialog, decltype(action)>)
                            return doableMove(dialog, action, number);
                        else
                            return {}; // told apart above
                    },
                    any);
            }));
        }
    }
    return entries;
}

} // namespace quorvia::host
