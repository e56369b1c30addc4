#include "services/GuiCall.h"

namespace quorvia::host {

Dialog_s* GuiCall::dialog(std::int32_t id) {
    Dialog_s* found = host().toolkit.dialog(id);
    if (found == nullptr)
        violate("there is no dialog ", id);
    return found;
}

Dialog_s* GuiCall::dialogWithTabs(std::int32_t tabs) {
    Dialog_s* found = host().toolkit.dialogWithTabs(tabs);
    if (found == nullptr)
        violate("there is no tab control ", tabs);
    return found;
}

Dialog_s* GuiCall::dialogOfParent(std::int32_t parent) {
    Dialog_s* found = host().toolkit.dialogOfParent(parent);
    if (found == nullptr)
        violate("there is no dialog or page ", parent);
    return found;
}

FoundControl_s GuiCall::control(std::int32_t id) {
    Dialog_s* dialog = host().toolkit.dialogWithControl(id);
    if (dialog == nullptr) {
        violate("there is no control ", id);
        return {};
    }
    return {dialog, findControl(*dialog, id)};
}

FoundControl_s GuiCall::control(std::int32_t id, ControlKind_e kind) {
    const FoundControl_s found = control(id);
    if (found && found.control->kind != kind) {
        violate("control ", id, " is no ", wordFor(kind));
        return {};
    }
    return found;
}

} // namespace quorvia::host
