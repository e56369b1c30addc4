#include "toolkit/Control.h"

namespace quorvia::host {

std::string_view wordFor(ControlKind kind) {
    switch (kind) {
    case ControlKind::Frame:
        return "frame";
    case ControlKind::Label:
        return "label";
    case ControlKind::Toggle:
        return "toggle";
    case ControlKind::Button:
        return "button";
    case ControlKind::List:
        return "list";
    case ControlKind::TextField:
        return "textField";
    case ControlKind::RadioBox:
        return "radioBox";
    case ControlKind::OptionMenu:
        return "optionMenu";
    }
    return "";
}

} // namespace quorvia::host
