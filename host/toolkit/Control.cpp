#include "toolkit/Control.h"

namespace quorvia::host {

std::string_view wordFor(ControlKind_e kind) {
    switch (kind) {
    case ControlKind_e::Frame:
        return "frame";
    case ControlKind_e::Label:
        return "label";
    case ControlKind_e::Toggle:
        return "toggle";
    case ControlKind_e::Button:
        return "button";
    case ControlKind_e::List:
        return "list";
    case ControlKind_e::TextField:
        return "textField";
    case ControlKind_e::RadioBox:
        return "radioBox";
    case ControlKind_e::OptionMenu:
        return "optionMenu";
    }
    return "";
}

} // namespace quorvia::host
