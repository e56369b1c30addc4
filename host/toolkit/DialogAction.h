// The one thing that a user does next at a dialog. Controls are told by their identifiers, items
// and positions from 1.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "toolkit/Dialog.h"

namespace quorvia::host {

struct ShowPage_s {
    std::int32_t page;
};
struct SetToggle_s {
    std::int32_t toggle;
    bool on;
};
/// Of a radio box or an option menu.
struct ChooseItem_s {
    std::int32_t control;
    std::int32_t item;
};
struct PressButton_s {
    std::int32_t button;
};
/// In place of what was selected. The guest is told of the last position, or 0 for none.
struct SelectItems_s {
    std::int32_t list;
    std::vector<std::int32_t> positions;
};
/// The field's whole text, as it stands when the user leaves the field.
struct TypeText_s {
    std::int32_t field;
    std::string text;
};
struct PressDialogButton_s {
    DialogButton_e button;
};

using DialogAction = std::variant<ShowPage_s, SetToggle_s, ChooseItem_s, PressButton_s,
                                  SelectItems_s, TypeText_s, PressDialogButton_s>;

/// The control that the user works with; nothing for pages and the dialog's own buttons.
std::optional<std::int32_t> controlOf(const DialogAction& action);

} // namespace quorvia::host
