// The making of controls.
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "services/GuiCall.h"

using namespace quorvia::host;

namespace {

constexpr std::int32_t noControl = QuorGUIId_None;

/// `describe` readies the control; false, and a violation, if the guest asks for none that there
/// could be.
template <typename Describe>
std::int32_t addControl(GuiCall& call, std::int32_t parent, Control_s control, Describe describe) {
    return call.serve(noControl, [&] {
        if (!describe(control))
            return noControl;
        Dialog_s* dialog = call.dialogOfParent(parent);
        if (dialog == nullptr)
            return noControl;
        control.parent = parent;
        return call.host().toolkit.addControl(*dialog, std::move(control));
    });
}

std::int32_t addPlain(GuiCall& call, std::int32_t parent, Control_s control) {
    return addControl(call, parent, std::move(control), [](Control_s&) { return true; });
}

std::int32_t addCaptioned(GuiCall& call, std::int32_t parent, const char* caption,
                          Control_s control) {
    return addControl(call, parent, std::move(control), [&](Control_s& captioned) {
        if (caption == nullptr)
            return call.violate("caption is null");
        captioned.caption = caption;
        return true;
    });
}

/// `giveItems` gives the items, of which there must be one at least.
template <typename GiveItems>
std::int32_t addWithItems(GuiCall& call, std::int32_t parent, Control_s control,
                          GiveItems giveItems) {
    return addControl(call, parent, std::move(control), [&](Control_s& chooser) {
        chooser.items = giveItems();
        chooser.value = 1;
        return !chooser.items.empty() || call.violate("there are no items");
    });
}

Control_s controlOf(ControlKind_e kind, Geometry_s geometry, ControlCallback callback = {}) {
    Control_s control;
    control.kind = kind;
    control.geometry = geometry;
    control.callback = callback;
    return control;
}

std::vector<std::string> upToNull(std::initializer_list<const char*> captions) {
    std::vector<std::string> items;
    for (const char* caption : captions) {
        if (caption == nullptr)
            break;
        items.emplace_back(caption);
    }
    return items;
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
                        controlOf(ControlKind_e::Frame, {x, y, width, height}));
}

std::int32_t QuorGUILabelAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                             const char* caption) {
    GuiCall call("QuorGUILabelAdd", parent, x, y, caption);
    return addCaptioned(call, parent, caption, controlOf(ControlKind_e::Label, {x, y, 0, 0}));
}

std::int32_t QuorGUIToggleAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                              std::int32_t width, std::int32_t height, const char* caption,
                              QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIToggleAdd", parent, x, y, width, height, caption, callback);
    return addCaptioned(call, parent, caption,
                        controlOf(ControlKind_e::Toggle, {x, y, width, height}, callback));
}

std::int32_t QuorGUIButtonAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                              std::int32_t width, std::int32_t height, const char* caption,
                              QuorGUICallback callback) {
    GuiCall call("QuorGUIButtonAdd", parent, x, y, width, height, caption, callback);
    return addCaptioned(call, parent, caption,
                        controlOf(ControlKind_e::Button, {x, y, width, height}, callback));
}

std::int32_t QuorGUIListAdd(std::int32_t parent, std::int32_t x, std::int32_t y, std::int32_t width,
                            std::int32_t height, bool multipleSelection,
                            QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIListAdd", parent, x, y, width, height, multipleSelection, callback);
    Control_s list = controlOf(ControlKind_e::List, {x, y, width, height}, callback);
    list.allowsSeveral = multipleSelection;
    return addPlain(call, parent, std::move(list));
}

std::int32_t QuorGUITextFieldAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                 std::int32_t width, std::int32_t height,
                                 QuorGUITextCallback callback) {
    GuiCall call("QuorGUITextFieldAdd", parent, x, y, width, height, callback);
    return addPlain(call, parent,
                    controlOf(ControlKind_e::TextField, {x, y, width, height}, callback));
}

std::int32_t QuorGUIRadioBoxAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                std::int32_t width, std::int32_t height, const char* caption1,
                                const char* caption2, const char* caption3, const char* caption4,
                                const char* caption5, QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIRadioBoxAdd", parent, x, y, width, height, caption1, caption2, caption3,
                 caption4, caption5, callback);
    return addWithItems(call, parent,
                        controlOf(ControlKind_e::RadioBox, {x, y, width, height}, callback), [&] {
                            return upToNull({caption1, caption2, caption3, caption4, caption5});
                        });
}

std::int32_t QuorGUIOptionMenuAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                  std::int32_t width, std::int32_t height, const char* captions,
                                  QuorGUIValueCallback callback) {
    GuiCall call("QuorGUIOptionMenuAdd", parent, x, y, width, height, captions, callback);
    return addWithItems(
        call, parent, controlOf(ControlKind_e::OptionMenu, {x, y, width, height}, callback),
        [&] { return captions != nullptr ? splitAtCommas(captions) : std::vector<std::string>(); });
}

} // extern "C"
