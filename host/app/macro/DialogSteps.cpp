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

bool hasCaption(const Control_s& control, const std::string& caption) {
    return withoutEndBlanks(control.caption) == withoutEndBlanks(caption);
}

template <typename IsWanted>
std::vector<const Control_s*> controlsWhere(const Dialog_s& dialog, IsWanted isWanted) {
    std::vector<const Control_s*> found;
    for (const Control_s& control : dialog.controls)
        if (isWanted(control))
            found.push_back(&control);
    return found;
}

DialogMove_s problem(std::string why) {
    return {std::nullopt, std::move(why), false};
}

std::optional<DialogButton_e> dialogButton(const std::string& caption) {
    static constexpr std::array<std::pair<std::string_view, DialogButton_e>, 4> buttonWords = {
        {{"OK", DialogButton_e::Ok},
         {"Apply", DialogButton_e::Apply},
         {"Cancel", DialogButton_e::Cancel},
         {"Help", DialogButton_e::Help}}};
    for (const auto& [name, button] : buttonWords)
        if (caption == name)
            return button;
    return std::nullopt;
}

/// The columns stand in the dialog in the order of their numbers.
const Control_s* inColumn(const std::vector<const Control_s*>& controls, FileColumn_e column) {
    const auto place = static_cast<std::size_t>(column) - 1;
    return place < controls.size() ? controls[place] : nullptr;
}

/// Finds what one action means.
class MoveAtDialog {
public:
    explicit MoveAtDialog(const Dialog_s& dialog) : dialog_(dialog) {}

    DialogMove_s operator()(const ShowPageAction_s& action) const {
        if (dialog_.tabs.has_value())
            for (const Page_s& page : dialog_.tabs->pages)
                if (page.caption == action.caption)
                    return {ShowPage_s{page.id}, "", false};
        return problem(fmt::format("there is no page \"{}\"", action.caption));
    }
    DialogMove_s operator()(const ToggleAction_s& action) const {
        const auto toggles = controlsWhere(dialog_, [&](const Control_s& control) {
            return control.kind == ControlKind_e::Toggle && hasCaption(control, action.caption);
        });
        if (toggles.empty())
            return problem(fmt::format("there is no toggle \"{}\"", action.caption));
        return {SetToggle_s{toggles.front()->id, action.value}, "", false};
    }
    DialogMove_s operator()(const RadioAction_s& action) const {
        return chooseItem(ControlKind_e::RadioBox, "radio box", action.item);
    }
    DialogMove_s operator()(const MenuAction_s& action) const {
        return chooseItem(ControlKind_e::OptionMenu, "menu", action.item);
    }
    DialogMove_s operator()(const PressAction_s& action) const {
        const auto buttons = controlsWhere(dialog_, [&](const Control_s& control) {
            return control.kind == ControlKind_e::Button && hasCaption(control, action.caption);
        });
        if (buttons.empty()) {
            const std::optional<DialogButton_e> button = dialogButton(action.caption);
            return button.has_value()
                       ? DialogMove_s{PressDialogButton_s{*button}, "", false}
                       : problem(fmt::format("there is no button \"{}\"", action.caption));
        }
        if (!action.column.has_value() && buttons.size() > 1)
            return problem(fmt::format("there are {} buttons \"{}\"; \"list\" says which",
                                       buttons.size(), action.caption));
        const Control_s* button =
            action.column.has_value() ? inColumn(buttons, *action.column) : buttons.front();
        if (button == nullptr)
            return problem(fmt::format("there is no such button \"{}\"", action.caption));
        return {PressButton_s{button->id}, "", false};
    }
    DialogMove_s operator()(const SelectItemsAction_s& action) const {
        const Control_s* list =
            inColumn(controlsWhere(dialog_,
                                   [](const Control_s& control) {
                                       return control.kind == ControlKind_e::List;
                                   }),
                     action.column);
        if (list == nullptr)
            return problem("there is no such list");
        std::vector<std::int32_t> positions = action.positions; // a person clicks in any order
        std::sort(positions.begin(), positions.end());
        positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
        return {SelectItems_s{list->id, std::move(positions)}, "", false};
    }
    DialogMove_s operator()(const TypeAction_s& action) const {
        const auto fields = controlsWhere(dialog_, [&](const Control_s& control) {
            return control.kind == ControlKind_e::TextField &&
                   isCalled(dialog_, control, action.field);
        });
        if (fields.size() != 1)
            return problem(fmt::format("there {} \"{}\"",
                                       fields.empty() ? "is no field" : "is more than one field",
                                       action.field));
        return {TypeText_s{fields.front()->id, action.text}, "", false};
    }

private:
    DialogMove_s chooseItem(ControlKind_e kind, const char* word, const std::string& item) const {
        for (const Control_s& control : dialog_.controls) {
            if (control.kind != kind)
                continue;
            const auto place = std::find(control.items.begin(), control.items.end(), item);
            if (place != control.items.end())
                return {ChooseItem_s{control.id,
                                     static_cast<std::int32_t>(place - control.items.begin() + 1)},
                        "", false};
        }
        return problem(fmt::format("there is no {} with an item \"{}\"", word, item));
    }

    const Dialog_s& dialog_;
};

/// The page to turn to before a person could do this; nothing if it is in front, or there is none.
std::optional<ShowPage_s> pageBefore(const Dialog_s& dialog, const DialogAction& action) {
    const std::optional<std::int32_t> id = controlOf(action);
    const Control_s* control = id.has_value() ? findControl(dialog, *id) : nullptr;
    if (control == nullptr || isInFront(dialog, *control))
        return std::nullopt;
    return ShowPage_s{control->parent};
}

template <typename Action>
DialogMove_s doableMove(const Dialog_s& dialog, const Action& action, std::size_t number) {
    DialogMove_s move = MoveAtDialog(dialog)(action);
    if (move.action.has_value()) {
        if (const std::optional<ShowPage_s> page = pageBefore(dialog, *move.action))
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
            entries.emplace_back(DialogStep([any, number](const Dialog_s& dialog) {
                return std::visit(
                    [&](const auto& action) -> DialogMove_s {
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
