// Dialogs, tab controls and pages.
#include <utility>

#include "services/GuiCall.h"
#include "toolkit/DialogLoop.h"

using namespace quorvia::host;

namespace {

bool isParentOfDialog(GuiCall& call, std::int32_t parent) {
    return parent == QuorGUIId_MainWindow || call.dialog(parent) != nullptr;
}

/// Where the code of the guest that makes a dialog lies.
QuorGUICallback anyCallback(const Dialog_s& dialog) {
    for (const QuorGUICallback callback :
         {dialog.init, dialog.ok, dialog.apply, dialog.cancel, dialog.help})
        if (callback != nullptr)
            return callback;
    return nullptr;
}

} // namespace

extern "C" {

std::int32_t QuorGUIDialogCreateModal(std::int32_t parent, std::int32_t width, std::int32_t height,
                                      const char* title, QuorGUICallback init, QuorGUICallback ok,
                                      QuorGUICallback apply, QuorGUICallback cancel,
                                      QuorGUICallback help) {
    GuiCall call("QuorGUIDialogCreateModal", parent, width, height, title, init, ok, apply, cancel,
                 help);
    return call.serve(std::int32_t{QuorGUIId_None}, [&]() -> std::int32_t {
        if (!isParentOfDialog(call, parent))
            return QuorGUIId_None;
        if (title == nullptr || width < 1 || height < 1) {
            call.violate("title is null, or the size is not positive");
            return QuorGUIId_None;
        }
        Dialog_s dialog;
        dialog.parent = parent;
        dialog.width = width;
        dialog.height = height;
        dialog.title = title;
        dialog.init = init;
        dialog.ok = ok;
        dialog.apply = apply;
        dialog.cancel = cancel;
        dialog.help = help;
        dialog.maker = anyCallback(dialog);
        return call.host().toolkit.add(std::move(dialog));
    });
}

void QuorGUIDialogLaunch(std::int32_t dialog) {
    GuiCall call("QuorGUIDialogLaunch", dialog);
    Dialog_s* found = call.dialog(dialog);
    if (found == nullptr)
        return;
    if (found->open) {
        call.violation("the dialog is open");
        return;
    }
    call.host().faults.endLoadOfDialog();
    if (!launch(call.host().toolkit, *found, *call.host().user))
        call.host().showMessage(MessageKind_e::Error, "Out of memory.");
}

void QuorGUIDialogDrop(std::int32_t dialog) {
    GuiCall call("QuorGUIDialogDrop", dialog);
    Dialog_s* found = call.dialog(dialog);
    if (found == nullptr)
        return;
    if (!found->open)
        call.violation("the dialog is not open");
    else
        drop(*found, *call.host().user);
}

std::int32_t QuorGUITabAdd(std::int32_t dialog, std::int32_t x, std::int32_t y, std::int32_t width,
                           std::int32_t height, QuorGUIValueCallback activate,
                           QuorGUIValueCallback deactivate) {
    GuiCall call("QuorGUITabAdd", dialog, x, y, width, height, activate, deactivate);
    Dialog_s* found = call.fails() ? nullptr : call.dialog(dialog);
    if (found != nullptr && found->tabs.has_value()) {
        call.violate("the dialog has a tab control already");
        found = nullptr;
    }
    if (found == nullptr)
        return call.result(std::int32_t{QuorGUIId_None});
    TabControl_s tabs;
    tabs.geometry = {x, y, width, height};
    tabs.activate = activate;
    tabs.deactivate = deactivate;
    return call.result(call.host().toolkit.addTabs(*found, std::move(tabs)));
}

std::int32_t QuorGUITabAddPage(std::int32_t tab, const char* caption) {
    GuiCall call("QuorGUITabAddPage", tab, caption);
    return call.serve(std::int32_t{QuorGUIId_None}, [&]() -> std::int32_t {
        Dialog_s* found = call.dialogWithTabs(tab);
        if (found != nullptr && caption == nullptr)
            call.violate("caption is null");
        if (found == nullptr || caption == nullptr)
            return QuorGUIId_None;
        return call.host().toolkit.addPage(*found->tabs, caption);
    });
}

} // extern "C"
