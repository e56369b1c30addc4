#include "services/GuiCall.h"

#include <string>

namespace quorvia::host {

Dialog* GuiCall::dialog(std::int32_t id) {
    Dialog* found = host().toolkit.dialog(id);
    if (found == nullptr)
        violate("there is no dialog " + std::to_string(id));
    return found;
}

Dialog* GuiCall::dialogWithTabs(std::int32_t tabs) {
    Dialog* found = host().toolkit.dialogWithTabs(tabs);
    if (found == nullptr)
        violate("there is no tab control " + std::to_string(tabs));
    return found;
}

Dialog* GuiCall::dialogOfParent(std::int32_t parent) {
    Dialog* found = host().toolkit.dialogOfParent(parent);
    if (found == nullptr)
        violate("there is no dialog or page " + std::to_string(parent));
    return found;
}

FoundControl GuiCall::control(std::int32_t id) {
    Dialog* dialog = host().toolkit.dialogWithControl(id);
    if (dialog == nullptr) {
        violate("there is no control " + std::to_string(id));
        return {};
    }
    return {dialog, findControl(*dialog, id)};
}

FoundControl GuiCall::control(std::int32_t id, ControlKind kind) {
    const FoundControl found = control(id);
    if (found && found.control->kind != kind) {
        violate("control " + std::to_string(id) + " is no " + std::string(wordFor(kind)));
        return {};
    }
    return found;
}

} // namespace quorvia::host
