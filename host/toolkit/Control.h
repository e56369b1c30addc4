// A control of a guest's dialog as the host knows it, whoever shows it. Plain data: a copy of it is
// all that a window needs to draw the control.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "quorvia/QuorGUI.h"

namespace quorvia::host {

enum class ControlKind_e { Frame, Label, Toggle, Button, List, TextField, RadioBox, OptionMenu };

/// "frame", "label" and so on, "textField" for two words.
std::string_view wordFor(ControlKind_e kind);

/// In layout units, from the upper left corner of the dialog or page: x to the right, y down.
/// Labels have no width and height (0).
struct Geometry_s {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

/// What the guest wants to be called with; none for frames and labels.
using ControlCallback =
    std::variant<std::monostate, QuorGUICallback, QuorGUIValueCallback, QuorGUITextCallback>;

struct Control_s {
    std::int32_t id = QuorGUIId_None;
    std::int32_t parent = QuorGUIId_None; ///< a dialog or a page
    ControlKind_e kind = ControlKind_e::Label;
    std::string caption; ///< with its blanks; empty for lists, fields, radio boxes and menus
    Geometry_s geometry;
    std::vector<std::string> items; ///< of a list, radio box or option menu
    std::int32_t value = 0;         ///< of a toggle 0 or 1; of a radio box or menu the item, from 1
    std::string text;               ///< of a text field
    std::vector<std::int32_t> selected; ///< positions in a list, from 1, ascending
    bool allowsSeveral = false;         ///< a list in which several items can be selected
    bool zeroIsLast = false; ///< a text field that has shown an index whose 0 stands for the last
    bool sensitive = true;
    ControlCallback callback;
};

} // namespace quorvia::host
