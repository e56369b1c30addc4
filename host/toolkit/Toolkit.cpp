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
const Dialog* latestWhere(const std::deque<Dialog>& dialogs, IsWanted isWanted) {
    const Dialog* latest = nullptr;
    for (const Dialog& dialog : dialogs)
        if (isWanted(dialog) && (latest == nullptr || dialog.lastLaunch > latest->lastLaunch))
            latest = &dialog;
    return latest;
}

} // namespace

std::int32_t Toolkit::add(Dialog dialog) {
    dialog.id = lastId_ + 1;
    dialogs_.push_back(std::move(dialog));
    return ++lastId_;
}

std::int32_t Toolkit::addTabs(Dialog& dialog, TabControl tabs) {
    tabs.id = ++lastId_;
    dialog.tabs = std::move(tabs);
    return lastId_;
}

std::int32_t Toolkit::addPage(TabControl& tabs, std::string caption) {
    tabs.pages.push_back({lastId_ + 1, std::move(caption)});
    ++lastId_;
    if (tabs.pages.size() == 1)
        tabs.frontPage = lastId_;
    return lastId_;
}

std::int32_t Toolkit::addControl(Dialog& dialog, Control control) {
    control.id = lastId_ + 1;
    dialog.controls.push_back(std::move(control));
    return ++lastId_;
}

Dialog* Toolkit::dialog(std::int32_t id) {
    return findWhere(dialogs_, [id](const Dialog& dialog) { return dialog.id == id; });
}

Dialog* Toolkit::dialogWithTabs(std::int32_t tabs) {
    return findWhere(dialogs_, [tabs](const Dialog& dialog) {
        return dialog.tabs.has_value() && dialog.tabs->id == tabs;
    });
}

Dialog* Toolkit::dialogOfParent(std::int32_t parent) {
    return findWhere(dialogs_, [parent](const Dialog& dialog) {
        return dialog.id == parent || findPage(dialog, parent) != nullptr;
    });
}

Dialog* Toolkit::dialogWithControl(std::int32_t control) {
    return findWhere(dialogs_, [control](const Dialog& dialog) {
        return findControl(dialog, control) != nullptr;
    });
}

const Dialog* Toolkit::front() const {
    return latestWhere(dialogs_, [](const Dialog& dialog) { return dialog.open; });
}

const Dialog* Toolkit::latest() const {
    const Dialog* open = front();
    return open != nullptr
               ? open
               : latestWhere(dialogs_, [](const Dialog& dialog) { return dialog.lastLaunch > 0; });
}

void Toolkit::opened(Dialog& dialog) {
    dialog.open = true;
    dialog.lastLaunch = ++launches_;
}

void Toolkit::closeAll() {
    for (Dialog& dialog : dialogs_)
        dialog.open = false;
}

void Toolkit::removeWhere(const std::function<bool(const Dialog&)>& isGone) {
    dialogs_.erase(std::remove_if(dialogs_.begin(), dialogs_.end(), isGone), dialogs_.end());
}

const Control* findControl(const Dialog& dialog, std::int32_t id) {
    return findWhere(dialog.controls, [id](const Control& control) { return control.id == id; });
}

Control* findControl(Dialog& dialog, std::int32_t id) {
    return findWhere(dialog.controls, [id](const Control& control) { return control.id == id; });
}

const Page* findPage(const Dialog& dialog, std::int32_t id) {
    if (!dialog.tabs.has_value())
        return nullptr;
    return findWhere(dialog.tabs->pages, [id](const Page& page) { return page.id == id; });
}

bool isInFront(const Dialog& dialog, const Control& control) {
    return control.parent == dialog.id ||
           (dialog.tabs.has_value() && control.parent == dialog.tabs->frontPage);
}

} // namespace quorvia::host
