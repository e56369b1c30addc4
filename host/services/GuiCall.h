// A call of the toolkit: it finds the dialogs and controls that a guest means, and blames it for
// those that are not there.
#pragma once

#include <cstdint>

#include "services/Call.h"

namespace quorvia::host {

/// A control with its dialog; both null if it was not found.
struct FoundControl_s {
    Dialog_s* dialog = nullptr;
    Control_s* control = nullptr;

    explicit operator bool() const { return control != nullptr; }
};

class GuiCall : public Call {
public:
    using Call::Call;

    /// Each is null, and a violation, if there is none.
    Dialog_s* dialog(std::int32_t id);
    Dialog_s* dialogWithTabs(std::int32_t tabs);
    Dialog_s* dialogOfParent(std::int32_t parent);
    FoundControl_s control(std::int32_t id);
    FoundControl_s control(std::int32_t id, ControlKind_e kind);

    /// Lets the user see what has changed.
    void changed(const FoundControl_s& found) {
        if (found.dialog->open)
            host().user->controlChanged(*found.dialog, *found.control);
    }
};

} // namespace quorvia::host
