// All dialogs that guests have made, with their controls. They live as long as the host, or until
// the guest's library goes; identifiers count from 1 over dialogs, tab controls, pages and controls
// alike, and none comes twice.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>

#include "toolkit/Dialog.h"

namespace quorvia::host {

class Toolkit {
public:
    /// Takes the dialog in and gives it its identifier.
    std::int32_t add(Dialog_s dialog);
    /// `dialog` must be one of this toolkit's, without tabs so far. Gives the tab control's
    /// identifier.
    std::int32_t addTabs(Dialog_s& dialog, TabControl_s tabs);
    std::int32_t addPage(TabControl_s& tabs, std::string caption);
    /// `dialog` must hold the control's parent.
    std::int32_t addControl(Dialog_s& dialog, Control_s control);

    /// Null if there is none. Dialogs stay where they are; controls move when one is added.
    Dialog_s* dialog(std::int32_t id);
    Dialog_s* dialogWithTabs(std::int32_t tabs);
    /// The dialog that is the parent, or has it as a page.
    Dialog_s* dialogOfParent(std::int32_t parent);
    Dialog_s* dialogWithControl(std::int32_t control);

    /// The dialog that was launched last of those that are open; null if none is.
    const Dialog_s* front() const;
    /// The open dialog in front, else the one that was launched last; null without a launch so far.
    const Dialog_s* latest() const;
    /// Of all dialogs, so far.
    std::int64_t launches() const { return launches_; }
    /// In the order in which they were made.
    const std::deque<Dialog_s>& dialogs() const { return dialogs_; }

    void opened(Dialog_s& dialog);
    void closeAll();
    /// Forgets the dialogs for which `isGone` holds.
    void removeWhere(const std::function<bool(const Dialog_s&)>& isGone);

private:
    std::deque<Dialog_s> dialogs_;
    std::int32_t lastId_ = 0;
    std::int64_t launches_ = 0;
};

/// Null if the dialog has no such control.
const Control_s* findControl(const Dialog_s& dialog, std::int32_t id);
Control_s* findControl(Dialog_s& dialog, std::int32_t id);

/// Null if the dialog has no such page.
const Page_s* findPage(const Dialog_s& dialog, std::int32_t id);

/// Whether the user sees the control once the dialog is open: it stands on the front page, or on
/// the dialog itself.
bool isInFront(const Dialog_s& dialog, const Control_s& control);

} // namespace quorvia::host
