// A guest's modal dialog: at most one tab control with pages, and controls on the pages or on the
// dialog itself.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/Control.h"

namespace quorvia::host {

struct Page_s {
    std::int32_t id = QuorGUIId_None;
    std::string caption;
};

struct TabControl_s {
    std::int32_t id = QuorGUIId_None;
    Geometry_s geometry;
    std::vector<Page_s> pages;               ///< in their order
    std::int32_t frontPage = QuorGUIId_None; ///< the one that is seen; the first once there is one
    QuorGUIValueCallback activate = nullptr;
    QuorGUIValueCallback deactivate = nullptr;
};

/// The buttons at the foot of a dialog. Those without a callback are not there.
enum class DialogButton_e { Ok, Apply, Cancel, Help };

struct Dialog_s {
    std::int32_t id = QuorGUIId_None;
    std::int32_t parent = QuorGUIId_MainWindow;
    std::int32_t width = 0; ///< layout units, without the row of buttons
    std::int32_t height = 0;
    std::string title;
    QuorGUICallback init = nullptr;
    QuorGUICallback ok = nullptr;
    QuorGUICallback apply = nullptr;
    QuorGUICallback cancel = nullptr;
    QuorGUICallback help = nullptr;
    QuorGUICallback maker =
        nullptr; ///< any callback of the guest that made it; null if it has none
    std::optional<TabControl_s> tabs;
    std::vector<Control_s> controls;     ///< in the order in which they were made
    std::int32_t focus = QuorGUIId_None; ///< the control that gets the next key
    bool open = false;                   ///< from a launch until it is dropped
    std::int64_t lastLaunch = 0; ///< which launch of any dialog was its last, from 1; 0 for none
};

} // namespace quorvia::host
