#include "toolkit/Toolkit.h"

#include <algorithm>
#include <utility>

namespace quorvia::host {

namespace {

template <typename Things, typename IsWanted>
auto* findWhere(Things& things, IsWanted isWanted) {
    const auto found = std::find_if(things.begin(), things.end(), isWanted);
    return found != things.end() ? &*found : nullptr;
}

template <typename IsWanted>
const Dialog_s* latestWhere(const std::deque<Dialog_s>& dialogs, IsWanted isWanted) {
    const Dialog_s* latest = nullptr;
    for (const Dialog_s& dialog : dialogs)
        if (isWanted(dialog) && (latest == nullptr || dialog.lastLaunch > latest->lastLaunch))
            latest = &dialog;
    return latest;
}

} // namespace

std::int32_t Toolkit::add(Dialog_s dialog) {
    dialog.id = lastId_ + 1;
    dialogs_.push_back(std::move(dialog));
    return ++lastId_;
}

std::int32_t Toolkit::addTabs(Dialog_s& dialog, TabControl_s tabs) {
    tabs.id = ++lastId_;
    dialog.tabs = std::move(tabs);
    return lastId_;
}

std::int32_t Toolkit::addPage(TabControl_s& tabs, std::string caption) {
    tabs.pages.push_back({lastId_ + 1, std::move(caption)});
    ++lastId_;
    if (tabs.pages.size() == 1)
        tabs.frontPage = lastId_;
    return lastId_;
}

std::int32_t Toolkit::addControl(Dialog_s& dialog, Control_s control) {
    control.id = lastId_ + 1;
    dialog.controls.push_back(std::move(control));
    return ++lastId_;
}

Dialog_s* Toolkit::dialog(std::int32_t id) {
    return findWhere(dialogs_, [id](const Dialog_s& dialog) { return dialog.id == id; });
}

Dialog_s* Toolkit::dialogWithTabs(std::int32_t tabs) {
    return findWhere(dialogs_, [tabs](const Dialog_s& dialog) {
        return dialog.tabs.has_value() && dialog.tabs->id == tabs;
    });
}

Dialog_s* Toolkit::dialogOfParent(std::int32_t parent) {
    return findWhere(dialogs_, [parent](const Dialog_s& dialog) {
        return dialog.id == parent || findPage(dialog, parent) != nullptr;
    });
}

Dialog_s* Toolkit::dialogWithControl(std::int32_t control) {
    return findWhere(dialogs_, [control](const Dialog_s& dialog) {
        return findControl(dialog, control) != nullptr;
    });
}

const Dialog_s* Toolkit::front() const {
    return latestWhere(dialogs_, [](const Dialog_s& dialog) { return dialog.open; });
}

const Dialog_s* Toolkit::latest() const {
    const Dialog_s* open = front();
    return open != nullptr ? open : latestWhere(dialogs_, [](const Dialog_s& dialog) {
        return dialog.lastLaunch > 0;
    });
}

void Toolkit::opened(Dialog_s& dialog) {
    dialog.open = true;
    dialog.lastLaunch = ++launches_;
}

void Toolkit::closeAll() {
    for (Dialog_s& dialog : dialogs_)
        dialog.open = false;
}

void Toolkit::removeWhere(const std::function<bool(const Dialog_s&)>& isGone) {
    dialogs_.erase(std::remove_if(dialogs_.begin(), dialogs_.end(), isGone), dialogs_.end());
}

const Control_s* findControl(const Dialog_s& dialog, std::int32_t id) {
    return findWhere(dialog.controls, [id](const Control_s& control) { return control.id == id; });
}

Control_s* findControl(Dialog_s& dialog, std::int32_t id) {
    return findWhere(dialog.controls, [id](const Control_s& control) { return control.id == id; });
}

const Page_s* findPage(const Dialog_s& dialog, std::int32_t id) {
    if (!dialog.tabs.has_value())
        return nullptr;
    return findWhere(dialog.tabs->pages, [id](const Page_s& page) { return page.id == id; });
}

bool isInFront(const Dialog_s& dialog, const Control_s& control) {
    return control.parent == dialog.id ||
           (dialog.tabs.has_value() && control.parent == dialog.tabs->frontPage);
}

} // namespace quorvia::host
