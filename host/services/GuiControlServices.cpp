// The making of controls.
#include <string>
#include <utility>

#include "services/GuiCall.h"

using namespace quorvia::host;

namespace {

std::int32_t addControl(GuiCall& call, std::int32_t parent, Control control) {
    if (call.fails())
        return call.result(std::int32_t{QuorGUIId_None});
    Dialog* dialog = call.dialogOfParent(parent);
    if (dialog == nullptr)
        return call.result(std::int32_t{QuorGUIId_None});
    control.parent = parent;
    return call.result(call.host().toolkit.addControl(*dialog, std::move(control)));
}

std::int32_t addCaptioned(GuiCall& call, std::int32_t parent, const char* caption,
                          Control control) {
    if (caption == nullptr) {
        call.violate("caption is null");
        return call.result(std::int32_t{QuorGUIId_None});
    }
    control.caption = caption;
    return addControl(call, parent, std::move(control));
}

std::int32_t addWithItems(GuiCall& call, std::int32_t parent, Control control) {
    if (control.items.empty()) {
        call.violate("there are no items");
        return call.result(std::int32_t{QuorGUIId_None});
    }
    control.value = 1;
    return addControl(call, parent, std::move(control));
}

Control controlOf(ControlKind kind, Geometry geometry, ControlCallback callback = {}) {
    Control control;
    control.kind = kind;
    control.geometry = geometry;
    control.callback = callback;
    return control;
}

std::vector<std::string> splitAtCommas(const std::string& captions) {
    std::vector<std::string> items;
    std::size_t start = 0;
    for (std::size_t comma = captions.find(','); comma != std::string::npos;
         comma = captions.find(',', start)) {
        items.push_back(captions.substr(start, comma - start));
        start = comma + 1;
    }
    items.push_back(captions.substr(start));
    return items;
}

} // namespace

extern "C" {

std::int32_t QuorGUIFrameAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                             std::int32_t width, std::int32_t height, const char* caption) {
    GuiCall call("QuorGUIFrameAdd", parent, x, y, width, height, caption);
    return addCaptioned(call, parent, caption,
                        controlOf(ControlKind::Frame, {x, y, width, height}));
}

std::int32_t QuorGUILabelAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                             const char* caption) {
    GuiCall call("QuorGUILabelAdd", parent, x, y, caption);
    return addCaptioned(call, parent, caption, controlOf(ControlKind::Label, {x, y, 0, 0}));
}

std::int32_t QuorGUIToggleAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                              std::int32_t width, std::int32_t height, const char* caption,
                              QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIToggleAdd", parent, x, y, width, height, caption, callback);
    return addCaptioned(call, parent, caption,
                        controlOf(ControlKind::Toggle, {x, y, width, height}, callback));
}

std::int32_t QuorGUIButtonAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                              std::int32_t width, std::int32_t height, const char* caption,
                              QuorGUICallback callback) {
    GuiCall call("QuorGUIButtonAdd", parent, x, y, width, height, caption, callback);
    return addCaptioned(call, parent, caption,
                        controlOf(ControlKind::Button, {x, y, width, height}, callback));
}

std::int32_t QuorGUIListAdd(std::int32_t parent, std::int32_t x, std::int32_t y, std::int32_t width,
                            std::int32_t height, bool multipleSelection,
                            QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIListAdd", parent, x, y, width, height, multipleSelection, callback);
    Control list = controlOf(ControlKind::List, {x, y, width, height}, callback);
    list.allowsSeveral = multipleSelection;
    return addControl(call, parent, std::move(list));
}

std::int32_t QuorGUITextFieldAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                 std::int32_t width, std::int32_t height,
                                 QuorGUITextCallback callback) {
    GuiCall call("QuorGUITextFieldAdd", parent, x, y, width, height, callback);
    return addControl(call, parent,
                      controlOf(ControlKind::TextField, {x, y, width, height}, callback));
}

std::int32_t QuorGUIRadioBoxAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                std::int32_t width, std::int32_t height, const char* caption1,
                                const char* caption2, const char* caption3, const char* caption4,
                                const char* caption5, QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIRadioBoxAdd", parent, x, y, width, height, caption1, caption2, caption3,
                 caption4, caption5, callback);
    Control box = controlOf(ControlKind::RadioBox, {x, y, width, height}, callback);
    for (const char* caption : {caption1, caption2, caption3, caption4, caption5}) {
        if (caption == nullptr)
            break;
        box.items.emplace_back(caption);
    }
    return addWithItems(call, parent, std::move(box));
}

std::int32_t QuorGUIOptionMenuAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                  std::int32_t width, std::int32_t height, const char* captions,
                                  QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIOptionMenuAdd", parent, x, y, width, height, captions, callback);
    Control menu = controlOf(ControlKind::OptionMenu, {x, y, width, height}, callback);
    if (captions != nullptr)
        menu.items = splitAtCommas(captions);
    return addWithItems(call, parent, std::move(menu));
}

} // extern "C"
