#include "services/GuiCall.h"

namespace quorvia::host {

Dialog* GuiCall::dialog(std::int32_t id) {
    Dialog* found = host().toolkit.dialog(id);
    if (found == nullptr)
        violate("there is no dialog ", id);
    return found;
}

Dialog* GuiCall::dialogWithTabs(std::int32_t tabs) {
    Dialog* found = host().toolkit.dialogWithTabs(tabs);
    if (found == nullptr)
        violate("there is no tab control ", tabs);
    return found;
}

Dialog* GuiCall::dialogOfParent(std::int32_t parent) {
    Dialog* found = host().toolkit.dialogOfParent(parent);
    if (found == nullptr)
        violate("there is no dialog or page ", parent);
    return found;
}

FoundControl GuiCall::control(std::int32_t id) {
    Dialog* dialog = host().toolkit.dialogWithControl(id);
    if (dialog == nullptr) {
        violate("there is no control ", id);
        return {};
    }
    return {dialog, findControl(*dialog, id)};
}

FoundControl GuiCall::control(std::int32_t id, ControlKind kind) {
    const FoundControl found = control(id);
    if (found && found.control->kind != kind) {
        violate("control ", id, " is no ", wordFor(kind));
        return {};
    }
    return found;
}

} // namespace quorvia::host
