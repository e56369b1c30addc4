// File > Open Recent: the sets of files that were imported last.
#pragma once

#include <functional>

#include <QMenu>

#include "desktop/files/ImportList.h"
#include "desktop/files/Preferences.h"
#include "desktop/parts/LatestWork.h"

namespace quorvia::host {

class RecentMenu : public QMenu {
public:
    using Chosen = std::function<void(const ImportList& imports)>;

    /// `preferences` is borrowed.
    RecentMenu(Preferences& preferences, Chosen chosen, QWidget* parent);

    /// The set goes to the top, and is there once. In the place of `instead`, which it continues.
    void add(const ImportList& imports, const ImportList& instead = {});
    /// Whether an entry can be chosen.
    void allow(bool isAllowed);

private:
    void showEntries();
    /// Files that are gone are looked for beside the windows' thread: a folder may be far away.
    void lookForFiles();
    void showMissing(const std::vector<std::string>& missing);
    void forgetAll();

    Preferences& preferences_;
    Chosen chosen_;
    std::vector<ImportList> sets_; // the last one first
    LatestWork look_;              // last: it uses the others
};

} // namespace quorvia::host
