// The values of toggles, radio boxes, option menus and lists; sensitivity and focus.
#include <algorithm>
#include <string>

#include "services/GuiCall.h"

using namespace quorvia::host;

namespace {

void chooseItem(GuiCall& call, std::int32_t id, ControlKind_e kind, std::int32_t item) {
    const FoundControl_s found = call.control(id, kind);
    if (!found)
        return;
    if (item < 1 || static_cast<std::size_t>(item) > found.control->items.size()) {
        call.violation("there is no item ", item);
        return;
    }
    found.control->value = item;
    call.changed(found);
}

/// A block of positions that the guest gives back; null if there is no memory.
std::int32_t* newPositions(GuiCall& call, const std::vector<std::int32_t>& positions) {
    const auto bytes = static_cast<std::int64_t>(positions.size() * sizeof(std::int32_t));
    char* block = call.host().memory.allocate(call.operation(), bytes, "selected items");
    auto* array = reinterpret_cast<std::int32_t*>(block);
    if (array != nullptr)
        std::copy(positions.begin(), positions.end(), array);
    return array;
}

} // namespace

extern "C" {

void QuorGUIToggleSet(std::int32_t toggle, std::int32_t value) {
    GuiCall call("QuorGUIToggleSet", toggle, value);
    if (const FoundControl_s found = call.control(toggle, ControlKind_e::Toggle)) {
        found.control->value = value != 0 ? 1 : 0;
        call.changed(found);
    }
}

void QuorGUIRadioBoxSetToggle(std::int32_t radioBox, std::int32_t item) {
    GuiCall call("QuorGUIRadioBoxSetToggle", radioBox, item);
    chooseItem(call, radioBox, ControlKind_e::RadioBox, item);
}

void QuorGUIOptionMenuSet(std::int32_t optionMenu, std::int32_t item) {
    GuiCall call("QuorGUIOptionMenuSet", optionMenu, item);
    chooseItem(call, optionMenu, ControlKind_e::OptionMenu, item);
}

void QuorGUIListDeleteAllItems(std::int32_t list) {
    GuiCall call("QuorGUIListDeleteAllItems", list);
    if (const FoundControl_s found = call.control(list, ControlKind_e::List)) {
        found.control->items.clear();
        found.control->selected.clear();
        call.changed(found);
    }
}

void QuorGUIListAppendItem(std::int32_t list, const char* text) {
    GuiCall call("QuorGUIListAppendItem", list, text);
    const FoundControl_s found = call.control(list, ControlKind_e::List);
    if (text == nullptr)
        call.violation("text is null");
    if (!found || text == nullptr)
        return;
    call.tryTo([&] {
        found.control->items.emplace_back(text);
        call.changed(found);
    });
}

void QuorGUIListGetSelectedItems(std::int32_t list, std::int32_t** positions, std::int32_t* count) {
    GuiCall call("QuorGUIListGetSelectedItems", list);
    if (positions == nullptr || count == nullptr) {
        call.violation("an argument is null");
        return;
    }
    *positions = nullptr;
    *count = 0;
    const FoundControl_s found = call.control(list, ControlKind_e::List);
    if (found && !found.control->selected.empty())
        call.tryTo([&] { *positions = newPositions(call, found.control->selected); });
    if (*positions != nullptr)
        *count = static_cast<std::int32_t>(found.control->selected.size());
    call.out(*count);
}

void QuorGUISetSensitivity(std::int32_t control, bool sensitive) {
    GuiCall call("QuorGUISetSensitivity", control, sensitive);
    if (const FoundControl_s found = call.control(control)) {
        found.control->sensitive = sensitive;
        call.changed(found);
    }
}

void QuorGUISetInputFocus(std::int32_t control) {
    GuiCall call("QuorGUISetInputFocus", control);
    if (const FoundControl_s found = call.control(control)) {
        found.dialog->focus = control;
        if (found.dialog->open)
            call.host().user->focusMoved(*found.dialog);
    }
}

} // extern "C"
